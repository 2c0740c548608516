#include "app/LineaComandos.h"

int VerboAnalizar(const QStringList&) { return Fallar(QStringLiteral("Este verbo aún no está disponible.")); }
