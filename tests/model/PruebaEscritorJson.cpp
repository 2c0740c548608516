#include "model/EscritorJson.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cmath>
#include <charconv>
#include <cstdio>
#include <gtest/gtest.h>
#include <limits>

namespace {

QByteArray Bytes(const EscritorJson& j) { return QByteArray::fromStdString(j.Bytes()); }

// The writer lays out what the toolkit's document lays out for the same
// members given in its order (by name), nested objects, lists and the empty
// ones included, so the two kinds of output of the program read alike.
TEST(EscritorJson, LaMismaDisposicionQueElDocumento) {
    QJsonObject o;
    o[QStringLiteral("A")] = 3;
    o[QStringLiteral("B")] = QJsonObject{{QStringLiteral("c"), true}, {QStringLiteral("d"), QJsonArray{1, 2}}};
    o[QStringLiteral("E")] = QJsonArray{};
    o[QStringLiteral("F")] = QJsonObject{};
    o[QStringLiteral("G")] = QJsonArray{QJsonObject{{QStringLiteral("h"), QStringLiteral("x")}}};
    EscritorJson j;
    j.AbrirObjeto();
    j.Entero("A", 3);
    j.AbrirObjeto("B");
    j.Logico("c", true);
    j.AbrirLista("d");
    j.Entero(nullptr, 1);
    j.Entero(nullptr, 2);
    j.CerrarLista();
    j.CerrarObjeto();
    j.AbrirLista("E");
    j.CerrarLista();
    j.AbrirObjeto("F");
    j.CerrarObjeto();
    j.AbrirLista("G");
    j.AbrirObjeto();
    j.Texto("h", QStringLiteral("x"));
    j.CerrarObjeto();
    j.CerrarLista();
    j.CerrarObjeto();
    j.Terminar();
    EXPECT_EQ(Bytes(j), QJsonDocument(o).toJson(QJsonDocument::Indented));
}

// Texts with every character JSON must escape, accents and a character
// beyond the basic plane read back as they were; numbers read back to the
// same double; -0 is written 0 and what is not finite is null.
TEST(EscritorJson, TextosYNumerosSeLeenComoEran) {
    const QString texto = QStringLiteral("\"Válvula\" \\ 1/2\"\n\tfin\r\b\f") + QChar(0x01) + QChar(0x1F) +
                          QString::fromUcs4(U"\U0001F6B0");
    const double numeros[] = {0.1, 1.0 / 3.0, 1e-300, 1e21, 123456789.125, -2.5e-9,
                              std::numeric_limits<double>::max(), std::numeric_limits<double>::denorm_min()};
    EscritorJson j;
    j.AbrirObjeto();
    j.Texto("t", texto);
    j.AbrirLista("n");
    for (const double d : numeros) j.Numero(nullptr, d);
    j.CerrarLista();
    j.Numero("menosCero", -0.0);
    j.Numero("nan", std::nan(""));
    j.Numero("inf", -std::numeric_limits<double>::infinity());
    j.Entero("grande", -9007199254740993LL);
    j.CerrarObjeto();
    QJsonParseError e;
    const QJsonObject o = QJsonDocument::fromJson(Bytes(j), &e).object();
    ASSERT_EQ(e.error, QJsonParseError::NoError) << Bytes(j).toStdString();
    EXPECT_EQ(o[QStringLiteral("t")].toString(), texto);
    const QJsonArray n = o[QStringLiteral("n")].toArray();
    ASSERT_EQ(n.size(), qsizetype(std::size(numeros)));
    for (qsizetype i = 0; i < n.size(); ++i) EXPECT_EQ(n[i].toDouble(), numeros[i]) << i;
    EXPECT_TRUE(Bytes(j).contains("\"menosCero\": 0,"));
    EXPECT_TRUE(o[QStringLiteral("nan")].isNull());
    EXPECT_TRUE(o[QStringLiteral("inf")].isNull());
    EXPECT_TRUE(Bytes(j).contains("\"grande\": -9007199254740993"));
}

// Written to a file as the buffer fills: a document far beyond one buffer
// arrives whole and in order.
TEST(EscritorJson, AUnArchivoPorTandas) {
    FILE* f = tmpfile();
    ASSERT_NE(f, nullptr);
    {
        EscritorJson j(f);
        j.AbrirLista();
        for (int i = 0; i < 50000; ++i) {
            j.AbrirObjeto();
            j.Entero("i", i);
            j.CerrarObjeto();
        }
        j.CerrarLista();
        j.Terminar();
    }
    rewind(f);
    QByteArray todo;
    char b[4096];
    for (size_t n; (n = fread(b, 1, sizeof b, f)) > 0;) todo.append(b, qsizetype(n));
    fclose(f);
    const QJsonArray a = QJsonDocument::fromJson(todo).array();
    ASSERT_EQ(a.size(), 50000);
    EXPECT_EQ(a[49999].toObject()[QStringLiteral("i")].toInt(), 49999);
    EXPECT_TRUE(todo.endsWith("]\n"));
}

}  // namespace

// The quick path for typed values writes what std::to_chars writes: the
// edges of its range (three decimals, 1e5 for whole numbers, 1e12), values
// that only look decimal (0.1 + 0.2) and signs.
TEST(EscritorJson, DecimalCortoComoToChars) {
    const double valores[] = {0.001, 0.005, 0.01, 0.1, 0.5, 1, 2.5, 12.345, 99.999, 4.5, 1234.56, 99999, 100000,
                              100000.5, 123456.789, 999999999999.999, 1e12, 1e11, 0.1 + 0.2, 1.0 / 3.0, 0.0005,
                              -0.25, -12.345, -99999, -100000, 48.207, 5.882365365e-09, 30851};
    for (const double v : valores) {
        char esperado[32], rapido[32];
        const std::string e(esperado, std::to_chars(esperado, esperado + 32, v).ptr);
        char* fin = DecimalCorto(rapido, v);
        if (fin) EXPECT_EQ(std::string(rapido, fin), e) << e;
        EscritorJson j;
        j.Numero(nullptr, v);
        EXPECT_EQ(j.Bytes(), e);
    }
    char b[32];
    EXPECT_NE(DecimalCorto(b, 12.345), nullptr);  // the path is taken where it should be
    EXPECT_EQ(DecimalCorto(b, 0.1 + 0.2), nullptr);
    EXPECT_EQ(DecimalCorto(b, 100000), nullptr);
}
