#pragma once
// "Comentario del Ramal": a branch's comment edited from the analysis
// screen.  A comment fixed here lasts at once: in the model, in the project
// file's row of the branch and in the comment column of the analysis grid.

#include <QString>

struct ProyectoEdificio;
struct Sesion;
class Dialogos;
class AnalisisRed;

class ComentarioRamal {
public:
    // Opens on the session's branch (Sesion::RamalActual), which the
    // analysis screen sets to its active row.
    ComentarioRamal(ProyectoEdificio& p, Sesion& s, Dialogos& d, AnalisisRed& analisis);

    static QString Titulo();  // "Comentario del Ramal"

    void Cargar();
    // The scroll bar: 1..NumeroRamales, on the current branch.
    int MinimoScroll() const { return 1; }
    int MaximoScroll() const;
    int Ramal() const { return ramal_; }
    // The panel: the branch number.
    QString Panel() const { return QString::number(ramal_); }
    // The text box.
    const QString& Texto() const { return texto_; }
    void CambiarTexto(const QString& texto);

    // The scroll bar moved: a changed comment of the branch left is saved
    // first, and the analysis grid's cursor follows to the new branch.
    void CambiarRamal(int ramal);
    // Closing keeps a changed comment, as leaving the branch does.
    void Cerrar();
    // Enter in the box: saves when it was changed.
    void Enter();
    // "Fijar" and "Quitar" ask first.
    void Fijar();
    void Quitar();

    void SalvarComentario();

private:
    void Mostrar();
    void SalvarSiCambio();
    ProyectoEdificio& p_;
    Sesion& s_;
    Dialogos& d_;
    AnalisisRed& analisis_;
    int ramal_ = 0;
    QString texto_;
    bool cambiado_ = false;
};
