#include "widgets/NivoNumero.h"

#include "base/Nivo.h"

#include <QKeyEvent>
#include <QRegularExpressionValidator>

QRegularExpression ExpresionNumero() {
    const Separadores& sep = SeparadoresActuales();
    // Digits, a sign, the session's separators and the plain point.
    return QRegularExpression(QStringLiteral("[-+]?[0-9") + QRegularExpression::escape(QString(sep.miles)) +
                              QStringLiteral("]*[") + QRegularExpression::escape(QString(sep.decimal)) +
                              QStringLiteral(".]?[0-9]*"));
}

NivoNumero::NivoNumero(int decimales, QWidget* padre) : QLineEdit(padre), decimales_(decimales) {
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setValidator(new QRegularExpressionValidator(ExpresionNumero(), this));
    connect(this, &QLineEdit::textEdited, this, &NivoNumero::AlEscribir);
    Mostrar();
}

void NivoNumero::PonerValor(double v) {
    valor_ = std::clamp(v, minimo_, maximo_);
    confirmado_ = valor_;
    Mostrar();
}

void NivoNumero::PonerDecimales(int d) {
    decimales_ = std::max(0, d);
    Mostrar();
}

void NivoNumero::PonerLimites(double minimo, double maximo) {
    minimo_ = minimo;
    maximo_ = maximo;
    PonerValor(valor_);
}

bool NivoNumero::Leer(double& v) const {
    QString t = Trim(text());
    if (t.isEmpty() || t == QLatin1String("-") || t == QLatin1String("+")) {
        v = 0.0;
    } else if (!LeerNumero(t, v)) {
        return false;
    }
    if (decimales_ == 0) v = double(qRound64(v));
    return v >= minimo_ && v <= maximo_;
}

void NivoNumero::Mostrar() {
    QString mascara = QStringLiteral("0");
    if (decimales_ > 0) mascara += QLatin1Char('.') + QString(decimales_, QLatin1Char('0'));
    setText(Formato(valor_, mascara));
}

void NivoNumero::AlEscribir(const QString&) {
    double v = 0.0;
    if (Leer(v) && v != valor_) {
        valor_ = v;
        Q_EMIT ValorCambiado(valor_);
    }
}

void NivoNumero::keyPressEvent(QKeyEvent* e) {
    if (e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter) {
        // The typed text is settled before the signal, so a handler reads it.
        Confirmar();
        Q_EMIT Enter();
        return;
    }
    QLineEdit::keyPressEvent(e);
}

void NivoNumero::Confirmar() {
    // A text out of bounds or not a number goes back to the value the box
    // held before the typing began.
    double v = 0.0;
    if (!Leer(v)) v = confirmado_;
    confirmado_ = v;
    if (v != valor_) {
        valor_ = v;
        Q_EMIT ValorCambiado(valor_);
    }
    Mostrar();
}

void NivoNumero::focusOutEvent(QFocusEvent* e) {
    Confirmar();
    QLineEdit::focusOutEvent(e);
}
