#include "analysis/Numeracion.h"
#include "app/LineaComandos.h"
#include "app/SalidaEdificio.h"
#include "base/ErrorEjecucion.h"
#include "model/ProyectoEdificio.h"
#include "shell/Sesion.h"
#include "takeoff/Computos.h"

// fontaria computos X.plm [--json]
int VerboComputos(const QStringList& args) {
    const ArgumentosVerbo a = LeerArgumentos(args, {}, {QStringLiteral("json")});
    if (!a.error.isEmpty() || a.archivo.isEmpty())
        return Fallar(a.error.isEmpty() ? QStringLiteral("Uso: fontaria computos X.plm [--json]") : a.error);
    const bool json = a.Tiene(QStringLiteral("json"));

    Sesion s;
    PrepararSesion(s);
    DialogosConsola d;
    d.silencioso = json;
    ProyectoEdificio p;
    if (!CargarParaVerbo(p, s, a.archivo)) return Salida::Falla;

    PantallaComputos pantalla(p, s, d);
    try {
        // The verification runs as the command runs it; its flag is not looked at.
        VerificarNumeracion(p, d);
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
        t += QStringLiteral("\n== ") + Computos::TituloPagina(k + 1) + QStringLiteral(" ==\n");
        for (int f = 1; f <= paginas[k]->Filas(); ++f)
            t += paginas[k]->Texto(f, 1) + QStringLiteral(" | ") + paginas[k]->Texto(f, 2) + QLatin1Char('\n');
    }
    Imprimir(t);
    return Salida::Bien;
}
