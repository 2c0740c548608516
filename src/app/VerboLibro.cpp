// fontaria libro X.plm|X.acu [--caso N] --salida libro.xlsx [--sin-indice] [--sin-color]
//
// The result workbook of a project, as its screen's Excel button writes it
// with every sheet chosen, without a window.

#include "analysis/AnalisisRed.h"
#include "analysis/Numeracion.h"
#include "app/LineaComandos.h"
#include "app/SalidaEdificio.h"
#include "aqueduct/AnalisisACU.h"
#include "aqueduct/ArchivoAcueducto.h"
#include "aqueduct/ProyectoAcueducto.h"
#include "base/ErrorEjecucion.h"
#include "base/Nivo.h"
#include "shell/Sesion.h"
#include "workbook/LibroAcueducto.h"
#include "workbook/LibroEdificio.h"

#include <QDir>
#include <QTemporaryDir>
#include <cstdio>
#include <optional>

namespace {

const char* kUso = "Uso: fontaria libro X.plm|X.acu [--caso N] --salida libro.xlsx [--sin-indice] [--sin-color]";

// Each step of the export on stderr, as the screens show it on their bar.
void Progreso(int valor, const QString& texto) {
    fprintf(stderr, "%3d%%  %s\n", valor, texto.toUtf8().constData());
}

int Escrito(bool ok, const QString& error, const QString& salida) {
    if (!ok) return Fallar(error);
    Imprimir(salida);
    return Salida::Bien;
}

int LibroEdificio(const ArgumentosVerbo& a, const OpcionesLibro& o, const QString& salida) {
    ContextoVerbo c(false);
    if (!c.Cargar(a.archivo)) return Salida::Falla;
    try {
        if (c.p.NumeroRamales >= 1) {
            c.p.ErrorNumeracion = 0;
            VerificarNumeracion(c.p, c.d);
            if (c.p.ErrorNumeracion != 0) return Salida::DatosInvalidos;
        }
        AnalisisRed analisis(c.p, c.s, c.d);
        analisis.Cargar();
        if (c.p.ErrorNumeracion != 0) return Salida::DatosInvalidos;
        QString error;
        return Escrito(ExportarPantallaExcel(analisis, c.p, c.s, o, salida, error, Progreso), error, salida);
    } catch (const ErrorEjecucion& e) {
        return FallaDeCalculo(e, false);
    }
}

int LibroAcueducto(const ArgumentosVerbo& a, const OpcionesLibro& o, const QString& salida, int caso) {
    Sesion s;
    PrepararSesion(s);
    // The solve's scratch files go to the user's work folder only when the
    // program has made it.
    std::optional<QTemporaryDir> temporal;
    if (!QDir(s.RutaDatos(QStringLiteral("Trabajo"))).exists()) s.DirectorioDatos = temporal.emplace().path();
    ProyectoAcueducto p;
    QString error;
    if (int estado = 0; !CargarRedVerbo(p, s, a.archivo, error, estado)) return Fallar(error, estado);
    DialogosConsola d;
    AnalisisACU pantalla(p, s, d);
    pantalla.Cargar();
    if (pantalla.PrimeraActivacion()) return Salida::DatosInvalidos;
    if (caso != 1) {
        pantalla.CambiarCaso(caso - 1);
        if (p.ErrorAnalisis == 1) return Fallar(MensajeErrorAnalisis(s.NombreProyectoACU, p.DetalleError),
                                                Salida::ErrorCalculo);
    }
    return Escrito(ExportarPantallaExcel(pantalla, p, s, o, salida, error, Progreso), error, salida);
}

}  // namespace

int VerboLibro(const QStringList& args) {
    const ArgumentosVerbo a = LeerArgumentos(args, {QStringLiteral("caso"), QStringLiteral("salida")},
                                             {QStringLiteral("sin-indice"), QStringLiteral("sin-color")});
    const QString salida = a.Valor(QStringLiteral("salida"));
    if (!a.error.isEmpty() || a.archivo.isEmpty() || salida.isEmpty()) return FallaDeUso(a, kUso);
    int caso = 1;
    if (!a.Valor(QStringLiteral("caso")).isNull()) {
        bool ok = false;
        caso = a.Valor(QStringLiteral("caso")).toInt(&ok);
        if (!ok || caso < 1 || caso > 3) return Fallar(QStringLiteral("El caso de demanda debe ser 1, 2 ó 3."));
    }
    OpcionesLibro o;
    o.indice = !a.Tiene(QStringLiteral("sin-indice"));
    o.color = !a.Tiene(QStringLiteral("sin-color"));
    o.fecha = FechaTexto(Hoy());
    if (a.archivo.endsWith(QLatin1String(".acu"), Qt::CaseInsensitive)) return LibroAcueducto(a, o, salida, caso);
    if (caso != 1) return Fallar(QStringLiteral("--caso es sólo para los proyectos de acueducto (.acu)."));
    return LibroEdificio(a, o, salida);
}
