#include "pictures/DibujoDeJson.h"

#include "pictures/EsquemaEdificio.h"
#include "pictures/PlanoAcueducto.h"

namespace {

std::unique_ptr<Dibujo> Crear(const QJsonObject& o, QString& error) {
    if (o.value(QStringLiteral("tipo")).toString() == QLatin1String("plano")) {
        DatosPlano d;
        if (!PlanoDeJson(o, d, error)) return nullptr;
        const bool perdida = o.value(QStringLiteral("color")).toString() == QLatin1String("perdida");
        return std::make_unique<PlanoAcueducto>(std::move(d), perdida ? ColorPlano::PerdidaUnitaria : ColorPlano::Velocidad);
    }
    DatosEsquema d;
    if (!EsquemaDeJson(o, d, error)) return nullptr;
    return std::make_unique<EsquemaEdificio>(std::move(d));
}

}  // namespace

std::unique_ptr<Dibujo> DibujoDeJson(const QJsonObject& o, QString& error) {
    std::unique_ptr<Dibujo> d = Crear(o, error);
    if (d) d->PonerBlancoNegro(o.value(QStringLiteral("blancoNegro")).toBool());
    return d;
}
