#include "widgets/NivoNumero.h"

#include "base/Dialogos.h"
#include "base/Nivo.h"

#include <QKeyEvent>
#include <QRegularExpressionValidator>

QRegularExpression ExpresionNumero() {
    const Separadores& sep = SeparadoresActuales();
    const QString marcas = QStringLiteral(".,") + sep.miles + sep.decimal;
    return QRegularExpression(QStringLiteral("[-+]?[0-9") + QRegularExpression::escape(marcas) + QStringLiteral("]*"));
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

bool NivoNumero::Leer(double& v, QString* motivo) const {
    const QString t = Trim(text());
    if (t.isEmpty() || t == QLatin1String("-") || t == QLatin1String("+")) {
        v = 0.0;
    } else {
        const NumeroLeido r = LeerNumeroTecleado(t);
        if (!r.valido) {
            if (motivo) *motivo = r.motivo;
            return false;
        }
        v = r.valor;
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
    QString motivo;
    if (!Leer(v, &motivo)) v = confirmado_;
    confirmado_ = v;
    if (v != valor_) {
        valor_ = v;
        Q_EMIT ValorCambiado(valor_);
    }
    Mostrar();
    if (!motivo.isEmpty()) Q_EMIT Rechazado(motivo);
}

void NivoNumero::focusOutEvent(QFocusEvent* e) {
    Confirmar();
    QLineEdit::focusOutEvent(e);
}

void AvisarNumerosRechazados(QWidget* pantalla, Dialogos& d) {
    for (NivoNumero* caja : pantalla->findChildren<NivoNumero*>())
        // Queued: the message box must not open inside the focus change.
        QObject::connect(caja, &NivoNumero::Rechazado, pantalla,
                         [&d](const QString& motivo) { MostrarNumeroRechazado(d, motivo); }, Qt::QueuedConnection);
}
