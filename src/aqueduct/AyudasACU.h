#pragma once
// The tool-tips of the aqueduct screens, by control: the Qt screens install
// them through the common tool-tip set-up.  Texts keep their spacing.

#include <QList>
#include <QString>

struct Ayuda {
    QString control;  // the control's name (its caption where it has no other)
    QString texto;    // the tip
    QString titulo;   // the title of the long form; empty for the short one
};

// "Datos Generales del Acueducto", its context menu included.
QList<Ayuda> AyudasDatosAcueducto();
// "Análisis de la Malla de Acueductos": the short tips and, with a title,
// the long ones set at run time.
QList<Ayuda> AyudasAnalisisACU();
// "Longitud de los Ramales".
QList<Ayuda> AyudasLongitudTramosAcu();
