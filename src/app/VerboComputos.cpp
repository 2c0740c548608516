#include "analysis/Numeracion.h"
#include "app/LineaComandos.h"
#include "app/SalidaEdificio.h"
#include "base/ErrorEjecucion.h"
#include "takeoff/Computos.h"

// fontaria computos X.plm [--json]
int VerboComputos(const QStringList& args) {
    const ArgumentosVerbo a = LeerArgumentos(args, {}, {QStringLiteral("json")});
    if (!a.error.isEmpty() || a.archivo.isEmpty()) return FallaDeUso(a, "Uso: fontaria computos X.plm [--json]");
    const bool json = a.Tiene(QStringLiteral("json"));
    ContextoVerbo c(json);
    if (!c.Cargar(a.archivo)) return Salida::Falla;

    Computos pantalla(c.p, c.s, c.d);
    try {
        // The verification runs as the command runs it; its flag is not looked at.
        VerificarNumeracion(c.p, c.d);
        pantalla.Cargar();
    } catch (const ErrorEjecucion& e) {
        return FallaDeCalculo(e, json);
    }

    const Grid* paginas[4] = {&pantalla.Paginas.Piezas, &pantalla.Paginas.Conexiones, &pantalla.Paginas.Reducciones,
                              &pantalla.Paginas.Tuberias};
    const char* claves[4] = {"Piezas", "Conexiones", "Reducciones", "Tuberias"};
    if (json) {
        QJsonObject o;
        for (int k = 0; k < 4; ++k)
            o[QString::fromLatin1(claves[k])] =
                FilasComoJson(*paginas[k], {QStringLiteral("Descripcion"), QStringLiteral("Cantidad")});
        ImprimirJson(o);
        return Salida::Bien;
    }
    QString t = pantalla.Caption + QLatin1Char('\n');
    for (int k = 0; k < 4; ++k) {
        t += QStringLiteral("\n== ") + PaginasComputos::TituloPagina(k + 1) + QStringLiteral(" ==\n");
        for (int f = 1; f <= paginas[k]->Filas(); ++f)
            t += paginas[k]->Texto(f, 1) + QStringLiteral(" | ") + paginas[k]->Texto(f, 2) + QLatin1Char('\n');
    }
    Imprimir(t);
    return Salida::Bien;
}
