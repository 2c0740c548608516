#pragma once
// The record editor that "Crear o Modificar Piezas Sanitarias" and "Crear o
// Modificar Conexiones" share: a scroll bar over the catalogue's records,
// the boxes of one record as typed, "Crear", "Salvar", the changed mark and
// its question, and the picture with its three buttons.  What is typed
// stays in the boxes until it is stored or given up: a refused save loses
// nothing.

#include "catalogue/BDCatalogo.h"

#include <QImage>
#include <QString>
#include <QStringList>

class Dialogos;
class PantallasFoto;
struct Sesion;

class EditorCatalogo {
public:
    // The boxes the focus goes to after a refused save.
    enum Foco { Ninguno = -1, Clave = -2, Nombre = -3 };  // 0.. a figure

    EditorCatalogo(BDCatalogo& bd, Sesion& s, Dialogos& d, PantallasFoto& fotos);

    // Opens on the record of the catalogue grid's row.
    void Cargar(int filaGrid);

    // The scroll bar: 1..Registros(), off with no records.
    int Registro() const { return registro_; }
    int Registros() const;
    bool BarraHabilitada() const { return Registros() > 0; }
    // "Registro 5 de 21", "Registro Nuevo" for a record being created.
    QString Posicion() const;
    // The boxes as they stand.
    const QString& TextoClave() const { return clave_; }
    const QString& TextoNombre() const { return nombre_; }
    const QString& TextoFigura(int i) const { return figuras_[i]; }
    int Figuras() const { return int(figuras_.size()); }
    // A fitting shown as automatic: "Automático" in place of the length box.
    bool Automatico() const { return automatico_; }
    const QImage& Foto() const { return foto_; }
    // A reserved fixture keeps its key and name: their boxes are off.
    bool ClaveHabilitada() const;
    bool Modificado() const { return modificado_; }
    bool Nuevo() const { return nuevo_; }
    Foco FocoPedido() const { return foco_; }

    // A change typed in a box sets the changed mark.
    void CambiarClave(const QString& texto);
    void CambiarNombre(const QString& texto);
    void CambiarFigura(int i, const QString& texto);

    // The scroll bar moved: with the mark set, asks first.  False when the
    // editor stays on its record (Cancel, or a save refused).
    bool Desplazar(int registro);
    // "Crear": an empty record with the count plus 1 as its key.
    void Crear();
    // "Salvar": needs a key other than 0 and a name, then stores the record.
    bool Salvar();
    // Closing: with the mark set, asks first.  False when it stays open.
    bool Cerrar();

    void AnexarImagen();
    void QuitarImagen();
    void ExportarImagen();

private:
    void Mostrar(int registro);
    // Yes stores, No gives the changes up, Cancel stays: false to stay.
    bool DejarRegistro();
    bool LeerCampos(int& clave, std::vector<double>& figuras);
    bool ClaveExiste(int clave, bool nuevo);
    bool Guardar(int clave, const std::vector<double>& figuras);
    void Enfocar(Foco f) { foco_ = f; }

    BDCatalogo& bd_;
    Sesion& s_;
    Dialogos& d_;
    PantallasFoto& fotos_;
    const TipoCatalogo& t_;
    int registro_ = 0;
    int claveRegistro_ = 0;  // the key stored in the record shown
    QString clave_, nombre_;
    QStringList figuras_;
    bool automatico_ = false;
    QImage foto_;
    bool nuevo_ = false, modificado_ = false;
    Foco foco_ = Ninguno;
};
