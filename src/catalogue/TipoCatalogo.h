#pragma once
// What sets the fixture catalogue apart from the fitting catalogue on their
// screens: table, key, figures, reserved keys and every text.  The grid
// screens (BDPiezas, BDConexiones) and the record editors (NewPieza,
// NewConexion) share one logic read through this.

#include "store/Registros.h"

#include <QString>
#include <QStringList>

struct Sesion;

struct TipoCatalogo {
    QString tabla, campoClave, campoNombre;
    // The figures, in grid columns 4.. and in the editor's boxes.
    QStringList figuras;
    Registros Sesion::*registros;
    bool (*leer)(Sesion&);
    // Keys up to this one cannot be deleted.
    int ultimaReservada;
    // From this key on, a save writes the key and the name (and, for the
    // fittings, the length); below it a row keeps them.
    int primeraLibre;
    // Fixtures: the figures are written whatever the key.
    bool figurasSiempre;
    // Fixtures: a reserved row has its key and name boxes off.
    bool bloquearReservadas;
    // Fittings: the column Automatico.
    bool automatico;

    QString titulo, tituloEditor, cosa;  // cosa: "pieza" / "conexión", for the file messages
    QStringList encabezados1, encabezados2;  // header rows of columns 4..
    QString tipReporte, tipEditar, tipCapturar;
    // Delete: the refusal of a reserved key, the question, the heading.
    QString reservada1, reservada2, pregunta1, pregunta2, encabezadoEliminar;
    // Save: the clash of a new key.
    QString existe, encabezadoExiste;
    QString modificados, quitarImagen;

    static const TipoCatalogo& Piezas();
    static const TipoCatalogo& Conexiones();
};

// The catalogue's "Automático" text, as the branch screens show it.
QString TextoAutomaticoCatalogo();
