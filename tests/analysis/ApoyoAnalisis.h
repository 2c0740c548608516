#pragma once
// Small building projects written in a test: branches by their two node
// names, fixtures and fittings by key, and a save into a blank project file
// that leaves the project connection open, as a load does.

#include "support/Apoyo.h"
#include "model/ArchivoEdificio.h"
#include "model/ProyectoEdificio.h"

#include <gtest/gtest.h>
#include <initializer_list>
#include <utility>
#include <vector>

struct FilaPrueba {
    int clave;
    int cantidad;
    double valor;  // units of a fixture, length of a key-12 fitting
    const char* nombre = "PIEZA";
};

// A project of the listed branches (I, J) with 1 m each, floor levels 0.
inline void ProyectoDeRamales(ProyectoEdificio& p, Sesion& s,
                              const std::vector<std::pair<const char*, const char*>>& ramales) {
    ValoresIniciales(p, s);
    const int n = int(ramales.size());
    p.NumeroRamales = n;
    p.DimensionarRamales(n);
    int i = 0;
    for (const auto& [a, b] : ramales) {
        ++i;
        p.NodoI[i] = QString::fromUtf8(a);
        p.Nodoj[i] = QString::fromUtf8(b);
        p.longitudReal[i] = 1.0;
    }
    p.NumeroNodos = n + 1;
    p.DimensionarNodos(n + 1);
}

inline void PonerPiezas(ProyectoEdificio& p, int ramal, std::initializer_list<FilaPrueba> filas) {
    int k = 0;
    for (const FilaPrueba& f : filas) {
        ++k;
        p.PiezaClave(ramal, k) = f.clave;
        p.PiezaCantidad(ramal, k) = f.cantidad;
        p.PiezaUnidades(ramal, k) = f.valor;
        p.PiezaNombre(ramal, k) = QString::fromUtf8(f.nombre);
    }
    p.NPiezas[ramal] = k;
}

inline void PonerConexiones(ProyectoEdificio& p, int ramal, std::initializer_list<FilaPrueba> filas) {
    int k = 0;
    for (const FilaPrueba& f : filas) {
        ++k;
        p.ConexionClave(ramal, k) = f.clave;
        p.ConexionCantidad(ramal, k) = f.cantidad;
        p.ConexionLongitud(ramal, k) = f.valor;
        p.ConexionNombre(ramal, k) = QString::fromUtf8(f.nombre);
        p.ConexionAutomatica(ramal, k) = f.clave <= 11;
    }
    p.NConexiones[ramal] = k;
}

// Saves the model into a blank project and leaves its connection open.
inline void GuardarYAbrir(ProyectoEdificio& p, SesionPrueba& sp, const QString& nombre = QStringLiteral("prueba.plm")) {
    sp.s.ArchivoProyecto = sp.ProyectoEnBlanco(nombre);
    sp.s.NombreProyecto = nombre;
    QString error;
    ASSERT_TRUE(SalvarProyecto(p, sp.s, error)) << error.toStdString();
    ASSERT_EQ(AbrirConexionProyecto(sp.s), 0);
}

// A column of DatosRamales for a branch, as the file holds it.
inline Valor CampoRamal(Sesion& s, const char* columna, int ramal) {
    return s.ConexionProyecto.Escalar(QStringLiteral("SELECT %1 FROM DatosRamales WHERE Numero=%2")
                                          .arg(QString::fromLatin1(columna))
                                          .arg(ramal));
}
