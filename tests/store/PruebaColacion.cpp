#include "store/Colacion.h"
#include "store/Conexion.h"
#include "support/Apoyo.h"

// Pairs ordered by hand by the Spanish alphabet: case and accents do not
// count, "ñ" is its own letter between "n" and "o", texts compare letter by
// letter (so "10" before "2") and a text comes after its own beginning.
TEST(Colacion, ParesIgualesYMenores) {
    const struct {
        const char *a, *b;
        int signo;  // of a against b
    } casos[] = {
        {"Lavamanos", "LAVAMANOS", 0}, {"lavamanos", "Lavamanos", 0}, {"Ázotea", "azotea", 0},
        {"canción", "CANCION", 0},     {"pingüino", "pinguino", 0},   {"ÉL", "el", 0},
        {"Ázotea", "Zanja", -1},       {"nube", "ñandú", -1},         {"ñandú", "oso", -1},
        {"año", "ano", 1},             {"Ñu", "nu", 1},               {"10", "2", -1},
        {"CODO", "codo de 45", -1},    {"", "a", -1},
    };
    SesionPrueba sp;
    Conexion c;
    ASSERT_TRUE(c.Abrir(sp.ProyectoEnBlanco()));
    for (const auto& k : casos) {
        const QString a = QString::fromUtf8(k.a), b = QString::fromUtf8(k.b);
        EXPECT_EQ(CompararTexto(a, b), k.signo) << k.a << " " << k.b;
        EXPECT_EQ(CompararTexto(b, a), -k.signo) << k.a << " " << k.b;
        // The same through SQL, on a connection of the store.
        Consulta q(c, QStringLiteral("SELECT ?1 = ?2 COLLATE ESPANOL, ?1 < ?2 COLLATE ESPANOL"));
        q.Enlazar({a, b});
        ASSERT_TRUE(q.Siguiente()) << q.Error().toStdString();
        EXPECT_EQ(ComoEntero(q.Columna(0)), k.signo == 0 ? 1 : 0) << k.a << " " << k.b;
        EXPECT_EQ(ComoEntero(q.Columna(1)), k.signo < 0 ? 1 : 0) << k.a << " " << k.b;
    }
}
