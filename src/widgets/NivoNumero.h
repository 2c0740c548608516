#pragma once
// Number boxes: a double with its decimals (NivoDouble) or a whole number
// (NivoLong), typed and shown with the session's separators, held within
// limits.  Enter is a signal of its own, as screens tie it to a button.

#include <QLineEdit>
#include <QRegularExpression>

class Dialogos;

// What a number box takes as it is typed: a sign, digits and either mark
// (the session's thousands mark too); the reader then decides.
QRegularExpression ExpresionNumero();

class NivoNumero : public QLineEdit {
    Q_OBJECT
public:
    NivoNumero(int decimales, QWidget* padre = nullptr);

    double Valor() const { return valor_; }
    void PonerValor(double v);
    void PonerDecimales(int d);
    void PonerLimites(double minimo, double maximo);
    int Decimales() const { return decimales_; }

Q_SIGNALS:
    void Enter();
    // Each accepted change, as the typed text becomes a valid number.
    void ValorCambiado(double valor);
    // A text confirmed that is not a number or reads two ways; the box is
    // back at its old value.
    void Rechazado(const QString& motivo);

protected:
    void keyPressEvent(QKeyEvent* e) override;
    void focusOutEvent(QFocusEvent* e) override;

private:
    // Reads the text; false when it is not a number within the limits,
    // with the reader's reason when it is not a number.
    bool Leer(double& v, QString* motivo = nullptr) const;
    void Mostrar();
    void AlEscribir(const QString& texto);
    void Confirmar();
    int decimales_;
    double valor_ = 0.0;
    double confirmado_ = 0.0;
    double minimo_ = -1e300, maximo_ = 1e300;
};

class NivoDouble : public NivoNumero {
    Q_OBJECT
public:
    explicit NivoDouble(QWidget* padre = nullptr, int decimales = 2) : NivoNumero(decimales, padre) {}
};

class NivoLong : public NivoNumero {
    Q_OBJECT
public:
    explicit NivoLong(QWidget* padre = nullptr) : NivoNumero(0, padre) {}
    long long ValorEntero() const { return qRound64(Valor()); }
};

// Every number box of a screen shows its refusals through the screen's
// dialogs, once the box has let the focus go.
void AvisarNumerosRechazados(QWidget* pantalla, Dialogos& d);
