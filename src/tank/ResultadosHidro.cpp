#include "tank/ResultadosHidro.h"

#include "base/Nivo.h"

QStringList ResultadosHidro::Etiquetas() {
    return {QStringLiteral("Caudal de Bombeo (l/s):"),      QStringLiteral("Voumen Total del Tanque (lts):"),
            QStringLiteral("Volumen Mínimo de Agua (lts):"), QStringLiteral("Volumen Util de Agua (lts):"),
            QStringLiteral("Voumen Máximo de Agua (lts):"),  QStringLiteral("Potencia de la Bomba (hp):"),
            QStringLiteral("Potencia del Motor (hp):")};
}

ResultadosHidro::ResultadosHidro(const DatosTanque& datos) : Resultado(CalcularTanque(datos)) {
    const ResultadoTanque& r = Resultado;
    Marco = r.Titulo;
    for (double v : {r.QB, r.VolumenTotal, r.VolumenMinimo, r.VolumenUtil, r.VolumenMaximo, r.PotenciaBomba,
                     r.PotenciaMotor})
        Valores << Formato(v, QStringLiteral("#,##0.00"));
    auto porcentaje = [&](double volumen) {
        const double v = r.VolumenTotal > 0.0 ? volumen * 100.0 / r.VolumenTotal : 0.0;
        return Formato(v, QStringLiteral("0.00")) + QLatin1Char('%');
    };
    PorcentajeUtil = porcentaje(r.VolumenUtil);
    PorcentajeMaximo = porcentaje(r.VolumenMaximo);
}
