#pragma once
// The logic of "Conexiones en los Ramales del Proyecto", the twin of
// PiezasRamales for the fittings of each branch: Spread2 column 4 is the
// "Longitud Equiv.(m)".  A fitting of key below 12 is automatic (the locked
// text "Automático": the analysis derives its length from the key and the
// diameter); one of key 12 or more keeps a fixed length in metres, typed
// over the catalogue's.  Every edit is stored in the model at once.

#include "base/Grid.h"
#include "entry/FilasRamal.h"

#include <QImage>
#include <QString>

struct ProyectoEdificio;
struct Sesion;
class Dialogos;
class EditorRamales;

// A catalogue row handed over by the catalogue screen ("Capturar").
struct ConexionCapturada {
    int clave = 0;
    QString nombre;
    double longitudEquivalente = 0.0;
    QImage foto;
};

class ConexionesRamales {
public:
    ConexionesRamales(ProyectoEdificio& p, Sesion& s, Dialogos& d, EditorRamales& editor);

    static const AspectoFilas& Aspecto();

    Grid Spread1;
    Grid Spread2;

    // On RamalActual: caption, image mirror, grids, catalogue, rows.
    void Cargar();
    void ColoquePantalla(int ramal);
    void SalvarRamal();

    // Column 3 of Spread1: the count of reserved rows (21 or more is 20).
    bool EditarRamales(int fila, int columna, const QString& texto) {
        return filas_.ReservarFilas(fila, columna, texto);
    }
    // A typed key (column 1), length (4), quantity (5) or name (3).
    bool EditarFilas(int fila, int columna, const QString& texto);
    // A quick button: its key into the active row.
    void BotonRapido(int clave);
    // The catalogue screen's capture onto the active row (quantity 1).
    // False when nothing was written.
    bool Capturar(const ConexionCapturada& conexion);

    void Eliminar();
    void EliminarTodas();
    void ActualizarImagenes();
    void Cerrar();

    // The shared part: caption, "Ramal n", the nodes, the photographs of
    // keys and rows for the buttons and the floating preview, and the events
    // that are the same on both screens (the branch walk, the four moves).
    FilasRamal& Filas() { return filas_; }

private:
    bool TeclearClave(int fila, const QString& texto);
    // Picture, length and quantity 1 of a catalogue row found in
    // RsConexiones.
    void PonerDelCatalogo(int fila, const QString& nombre);
    // "Automático" below key 12, else the length in a number cell.
    void PonerLongitud(int fila, bool automatica, double longitud);
    void ClaveNoExiste(int clave, const QString& encabezado);

    ProyectoEdificio& p_;
    Sesion& s_;
    Dialogos& d_;
    FilasRamal filas_;
};
