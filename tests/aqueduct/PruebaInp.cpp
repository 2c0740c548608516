// The .inp exchange format: a project through export and import comes back
// the same, a US-units file with one of each element the model cannot hold
// is imported with the list of them, and malformed files are refused with
// their line and nothing written.

#include "RedPrueba.h"
#include "support/Apoyo.h"

#include "aqueduct/ArchivoAcueducto.h"
#include "aqueduct/ExportarInp.h"
#include "aqueduct/ImportarInp.h"
#include "aqueduct/MenuInp.h"
#include "aqueduct/SolverMalla.h"
#include "store/Conexion.h"

#include <QFile>
#include <QRegularExpression>
#include <gtest/gtest.h>

namespace {

// Every row of the three tables as text, for an exact comparison.
QStringList Filas(const QString& acu) {
    Conexion c;
    EXPECT_EQ(AbrirConexion(c, acu), 0);
    QStringList filas;
    for (const char* tabla : {"Generales", "Tramos", "Nodos"}) {
        const int columnas = int(c.ColumnasDe(tabla).size());
        Consulta q(c, QStringLiteral("SELECT * FROM %1 ORDER BY rowid").arg(tabla));
        while (q.Siguiente()) {
            QStringList f;
            for (int i = 0; i < columnas; ++i) f << (q.Columna(i).isNull() ? "null" : q.Columna(i).toString());
            filas << tabla + QStringLiteral(": ") + f.join(QLatin1Char('|'));
        }
    }
    return filas;
}

ProyectoAcueducto Cargado(SesionPrueba& sp, const QString& acu) {
    ProyectoAcueducto p;
    QString error;
    EXPECT_TRUE(CargarProyectoACU(p, sp.s, acu, error)) << error.toStdString();
    return p;
}

std::map<QString, double> Cotas(ProyectoAcueducto p, const Sesion& s) {
    p.CasoDemanda = 1;
    AnalizarMalla(p, s);
    std::map<QString, double> r;
    for (int n = 1; n <= p.NumeroNodosACU; ++n) r[p.Nodos[n]] = p.CotaPiezometrica[n];
    return r;
}

// One of each element the model cannot hold, in US units: 100 GPM at J1,
// 50 GPM at J2, elevations and lengths in feet, diameters in inches.
const char* RedUS = "[TITLE]\r\n"
                    "Red de prueba US\r\n"
                    "\r\n"
                    "[junctions]\r\n"
                    ";ID\tElev\tDemand\tPattern\r\n"
                    "J1\t700\t100\tPAT1\r\n"
                    "J2  650  50   ; comentario\r\n"
                    "J3  640\r\n"
                    "[RESERVOIRS]\r\n"
                    "R1  600\r\n"
                    "[TANKS]\r\n"
                    "T1  800  20  0  30  50  0\r\n"
                    "[PIPES]\r\n"
                    "P1  J1  J2  1000  8   130.5  0.5  Open\r\n"
                    "P2  J2  J3  500   6   100\r\n"
                    "P3  T1  J1  2000  12  120\r\n"
                    "P4  J3  J2  300   6   100    0    Closed\r\n"
                    "[PUMPS]\r\n"
                    "PU1  R1  J1  HEAD C1\r\n"
                    "[VALVES]\r\n"
                    "V1  J2  J3  6  PRV  50\r\n"
                    "[CURVES]\r\n"
                    "C1  0     200\r\n"
                    "C1  500   150\r\n"
                    "C1  1000  50\r\n"
                    "[PATTERNS]\r\n"
                    "PAT1  1.0  1.2  0.8\r\n"
                    "[TIMES]\r\n"
                    "Duration  24:00\r\n"
                    "[CONTROLS]\r\n"
                    "LINK P2 CLOSED IF NODE T1 BELOW 5\r\n"
                    "[OPTIONS]\r\n"
                    "Units  GPM\r\n"
                    "Headloss  H-W\r\n"
                    "[END]\r\n";

}  // namespace

TEST(Inp, ExportarEImportarDaElMismoProyecto) {
    for (const char* ejemplo : {"EjemploRedA", "EjemploRedB"}) {
        SesionPrueba sp;
        MarcasPrueba m("es_ES");  // the file is written in C form whatever the marks
        const QString original = sp.s.RutaDatos("original.acu");
        const QString acu = sp.CopiaDeEjemplo(QStringLiteral("%1.nivo").arg(ejemplo), "original.acu");
        ProyectoAcueducto p = Cargado(sp, acu);
        // A name the format cannot take, coordinates, and inches.
        const QString viejo = p.Nodos[2];
        for (int t = 1; t <= p.NumeroTramos; ++t)
            for (QString* e : {&p.Inicio[t], &p.Final[t]})
                if (*e == viejo) *e = "Nodo dos";
        p.Nodos[2] = "Nodo dos";
        p.X[1] = 1000.125;
        p.Y[1] = -20.5;
        p.X[2] = 0.0;
        p.Y[2] = 3.0;
        p.Y[3] = 7.25;  // alone
        if (QLatin1String(ejemplo) == QLatin1String("EjemploRedB")) {
            p.OpcionDiametro = 3;
            p.Diametro[1] = 6.065;
        }
        QString error;
        ASSERT_TRUE(SalvarProyectoACU(p, sp.s, error)) << error.toStdString();

        QStringList informe;
        const QString inp = sp.Datos("red.inp");
        ASSERT_TRUE(ExportarInp(original, inp, sp.s, informe, error)) << error.toStdString();
        EXPECT_TRUE(informe.contains("Nodo «Nodo dos» → «Nodo_dos»")) << informe.join('\n').toStdString();
        const QString texto = QString::fromUtf8(LeerArchivo(inp));
        EXPECT_TRUE(texto.contains("Nodo_dos")) << ejemplo;
        EXPECT_TRUE(texto.contains("[COORDINATES]"));

        const QString copia = sp.Datos("copia.acu");
        ASSERT_TRUE(ImportarInp(inp, copia, OpcionesInp(), sp.s, informe, error)) << error.toStdString();
        EXPECT_EQ(informe, QStringList()) << informe.join('\n').toStdString();
        EXPECT_EQ(Filas(copia), Filas(original)) << ejemplo;

        // Without this program's comments another program sees the pipes at
        // their design length and the mean demands: it solves to the same
        // heads (checked here with this program's own law).
        QString ajeno = texto;
        ajeno.remove(QRegularExpression(";Fontaria[^\n]*"));
        const QString otro = sp.Datos("otro.acu");
        ASSERT_TRUE(ImportarInp(EscribirArchivo(sp.Datos("ajeno.inp"), ajeno.toUtf8()), otro, OpcionesInp(), sp.s,
                                informe, error))
            << error.toStdString();
        const auto a = Cotas(Cargado(sp, original), sp.s);
        const auto b = Cotas(Cargado(sp, otro), sp.s);
        ASSERT_EQ(a.size(), b.size());
        for (const auto& [nombre, cota] : a)
            EXPECT_NEAR(b.at(QString(nombre).replace(' ', '_')), cota, 1e-6) << ejemplo;
    }
}

TEST(Inp, UnidadesUSYElementosQueElModeloNoTiene) {
    SesionPrueba sp;
    RedInp red;
    QString error;
    ASSERT_TRUE(LeerTextoInp(QString::fromLatin1(RedUS), red, error)) << error.toStdString();
    EXPECT_TRUE(red.HayBombasDesdeEmbalse());

    ProyectoAcueducto p;
    ValoresInicialesACU(p, sp.s);
    QStringList informe;
    ASSERT_TRUE(ConvertirInp(red, OpcionesInp(), p, sp.s, informe, error)) << error.toStdString();
    const QString texto = TextoInforme(informe);
    for (const char* falta : {"Patrón «PAT1»", "Bomba «PU1» entre «R1» y «J1»", "Válvula «V1» (PRV)", "Curvas: C1",
                              "Patrones de tiempo: PAT1", "Controles: 1", "Pérdida menor 0.50 de la tubería «P1»",
                              "Tubería cerrada «P4»", "une a la red: R1", "Simulación de 24:00 horas", "«P1» (130.50 → 131)",
                              "El tanque «T1» se toma como nivel fijo"})
        EXPECT_TRUE(texto.contains(QString::fromUtf8(falta))) << falta << "\n" << texto.toStdString();

    EXPECT_EQ(p.Proyecto, "Red de prueba US");
    EXPECT_EQ(p.OpcionDiametro, 3);
    EXPECT_EQ(p.CasoPorcentaje, 2);
    ASSERT_EQ(p.NumeroTramos, 3);  // P4 closed
    EXPECT_DOUBLE_EQ(p.Longitud[1], 304.8);  // 1000 ft x 0.3048
    EXPECT_DOUBLE_EQ(DiametroMetros(p, 1), 0.2032);  // 8 in = 203.2 mm
    EXPECT_EQ(p.CoeficienteC[1], 131);
    const int j1 = Nodo(p, "J1"), j2 = Nodo(p, "J2"), t1 = Nodo(p, "T1");
    EXPECT_NEAR(p.ConsumoMedio[j1], 6.30902, 1e-5);  // 100 gal x 3.785411784 l / 60 s
    EXPECT_NEAR(p.ConsumoMedio[j2], 3.15451, 1e-5);
    EXPECT_DOUBLE_EQ(p.CotaTerreno[j2], 198.12);       // 650 ft
    EXPECT_DOUBLE_EQ(p.CotaBombaEstanque[t1], 249.936);  // (800 + 20) ft
    EXPECT_EQ(p.CotaBombaEstanque[j1], 0.0);

    // Agreed: the pump is a fixed head at J1, the reservoir's 600 ft plus
    // the middle point of its curve, 150 ft: 750 ft = 228.6 m.
    OpcionesInp o;
    o.bombaComoCarga = true;
    ProyectoAcueducto q;
    ValoresInicialesACU(q, sp.s);
    ASSERT_TRUE(ConvertirInp(red, o, q, sp.s, informe, error));
    EXPECT_NEAR(q.CotaBombaEstanque[Nodo(q, "J1")], 228.6, 1e-9);
    EXPECT_FALSE(TextoInforme(informe).contains("Bomba «PU1» entre"));

    // Another friction formula: refused, or every C the default with consent.
    QString dw = QString::fromLatin1(RedUS).replace("Headloss  H-W", "Headloss  D-W");
    ASSERT_TRUE(LeerTextoInp(dw, red, error));
    ProyectoAcueducto r;
    ValoresInicialesACU(r, sp.s);
    EXPECT_FALSE(ConvertirInp(red, OpcionesInp(), r, sp.s, informe, error));
    EXPECT_TRUE(error.contains("Darcy-Weisbach")) << error.toStdString();
    o.cPorDefecto = true;
    ASSERT_TRUE(ConvertirInp(red, o, r, sp.s, informe, error));
    EXPECT_EQ(r.CoeficienteC[1], 100);
    EXPECT_TRUE(TextoInforme(informe).contains("Rugosidades D-W de todas las tuberías: se tomó C = 100"));
}

TEST(Inp, ArchivosMalFormadosSeRechazanSinEscribirNada) {
    const char* base = "[JUNCTIONS]\nA 10 1\nB 9 1\n[RESERVOIRS]\nR 50\n[PIPES]\nP1 R A 100 150 120\nP2 A B 100 150 120\n";
    struct Caso {
        QString texto;
        int linea;
        const char* dice;
    };
    const std::vector<Caso> casos = {
        {"[JUNCTIONS]\nA 10\n[RESERVOIRS]\nR 50\n", 4, "sin la sección [PIPES]"},
        {"[RESERVOIRS]\nR 50\n[PIPES]\nP1 R A 100 150 120\n[END]\n", 5, "sin la sección [JUNCTIONS]"},
        {QString::fromLatin1(base) + "P3 B Z 100 150 120\n", 9, "el nodo «Z» no está definido"},
        {QString::fromLatin1(base).replace("P2 A B 100", "P2 A B abc"), 8, "«abc» no es un número (longitud"},
        {QString::fromLatin1(base).replace("B 9 1", "A 9 1"), 3, "el nodo «A» ya fue definido en la línea 2"},
        {QString::fromLatin1(base).replace("P2 A", "P1 A"), 8, "el enlace «P1» ya fue definido en la línea 7"},
        {"A 10\n" + QString::fromLatin1(base), 1, "hay datos antes de la primera sección"},
        {QString::fromLatin1(base) + "[OPTIONS]\nUNITS GALLONS\n", 10, "unidades de caudal desconocidas"},
    };
    SesionPrueba sp;
    const QString destino = sp.Datos("no.acu");
    for (const char* marcas : {"es_ES", "C"}) {
        MarcasPrueba m(marcas);
        for (const Caso& c : casos) {
            QStringList informe;
            QString error;
            const QString inp = EscribirArchivo(sp.Datos("mal.inp"), c.texto.toUtf8());
            EXPECT_FALSE(ImportarInp(inp, destino, OpcionesInp(), sp.s, informe, error)) << c.dice;
            EXPECT_TRUE(error.startsWith(QStringLiteral("Línea %1: ").arg(c.linea))) << error.toStdString();
            EXPECT_TRUE(error.contains(QString::fromUtf8(c.dice))) << error.toStdString();
            EXPECT_FALSE(QFile::exists(destino));
        }
        // A comma is never a decimal mark in this format, whatever the locale.
        RedInp red;
        QString error;
        EXPECT_FALSE(LeerTextoInp(QString::fromLatin1(base).replace("A 10 1", "A 10,5 1"), red, error));
        EXPECT_TRUE(error.startsWith("Línea 2: «10,5» no es un número")) << error.toStdString();
        ASSERT_TRUE(LeerTextoInp(QString::fromLatin1(base).replace("A 10 1", "A 10.5 1"), red, error));
        EXPECT_DOUBLE_EQ(red.nodos[0].cota, 10.5 * 0.3048);  // no [OPTIONS]: GPM and feet, the default
    }
}

TEST(Inp, LineaDeComandos) {
    SesionPrueba sp;
    const QStringList entorno{QStringLiteral("FONTARIA_DATOS=") + sp.s.DirectorioDatos};
    const QString inp = EscribirArchivo(sp.Datos("us.inp"), RedUS);
    const QString acu = sp.Datos("us.acu");
    QString salida, errores;
    ASSERT_EQ(EjecutarPrograma({"acueducto", "importar-inp", inp, acu, "--bomba-como-carga"}, &salida, &errores,
                               entorno),
              0)
        << errores.toStdString();
    EXPECT_TRUE(salida.contains("Válvula «V1» (PRV)")) << salida.toStdString();
    EXPECT_TRUE(salida.contains("Bomba «PU1»: nivel fijo de 228.60 m")) << salida.toStdString();
    const QString vuelta = sp.Datos("vuelta.inp");
    ASSERT_EQ(EjecutarPrograma({"acueducto", "exportar-inp", acu, vuelta}, &salida, &errores, entorno), 0)
        << errores.toStdString();
    EXPECT_TRUE(LeerArchivo(vuelta).contains("\n1\tJ1\tJ2\t304.8\t203.2\t131\t0\tOpen")) << LeerArchivo(vuelta).toStdString();

    const QString mal = EscribirArchivo(sp.Datos("mal.inp"), "[PIPES]\nP1 A B 1 1 1\n");
    EXPECT_EQ(EjecutarPrograma({"acueducto", "importar-inp", mal, sp.Datos("mal.acu")}, &salida, &errores, entorno), 1);
    EXPECT_TRUE(errores.startsWith("Línea 2: el archivo termina sin la sección [JUNCTIONS]")) << errores.toStdString();
    EXPECT_FALSE(QFile::exists(sp.Datos("mal.acu")));
}

TEST(Inp, ComandosDelMenu) {
    SesionPrueba sp;
    DialogosFalsos d;
    ProyectoAcueducto acu;
    const QString inp = EscribirArchivo(sp.Datos("us.inp"), RedUS);
    const QString acuNuevo = sp.Datos("us.acu");
    // The pump question answered yes; the file dialogs choose the two files.
    d.archivos = {inp, acuNuevo};
    d.respuestas = {Respuesta::Si};
    ASSERT_TRUE(ImportarRedInpMenu(acu, sp.s, d)) << d.Ultimo().texto.toStdString();
    EXPECT_TRUE(d.mensajes[0].texto.startsWith("La Red tiene Bombas que toman de un Embalse."));
    EXPECT_EQ(d.Ultimo().encabezado, "Importar Red EPANET (.inp)...");
    EXPECT_TRUE(d.Ultimo().texto.contains("Válvula «V1» (PRV)"));
    EXPECT_EQ(sp.s.ArchivoProyectoACU, acuNuevo);
    EXPECT_NEAR(acu.CotaBombaEstanque[Nodo(acu, "J1")], 228.6, 1e-9);

    d.archivos = {sp.Datos("vuelta.inp")};
    ASSERT_TRUE(ExportarRedInpMenu(sp.s, d));
    EXPECT_EQ(d.Ultimo().texto, "Red Exportada: vuelta.inp");
    EXPECT_EQ(sp.s.ArchivoProyectoACU, acuNuevo);

    // A malformed file is shown and asks for no target.
    d.archivos = {EscribirArchivo(sp.Datos("mal.inp"), "[JUNCTIONS]\nA 1\n")};
    EXPECT_FALSE(ImportarRedInpMenu(acu, sp.s, d));
    EXPECT_EQ(d.Ultimo().texto, "mal.inp\nLínea 2: el archivo termina sin la sección [PIPES].");
    EXPECT_TRUE(d.archivos.empty());
    EXPECT_EQ(sp.s.ArchivoProyectoACU, acuNuevo);
}
