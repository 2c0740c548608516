#pragma once
// Generated building projects for the measurements: a riser with two
// apartments per floor, written once per size into a project file of its
// own, and a Dialogos that answers every question with its default.

#include "base/Dialogos.h"
#include "model/ArchivoEdificio.h"
#include "model/ProyectoEdificio.h"
#include "shell/Sesion.h"

#include <QFile>
#include <QTemporaryDir>
#include <map>

class DialogosMudos : public Dialogos {
public:
    int MostrarMensaje(const QString&, const QString&, const QString&, int, int defecto, int, const QImage*) override {
        return defecto;
    }
    std::optional<QString> AbrirArchivo(const QString&, const QString&, const QString&) override { return {}; }
    std::optional<QString> GuardarArchivo(const QString&, const QString&, const QString&) override { return {}; }
    std::optional<QString> PedirTexto(const QString&, const QString&, const QString&) override { return {}; }
    std::optional<int> ElegirColor(int) override { return {}; }
    bool AbrirConSistema(const QString&) override { return false; }
    void CursorOcupado(bool) override {}
};

// A riser with two apartments at each floor, listed depth first: the riser
// segment Mk-1 -> Mk, then Mk -> Ak, Mk -> Bk, and the next segment from Mk.
inline void Generar(ProyectoEdificio& p, int n) {
    p.NumeroRamales = n;
    p.DimensionarRamales(n);
    int piso = 0;
    for (int i = 1; i <= n; ++i) {
        const int tipo = (i - 1) % 3;
        if (tipo == 0) {
            ++piso;
            p.NodoI[i] = QStringLiteral("M%1").arg(piso - 1);
            p.Nodoj[i] = QStringLiteral("M%1").arg(piso);
            p.longitudReal[i] = 3.0;
        } else {
            p.NodoI[i] = QStringLiteral("M%1").arg(piso);
            p.Nodoj[i] = QStringLiteral("%1%2").arg(tipo == 1 ? QLatin1Char('A') : QLatin1Char('B')).arg(piso);
            p.longitudReal[i] = 4.0;
            p.PiezaClave(i, 1) = 5;
            p.PiezaNombre(i, 1) = QStringLiteral("EXCUSADO DE TANQUE");
            p.PiezaUnidades(i, 1) = 3.0;
            p.PiezaCantidad(i, 1) = 1;
            p.PiezaClave(i, 2) = 10;
            p.PiezaNombre(i, 2) = QStringLiteral("LAVAMANOS");
            p.PiezaUnidades(i, 2) = 1.0;
            p.PiezaCantidad(i, 2) = 2;
            p.NPiezas[i] = 2;
        }
        p.ConexionClave(i, 1) = 5;
        p.ConexionNombre(i, 1) = QStringLiteral("CODO DE 90 GRADOS");
        p.ConexionCantidad(i, 1) = 2;
        p.ConexionAutomatica(i, 1) = true;
        p.ConexionClave(i, 2) = 13;
        p.ConexionNombre(i, 2) = QStringLiteral("MEDIDOR DE AGUA");
        p.ConexionLongitud(i, 2) = 5.0;
        p.ConexionCantidad(i, 2) = 1;
        p.NConexiones[i] = 2;
    }
    p.NumeroNodos = n + 1;
    p.DimensionarNodos(n + 1);
    for (int k = 1; k <= n + 1; ++k) p.CotaPiso[k] = 0.0;
}

// One blank-sized project file per size, kept for the whole run.
struct Archivos {
    QTemporaryDir dir;
    std::map<int, QString> porTamano;

    QString Plantilla(int n) {
        auto it = porTamano.find(n);
        if (it != porTamano.end()) return it->second;
        Sesion s;
        s.RutaPrograma = QStringLiteral(FONTARIA_RUTA_PROGRAMA);
        ProyectoEdificio p;
        ValoresIniciales(p, s);
        Generar(p, n);
        const QString ruta = dir.path() + QStringLiteral("/plantilla%1.plm").arg(n);
        QFile::copy(s.RutaImagen(QStringLiteral("Proyecto.nivo")), ruta);
        QFile(ruta).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
        s.ArchivoProyecto = ruta;
        QString error;
        if (!SalvarProyecto(p, s, error)) qFatal("%s", qPrintable(error));
        s.ConexionProyecto.Cerrar();
        porTamano[n] = ruta;
        return ruta;
    }
    QString Copia(int n, const QString& nombre) {
        const QString ruta = dir.path() + QLatin1Char('/') + nombre;
        QFile::remove(ruta);
        QFile::copy(Plantilla(n), ruta);
        QFile(ruta).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
        return ruta;
    }
};

inline Archivos& LosArchivos() {
    static Archivos a;
    return a;
}
