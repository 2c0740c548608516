#include "shell/CajaMensajes.h"

#include "base/Nivo.h"

#include <algorithm>

QList<BotonMensaje> BotonesDeMensaje(int botones) {
    if (botones == 1) return {{QStringLiteral("No"), 0}, {QStringLiteral("Sí"), 1}};
    if (botones == 2) return {{QStringLiteral("Cancelar"), 2}, {QStringLiteral("No"), 0}, {QStringLiteral("Sí"), 1}};
    return {{QStringLiteral("Aceptar"), 0}};
}

int BotonPorDefecto(int botones, int defecto) {
    if (botones == 1) return defecto == 0 ? 0 : 1;
    if (botones == 2) return defecto == 0 ? 0 : defecto == 1 ? 1 : 2;
    return 0;
}

std::optional<int> ResultadoEscape(int botones) {
    if (botones == 1) return std::nullopt;
    return botones == 2 ? 2 : 0;
}

QString TituloMensaje(const QString& titulo) {
    return Trim(titulo).isEmpty() ? QStringLiteral("Nivo-Caja de Mensajes") : titulo;
}

MedidasMensaje MedirMensaje(const std::function<std::pair<int, int>(int)>& medir, int izquierdaEtiqueta,
                            int arribaEtiqueta, int botones) {
    MedidasMensaje m;
    auto [ancho, alto] = medir(0);
    ancho += 200;
    alto += 350;
    if (ancho + izquierdaEtiqueta + 400 < AnchoMaximoEtiqueta) {
        m.anchoEtiqueta = ancho;
    } else {
        m.anchoEtiqueta = AnchoMaximoEtiqueta;
        m.ajustado = true;
        alto = medir(AnchoMaximoEtiqueta - 200).second + 350;
    }
    m.altoEtiqueta = alto;
    m.altoVentana = alto + arribaEtiqueta + 1400;
    m.anchoVentana = std::max(m.anchoEtiqueta + izquierdaEtiqueta + 400, botones == 0 ? 3900 : 4300);
    return m;
}
