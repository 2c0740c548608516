#include "app/LineaComandos.h"

int VerboTanque(const QStringList&) { return Fallar(QStringLiteral("Este verbo aún no está disponible.")); }
