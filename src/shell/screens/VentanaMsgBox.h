#pragma once
// The program's message box, the only one it uses: an icon, a head line
// (Label1), the body (Label2) and one of three button forms, sized to its
// text.  Yes/No boxes have no close command and ignore Esc.  The screen is
// frmMsgBox; its rules are in shell/CajaMensajes.h.

#include <QDialog>
#include <QImage>

class QLabel;
class QPushButton;
class QFrame;

class VentanaMsgBox : public QDialog {
    Q_OBJECT
public:
    VentanaMsgBox(const QString& texto, const QString& encabezado, const QString& titulo, int botones, int defecto,
                  int icono, const QImage& imagen, QWidget* padre = nullptr);

    // Shows the box modally; 1 "Sí", 0 "No" or "Aceptar", 2 "Cancelar".
    static int MostrarMensaje(const QString& texto, const QString& encabezado, const QString& titulo, int botones,
                              int defecto, int icono, const QImage& imagen, QWidget* padre = nullptr);

    int Cerrado() const { return cerrado_; }
    QPushButton* Boton(int i) const { return boton_[i]; }  // 0..2: Button1..Button3
    QPushButton* BotonPorDefecto() const { return boton_[defecto_]; }

public Q_SLOTS:
    void reject() override;

protected:
    void showEvent(QShowEvent* e) override;
    void closeEvent(QCloseEvent* e) override;
    void resizeEvent(QResizeEvent* e) override;

private:
    void Terminar(int resultado);
    void Disponer(const QString& texto, const QString& encabezado);
    int botones_;
    int defecto_ = 0;
    int cerrado_ = 0;
    bool enfocado_ = false;
    bool terminado_ = false;
    QFrame* panel_;
    QLabel* imagen_;
    QLabel* encabezado_;
    QLabel* texto_;
    QPushButton* boton_[3];
};

// The five stored pictures of the box, and the program's own.
QPixmap IconoMensaje(int icono, int lado = 48);
QIcon IconoPrograma();
