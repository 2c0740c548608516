#include "aqueduct/MenuInp.h"

#include "aqueduct/ArchivoAcueducto.h"
#include "aqueduct/ExportarInp.h"
#include "aqueduct/ImportarInp.h"
#include "aqueduct/ProyectoAcueducto.h"
#include "base/Dialogos.h"
#include "shell/Sesion.h"
#include "store/Archivos.h"

#include <QFileInfo>

namespace {

const QString FiltroInp = QStringLiteral("*.INP|*.inp");
const QString TituloFontaria = QStringLiteral("Proyecto de Fontaria");
const QString EncabezadoImportar = QStringLiteral("Importar Red EPANET (.inp)...");
const QString EncabezadoExportar = QStringLiteral("Exportar Red EPANET (.inp)...");

bool Pregunta(Dialogos& d, const QString& texto) {
    return d.MostrarMensaje(texto, EncabezadoImportar, TituloFontaria, Botones::SiNo, 1) == Respuesta::Si;
}

}  // namespace

bool ImportarRedInpMenu(ProyectoAcueducto& acu, Sesion& s, Dialogos& d) {
    const auto inp = d.AbrirArchivo(QStringLiteral("Importar una Red EPANET"), FiltroInp, s.RutaDatos(QStringLiteral("Redes")));
    if (!inp) return false;
    RedInp red;
    QString error;
    if (!LeerInp(*inp, red, error)) {
        d.MostrarMensaje(QFileInfo(*inp).fileName() + QStringLiteral("\n") + error, EncabezadoImportar, TituloFontaria);
        return false;
    }
    OpcionesInp o;
    if (red.HayBombasDesdeEmbalse())
        o.bombaComoCarga = Pregunta(
            d, QStringLiteral("La Red tiene Bombas que toman de un Embalse.\n¿Tomar cada una como un Nivel Fijo en su "
                              "Descarga\n(Carga del Embalse + Altura de Diseño de la Bomba)?"));
    if (red.RugosidadNoHazenWilliams()) {
        if (!Pregunta(d, QStringLiteral("La Red usa la Fórmula de Pérdidas %1.\nEl Programa sólo usa Hazen-Williams.\n"
                                        "¿Tomar el Coeficiente C = 100 en todas las Tuberías?")
                             .arg(red.formula)))
            return false;
        o.cPorDefecto = true;
    }
    ProyectoAcueducto nuevo;
    ValoresInicialesACU(nuevo, s);
    nuevo.Cliente = acu.Cliente;
    nuevo.Orden = acu.Orden;
    QStringList informe;
    if (!ConvertirInp(red, o, nuevo, s, informe, error)) {
        d.MostrarMensaje(error, EncabezadoImportar, TituloFontaria);
        return false;
    }
    const auto destino = d.GuardarArchivo(QStringLiteral("Guardar la Red Importada"), QStringLiteral("*.ACU|*.acu"),
                                          s.RutaDatos(QStringLiteral("Redes")));
    if (!destino) return false;
    if (!DestinoReemplazable(*destino, *inp, error) || !GuardarRedImportada(nuevo, *destino, s, error)) {
        d.MostrarMensaje(error, EncabezadoImportar, TituloFontaria);
        return false;
    }
    // The written network is the open project, loaded as the screens load it.
    if (!CargarProyectoACU(nuevo, s, *destino, error)) {
        d.MostrarMensaje(error, EncabezadoImportar, TituloFontaria);
        return false;
    }
    acu = std::move(nuevo);
    d.MostrarMensaje(TextoInforme(informe), EncabezadoImportar, TituloFontaria);
    return true;
}

bool ExportarRedInpMenu(Sesion& s, Dialogos& d) {
    const auto inp = d.GuardarArchivo(QStringLiteral("Exportar la Red a EPANET"), FiltroInp,
                                      s.RutaDatos(QStringLiteral("Redes")));
    if (!inp) return false;
    const QString archivo = s.ArchivoProyectoACU, nombre = s.NombreProyectoACU;
    const int16_t modificados = s.DatosModificados;
    QStringList informe;
    QString error;
    const bool ok = ExportarInp(archivo, *inp, s, informe, error);
    // The load behind the export leaves the session as it found it.
    s.ArchivoProyectoACU = archivo;
    s.NombreProyectoACU = nombre;
    s.DatosModificados = modificados;
    if (!ok) {
        d.MostrarMensaje(error, EncabezadoExportar, TituloFontaria);
        return false;
    }
    d.MostrarMensaje(QStringLiteral("Red Exportada: ") + QFileInfo(*inp).fileName() +
                         (informe.isEmpty() ? QString()
                                            : QStringLiteral("\n\nIdentificadores cambiados y avisos:\n  - ") +
                                                  informe.join(QStringLiteral("\n  - "))),
                     EncabezadoExportar, TituloFontaria);
    return true;
}
