#pragma once
// The session: folders, the names of the open projects, the mode, the
// message buffer, the catalogue connection and the settings, alive for the
// whole run and passed by reference to the routines that need them.

#include "base/Nivo.h"
#include "shell/Tapiz.h"
#include "store/Registros.h"

#include <QString>
#include <cstdint>

struct Sesion {
    QString RutaPrograma;      // installed program folder (Imagen/, Manual/...)
    QString DirectorioDatos;   // root of the user's folder tree
    QString DirectorioTemporal;
    QString ArchivoProyecto;   // current building project, full path
    QString NombreProyecto;    // its file name; empty when none is chosen
    QString ArchivoProyectoACU;
    QString NombreProyectoACU;
    uint8_t TipoRed = 0;       // 0 building, 1 aqueduct
    QString Mensaje;           // the shared message buffer
    QString NombreUsuario;
    QString ArchivoAyuda;
    QChar SeparadorDecimal = QLatin1Char('.');
    QChar SeparadorMiles = QLatin1Char(',');
    uint8_t ExcelVersion = 16;

    Conexion ConexionCatalogo;
    int ConexionFallida = 0;   // of the last AbrirConexion: 0 or -1
    Conexion ConexionProyecto;
    // The catalogue's session record sets, opened by whichever screen needs
    // them first.
    Registros RsPiezas;
    Registros RsConexiones;

    ConfiguracionTapiz Tapiz;

    // Flags shared by the screens.
    bool ProyectoModificado = false;
    int16_t DatosModificados = 0;  // true is -1
    int RamalActual = 0;
    int EdicionDesdeAnalisis = 0;
    bool CatalogoDesdeProyecto = false;
    // The capture screen's last accepted picture: the flag (true is -1) and
    // the file it came from.  RutaImagen(nombre) below is a program image.
    int16_t HayImagenNueva = 0;
    QString RutaImagenCapturada;

    // Paths under the program and data folders.
    QString RutaImagen(const QString& nombre) const { return RutaPrograma + QStringLiteral("/Imagen/") + nombre; }
    QString RutaDatos(const QString& relativa) const { return DirectorioDatos + QLatin1Char('/') + relativa; }
};

// AbrirConexionProyecto: opens ConexionProyecto on ArchivoProyecto and sets
// ConexionFallida.
int AbrirConexionProyecto(Sesion& s);
