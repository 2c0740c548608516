#include "app/LineaComandos.h"

int VerboAcueducto(const QStringList&) { return Fallar(QStringLiteral("Este verbo aún no está disponible.")); }
