// fontaria acueducto X.acu [--caso 1|2|3] [--json] [--corregir-direccion]
//                          [--plano dibujo.svg|.png|.pdf [--color velocidad|perdida] [--blanco-y-negro]]
//                          [--limite-iteraciones N]  (for tests: a pass that does not converge)
// fontaria acueducto exportar X.acu | importar datos.json X.acu
// fontaria acueducto importar-inp red.inp X.acu [--bomba-como-carga] [--c-por-defecto]
// fontaria acueducto exportar-inp X.acu red.inp

#include "app/Dibujar.h"
#include "app/LineaComandos.h"
#include "aqueduct/AcueductoJson.h"
#include "aqueduct/AnalisisACU.h"
#include "aqueduct/ArchivoAcueducto.h"
#include "aqueduct/CasosDemanda.h"
#include "aqueduct/DatosPlano.h"
#include "aqueduct/ExportarInp.h"
#include "aqueduct/ImportarInp.h"
#include "aqueduct/ProyectoAcueducto.h"
#include "aqueduct/SolverMalla.h"
#include "model/EscritorJson.h"
#include "shell/Sesion.h"

#include <QDir>
#include <QTemporaryDir>
#include <optional>

namespace {

// The numbering writes its scratch node file under Trabajo/ of the data
// folder.  A verb uses the user's folder only when the program has made it
// already, and a temporary one otherwise (always for import and export), so
// that the command line never builds the user's tree.
class Borrador {
public:
    Borrador(Sesion& s, bool siempre) {
        // Made only when used: a folder made and removed costs a small run a
        // tenth of its time.
        if (siempre || !QDir(s.RutaDatos(QStringLiteral("Trabajo"))).exists())
            s.DirectorioDatos = dir_.emplace().path();
    }

private:
    std::optional<QTemporaryDir> dir_;
};

const char* UsoAcueducto() {
    return "Uso: fontaria acueducto X.acu [--caso 1|2|3] [--json] [--corregir-direccion]\n"
           "     [--plano dibujo.svg|.png|.pdf [--color velocidad|perdida] [--blanco-y-negro]]\n"
           "     fontaria acueducto exportar X.acu | importar datos.json X.acu\n"
           "     fontaria acueducto importar-inp red.inp X.acu [--bomba-como-carga] [--c-por-defecto]\n"
           "     fontaria acueducto exportar-inp X.acu red.inp";
}

struct Opciones {
    QString archivo;
    int caso = 1;
    bool json = false;
    bool corregir = false;
    int limite = 0;  // 0: the solver's own
    QString plano;   // the picture to draw, null when none
    bool colorPerdida = false;
    bool blancoNegro = false;
};

bool LeerOpciones(const QStringList& args, Opciones& o, QString& error) {
    for (int i = 2; i < args.size(); ++i) {
        const QString& a = args[i];
        if (a == QLatin1String("--json")) {
            o.json = true;
        } else if (a == QLatin1String("--corregir-direccion")) {
            o.corregir = true;
        } else if (a == QLatin1String("--caso")) {
            bool ok = false;
            o.caso = i + 1 < args.size() ? args[++i].toInt(&ok) : 0;
            if (!ok || o.caso < 1 || o.caso > 3) {
                error = QStringLiteral("El caso de demanda debe ser 1, 2 ó 3.");
                return false;
            }
        } else if (a == QLatin1String("--plano")) {
            o.plano = i + 1 < args.size() ? args[++i] : QString();
            if (o.plano.isEmpty()) {
                error = QStringLiteral("Falta el archivo del plano tras --plano.");
                return false;
            }
            if (!ExtensionDibujoValida(o.plano, error)) return false;
        } else if (a == QLatin1String("--color")) {
            const QString c = i + 1 < args.size() ? args[++i] : QString();
            if (c != QLatin1String("velocidad") && c != QLatin1String("perdida")) {
                error = QStringLiteral("El color del plano debe ser velocidad o perdida.");
                return false;
            }
            o.colorPerdida = c == QLatin1String("perdida");
        } else if (a == QLatin1String("--blanco-y-negro")) {
            o.blancoNegro = true;
        } else if (a == QLatin1String("--limite-iteraciones")) {
            bool ok = false;
            o.limite = i + 1 < args.size() ? args[++i].toInt(&ok) : 0;
            if (!ok || o.limite < 1) {
                error = QStringLiteral("El límite de iteraciones debe ser un entero positivo.");
                return false;
            }
        } else if (a.startsWith(QLatin1String("--")) || !o.archivo.isEmpty()) {
            error = QStringLiteral("Argumento desconocido: ") + a;
            return false;
        } else {
            o.archivo = a;
        }
    }
    if (o.archivo.isEmpty()) error = QString::fromUtf8(UsoAcueducto());
    return error.isEmpty();
}

// The results as text: the case, then the two grids of the results screen.
void ImprimirTexto(ProyectoAcueducto& p, Sesion& s) {
    DialogosConsola d;
    AnalisisACU a(p, s, d);
    a.ConfigurarSpread();
    a.ColoquePantalla();
    QString t = a.Titulo() + QLatin1Char('\n') + FilasCasos(p).value(p.CasoDemanda - 1) + QLatin1Char('\n');
    t += QStringLiteral("Nodo de menor presión: %1   Nodo de mayor presión: %2\n\n")
             .arg(p.Nodos.Leer(p.NodoMinimo), p.Nodos.Leer(p.NodoMaximo));
    t += GridComoTexto(a.Spread1) + QLatin1Char('\n') + GridComoTexto(a.Spread2);
    Imprimir(t);
}

void ImprimirResultados(const ProyectoAcueducto& p, const QString& mensaje) {
    EscritorJson j(stdout);
    EscribirResultadosJson(j, p, mensaje);
    j.Terminar();
}

// Ends the run with a message of the program: on stderr, and in the JSON
// object when one is asked for.
}  // namespace

bool CargarRedVerbo(ProyectoAcueducto& p, Sesion& s, const QString& archivo, QString& mensaje, int& estado) {
    ValoresInicialesACU(p, s);
    estado = Salida::Falla;
    if (!CargarProyectoACU(p, s, archivo, mensaje)) return false;
    estado = Salida::DatosInvalidos;
    if (p.NumeroTramos == 0) {
        mensaje = s.NombreProyectoACU + QStringLiteral("\nNúmero de Ramales = 0\nRevise el Archivo de Datos...");
        return false;
    }
    estado = Salida::Bien;
    return true;
}

namespace {

int Terminar(const Opciones& o, const ProyectoAcueducto& p, const QString& mensaje, int estado) {
    if (o.json) ImprimirResultados(p, mensaje);
    return Fallar(mensaje, estado);
}

int Analizar(const Opciones& o) {
    Sesion s;
    PrepararSesion(s);
    const Borrador borrador(s, false);
    ProyectoAcueducto p;
    QString error;
    int estado = Salida::Bien;
    if (!CargarRedVerbo(p, s, o.archivo, error, estado))
        return estado == Salida::DatosInvalidos ? Terminar(o, p, error, estado) : Fallar(error, estado);

    DialogosConsola d;
    AnalisisACU pantalla(p, s, d);
    if (!pantalla.VerificaTanque())
        return Terminar(o, p, MensajeSinTanque(s.NombreProyectoACU), Salida::DatosInvalidos);
    p.CasoDemanda = uint8_t(o.caso);
    if (o.limite > 0) p.LimiteIteraciones = o.limite;
    p.ErrorAnalisis = 0;
    AnalizarMalla(p, s);
    auto falla = [&] {
        return Terminar(o, p, MensajeErrorAnalisis(s.NombreProyectoACU, p.DetalleError),
                        Salida::ErrorCalculo);
    };
    if (p.ErrorAnalisis == 1) return falla();

    QString mensaje;
    if (o.corregir) {
        int invertidos = 0;
        if (ContarNegativos(p) == 0)
            mensaje = QStringLiteral("¡No Existe Ningún Caudal Negativo!");
        else if (!InvertirTramosNegativos(p, s, error, &invertidos))
            return Fallar(error);
        else
            mensaje = QStringLiteral("Ramales invertidos: %1").arg(invertidos);
        if (p.ErrorAnalisis == 1) return falla();
        fprintf(stderr, "%s\n", mensaje.toUtf8().constData());
    }
    if (!o.plano.isNull()) {
        QJsonObject plano = PlanoComoJson(PlanoDeProyecto(p, CoordenadasNodos(p)));
        if (o.colorPerdida) plano[QStringLiteral("color")] = QStringLiteral("perdida");
        plano[QStringLiteral("blancoNegro")] = o.blancoNegro;
        const int estado = Dibujar(plano, o.plano);
        if (estado != Salida::Bien) return estado;
    }
    if (o.json)
        ImprimirResultados(p, mensaje);
    else if (o.plano.isNull())
        ImprimirTexto(p, s);
    // The results stand, but the engineer must know they are not final.
    for (const QString& linea : LineasSinConvergencia(p)) Fallar(QStringLiteral("Aviso: ") + linea);
    return p.SinConvergencia() ? Salida::SinConvergencia : Salida::Bien;
}

// The exchange-format import: the report of what was left out goes to
// stdout, a refusal to stderr.
int ImportarRedInp(const QStringList& args) {
    OpcionesInp o;
    QStringList archivos;
    for (int i = 3; i < args.size(); ++i) {
        if (args[i] == QLatin1String("--bomba-como-carga"))
            o.bombaComoCarga = true;
        else if (args[i] == QLatin1String("--c-por-defecto"))
            o.cPorDefecto = true;
        else if (args[i].startsWith(QLatin1String("--")))
            return Fallar(QStringLiteral("Argumento desconocido: ") + args[i]);
        else
            archivos << args[i];
    }
    if (archivos.size() != 2) return Fallar(QString::fromUtf8(UsoAcueducto()));
    Sesion s;
    PrepararSesion(s);
    const Borrador borrador(s, true);
    QStringList informe;
    QString error;
    if (!ImportarInp(archivos[0], archivos[1], o, s, informe, error)) return Fallar(error);
    Imprimir(TextoInforme(informe));
    return Salida::Bien;
}

int ExportarRedInp(const QStringList& args) {
    Sesion s;
    PrepararSesion(s);
    const Borrador borrador(s, true);
    QStringList informe;
    QString error;
    if (!ExportarInp(args[3], args[4], s, informe, error)) return Fallar(error);
    if (!informe.isEmpty()) Imprimir(QStringLiteral("Identificadores cambiados y avisos:\n  - ") +
                                     informe.join(QStringLiteral("\n  - ")));
    return Salida::Bien;
}

}  // namespace

int VerboAcueducto(const QStringList& args) {
    QString error;
    if (args.size() == 4 && args[2] == QLatin1String("exportar")) {
        Sesion s;
        PrepararSesion(s);
        const Borrador borrador(s, true);
        QJsonObject o;
        if (!ExportarAcueducto(args[3], s, o, error)) return Fallar(error);
        ImprimirJson(o);
        return Salida::Bien;
    }
    if (args.size() == 5 && args[2] == QLatin1String("importar")) {
        Sesion s;
        PrepararSesion(s);
        const Borrador borrador(s, true);
        if (!ImportarAcueducto(args[3], args[4], s, error)) return Fallar(error);
        return Salida::Bien;
    }
    if (args.size() >= 3 && args[2] == QLatin1String("importar-inp")) return ImportarRedInp(args);
    if (args.size() == 5 && args[2] == QLatin1String("exportar-inp")) return ExportarRedInp(args);
    Opciones o;
    if (!LeerOpciones(args, o, error)) return Fallar(error);
    return Analizar(o);
}
