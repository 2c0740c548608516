#include "analysis/Numeracion.h"

#include "analysis/IndiceNombres.h"
#include "base/Dialogos.h"
#include "model/ProyectoEdificio.h"

QString EncabezadoErrorNumeracion() { return QStringLiteral("Error en la Numeración..."); }

QString MensajeErrorNumeracion(int ramal, const QString& nodoI, const QString& nodoJ) {
    return QStringLiteral("Existe un Error en la Numeración de los Ramales...\n") + QStringLiteral("Ramal-> ") +
           QString::number(ramal) + QStringLiteral("   ( I ) = ") + nodoI + QStringLiteral("  ó  ") +
           QStringLiteral(" ( J ) = ") + nodoJ + QStringLiteral("\n¡Debe Corregir el Error para realizar el Análisis!");
}

QString MensajeNodoDesconectado(int ramal, const QString& nodoI) {
    return QStringLiteral("El Nodo-> ( ") + nodoI + QStringLiteral("  del Ramal: ") + QString::number(ramal) +
           QStringLiteral(" )\n¡Este Nodo está Desconectado!\nDebe Corregir el Error para Realizar el Análisis...");
}

QString LugarDeRamal(const ProyectoEdificio& p, int ramal) {
    return LugarRamal(ramal, p.NodoI[ramal], p.Nodoj[ramal]);
}

void ReportarNodoDesconectado(ProyectoEdificio& p, Dialogos& d, int ramal) {
    // The chain that runs on after a refused numbering meets the same node.
    if (p.ErrorNumeracion == 0)
        d.MostrarMensaje(MensajeNodoDesconectado(ramal, p.NodoI[ramal]), EncabezadoErrorNumeracion(),
                         TituloProyectoFontaria());
    p.ErrorNumeracion = 1;
}

void VerificarNumeracion(ProyectoEdificio& p, Dialogos& d) {
    try {
        const int n = p.NumeroRamales;
        const int ultimo = p.NumeroRamales + 1;  // overflows at the 16-bit limit
        p.NumeroNodoI.Redim(ultimo);
        p.NumeroNodoJ.Redim(ultimo);
        for (int i = 1; i <= n; ++i) {
            p.NumeroNodoI[i] = i;
            p.NumeroNodoJ[i] = i + 1;
        }
        p.ErrorNumeracion = 0;

        // Branch 1 is not tested for equal ends.
        IndiceNombres inicios(n);
        if (n >= 1) inicios.Agregar(p.NodoI[1], 1);
        for (int k = 2; k <= n; ++k) {
            if (p.Nodoj[k] == p.NodoI[k]) {
                d.MostrarMensaje(MensajeErrorNumeracion(k, p.NodoI[k], p.Nodoj[k]), EncabezadoErrorNumeracion(),
                                 TituloProyectoFontaria());
                p.ErrorNumeracion = 1;
                return;
            }
            if (p.NodoI[k] != p.Nodoj[k - 1]) {
                const int j = inicios.Primero(p.NodoI[k]);
                if (j > 0) p.NumeroNodoI[k] = p.NumeroNodoI[j];
            }
            inicios.Agregar(p.NodoI[k], k);
        }

        // Slots 1, 2 and the last are connected from the start: branch 2 may
        // leave the origin.
        Arreglo<bool> conectado(ultimo);
        conectado[1] = true;
        conectado[2] = true;
        conectado[ultimo] = true;
        p.ErrorNumeracion = 0;
        IndiceNombres finales(n);
        for (int k = 2; k <= n; ++k) {
            finales.Agregar(p.Nodoj[k - 1], k - 1);
            if (finales.Primero(p.NodoI[k]) > 0) conectado[k] = true;
        }
        for (int i = 1; i <= ultimo; ++i)
            if (!conectado[i]) {
                ReportarNodoDesconectado(p, d, i);
                return;
            }
    } catch (const ErrorEjecucion&) {
        // Trapped: the routine ends without a message.
    }
}
