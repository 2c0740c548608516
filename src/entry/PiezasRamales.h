#pragma once
// The logic of "Piezas Sanitarias en los Ramales": the branches in Spread1
// (column 3 the count of reserved positions, the only cell typed), the
// fixtures of the branch shown in Spread2 (1 "Clave", 2 "Imagen",
// 3 "Descripción", 4 "Unidades de Gasto", 5 "Cantidad").  A row is a copy of
// the catalogue row: key, name, the units of the column OpcionUsoPiezas
// chose when it was filled, and the quantity.  Every edit is stored in the
// model at once (SalvarRamal); the project is saved by the branch editor.
// The Qt screen forwards each event here and redraws the grids.

#include "base/Grid.h"
#include "entry/FilasRamal.h"

#include <QImage>
#include <QString>

struct ProyectoEdificio;
struct Sesion;
class Dialogos;
class EditorRamales;

// A catalogue row handed over by the catalogue screen ("Capturar").
struct PiezaCapturada {
    int clave = 0;
    QString nombre;
    double unidades[4] = {};  // by OpcionUsoPiezas: PrivadoTotal ... PublicoFriaCaliente
    QImage foto;
};

class PiezasRamales {
public:
    PiezasRamales(ProyectoEdificio& p, Sesion& s, Dialogos& d, EditorRamales& editor);

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
    // A typed key (column 1), units (4), quantity (5) or name (3).
    bool EditarFilas(int fila, int columna, const QString& texto);
    // A quick button: its key into the active row.
    void BotonRapido(int clave);
    // The catalogue screen's capture onto the active row (quantity 3).
    // False when nothing was written.
    bool Capturar(const PiezaCapturada& pieza);

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
    // Units, picture and quantity of a catalogue row found in RsPiezas.
    void PonerDelCatalogo(int fila, const QString& nombre, int cantidad);
    void PonerUnidades(int fila, double unidades);
    void ClaveNoExiste(int clave);

    ProyectoEdificio& p_;
    Sesion& s_;
    Dialogos& d_;
    FilasRamal filas_;
};
