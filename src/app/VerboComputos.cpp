#include "app/LineaComandos.h"

int VerboComputos(const QStringList&) { return Fallar(QStringLiteral("Este verbo aún no está disponible.")); }
