#pragma once
// Support of the picture tests: the samples loaded and analysed as the
// screens do, and a picture rendered to a file and read back.

#include "analysis/AnalisisRed.h"
#include "analysis/DatosEsquema.h"
#include "analysis/Numeracion.h"
#include "aqueduct/ArchivoAcueducto.h"
#include "aqueduct/DatosPlano.h"
#include "aqueduct/ProyectoAcueducto.h"
#include "aqueduct/SolverMalla.h"
#include "model/ArchivoEdificio.h"
#include "model/ProyectoEdificio.h"
#include "pictures/Dibujo.h"
#include "pictures/ExportarDibujo.h"
#include "support/Apoyo.h"

#include <QDir>
#include <QImage>
#include <memory>

inline const QStringList& EdificiosDeEjemplo() {
    static const QStringList e{QStringLiteral("Edificio_ApartamentoTipo"), QStringLiteral("Edificio_GeneralesConserjeria"),
                               QStringLiteral("Edificio_MontantePH"), QStringLiteral("Vivienda con Tanque Elevado"),
                               QStringLiteral("Vivienda con Tanque Hidroneumatico")};
    return e;
}
inline const QStringList& RedesDeEjemplo() {
    static const QStringList r{QStringLiteral("EjemploRedA"), QStringLiteral("EjemploRedB")};
    return r;
}

// A building sample loaded, verified and analysed; the chain's screen logic
// stays for its grids.
struct EdificioAnalizado {
    ProyectoEdificio p;
    DialogosFalsos d;
    std::unique_ptr<AnalisisRed> a;
    QString ruta;
    EdificioAnalizado(SesionPrueba& sp, const QString& nombre) {
        QDir().mkpath(sp.Datos(QStringLiteral("Proyectos")));
        ruta = sp.CopiaDeEjemplo(nombre + QStringLiteral(".nivo"), QStringLiteral("Proyectos/") + nombre + QStringLiteral(".plm"));
        QString error;
        EXPECT_TRUE(CargarProyectoEdificio(p, sp.s, ruta, error)) << error.toStdString();
        VerificarNumeracion(p, d);
        a = std::make_unique<AnalisisRed>(p, sp.s, d);
        a->Cargar();
    }
    DatosEsquema Esquema() const { return EsquemaDeProyecto(p, &a->Spread3); }
};

// An aqueduct sample loaded and solved for `caso`.
inline void ResolverRed(SesionPrueba& sp, ProyectoAcueducto& p, const QString& nombre, int caso = 1) {
    QDir().mkpath(sp.Datos(QStringLiteral("Redes")));
    const QString ruta =
        sp.CopiaDeEjemplo(nombre + QStringLiteral(".nivo"), QStringLiteral("Redes/") + nombre + QStringLiteral(".acu"));
    QString error;
    ASSERT_TRUE(CargarProyectoACU(p, sp.s, ruta, error)) << error.toStdString();
    p.CasoDemanda = uint8_t(caso);
    p.ErrorAnalisis = 0;
    AnalizarMalla(p, sp.s);
    ASSERT_EQ(p.ErrorAnalisis, 0);
}

// The picture written as a file of the given extension into `dir`.
inline QString Exportar(const Dibujo& d, const QString& dir, const QString& nombre) {
    const QString ruta = dir + QLatin1Char('/') + nombre;
    QString error;
    EXPECT_TRUE(ExportarDibujo(d, ruta, error)) << error.toStdString();
    return ruta;
}

// Where a world point lands in the PNG file of a picture (the file's own fit).
inline QPointF EnArchivo(const Dibujo& d, const QPointF& mundo) {
    const QRectF pagina(QPointF(0, 0), d.TamanoNatural());
    return EncuadreDibujo(d, pagina.adjusted(12, 12, -12, -12)).map(mundo);
}

// A colour within a step of anti-aliasing of another.
inline bool ColorCercano(const QColor& a, const QColor& b, int tolerancia = 6) {
    return std::abs(a.red() - b.red()) <= tolerancia && std::abs(a.green() - b.green()) <= tolerancia &&
           std::abs(a.blue() - b.blue()) <= tolerancia;
}

// No pixel of the image has a colour: red, green and blue within a step of
// each other everywhere.
inline bool SoloGrises(const QImage& im) {
    for (int y = 0; y < im.height(); ++y)
        for (int x = 0; x < im.width(); ++x) {
            const QColor c = im.pixelColor(x, y);
            if (std::abs(c.red() - c.green()) > 2 || std::abs(c.green() - c.blue()) > 2) return false;
        }
    return true;
}
