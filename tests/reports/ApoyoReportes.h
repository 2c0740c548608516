#pragma once
// A sample building project analysed as the screen shows it, with the
// session's work database ready for the result reports.

#include "support/Apoyo.h"
#include "analysis/AnalisisRed.h"
#include "analysis/Numeracion.h"
#include "model/ArchivoEdificio.h"
#include "model/ProyectoEdificio.h"
#include "reports/TablasResultados.h"
#include "shell/Inicio.h"
#include "store/Conexion.h"

#include <QDir>
#include <QProcess>
#include <QRectF>
#include <QRegularExpression>
#include <memory>

struct EjemploAnalizado {
    SesionPrueba sp;
    MarcasPrueba marcas;  // after the session, which sets its own
    ProyectoEdificio p;
    DialogosFalsos d;
    std::unique_ptr<AnalisisRed> a;

    // The grids are filled with the marks of `locale`.
    explicit EjemploAnalizado(const char* locale = "C",
                              const QString& nivo = QStringLiteral("Edificio_ApartamentoTipo.nivo"))
        : marcas(locale) {
        sp.s.SeparadorDecimal = SeparadoresActuales().decimal;
        sp.s.SeparadorMiles = SeparadoresActuales().miles;
        QDir().mkpath(sp.Datos(QStringLiteral("Trabajo")));
        CopiarBasesTrabajo(sp.s);
        sp.s.NombreProyecto = QStringLiteral("ejemplo.plm");
        sp.s.ArchivoProyecto = sp.CopiaDeEjemplo(nivo, sp.s.NombreProyecto);
        sp.s.NombreUsuario = QStringLiteral("Oficina Técnica");
        EXPECT_EQ(AbrirConexionProyecto(sp.s), 0);
        EXPECT_TRUE(LeerProyecto(p, sp.s));
        VerificarNumeracion(p, d);
        a = std::make_unique<AnalisisRed>(p, sp.s, d);
        a->Cargar();
    }
    QString Trabajo() const { return sp.Datos(QStringLiteral("Trabajo/Trabajo.mdb")); }
    // The result tables filled, then ImprePresiones made long: rows 7 to
    // `hasta` of nodes "N<i-1>" to "N<i>" at 0.1 l/s.
    void AlargarPresiones(int hasta);
};

// The text of a PDF in pdftotext's reading order, blanks and line ends as
// one space (a header wrapped in its cell reads whole); pages from `desde`
// to `hasta`.
inline QString TextoPdf(const QString& pdf, int desde = 0, int hasta = 0) {
    QStringList args;
    if (desde > 0) args << QStringLiteral("-f") << QString::number(desde) << QStringLiteral("-l") << QString::number(hasta);
    QProcess p;
    p.start(QStringLiteral("pdftotext"), args << pdf << QStringLiteral("-"));
    EXPECT_TRUE(p.waitForFinished(30000));
    return QString::fromUtf8(p.readAllStandardOutput()).simplified();
}

// The words of a PDF with their boxes in points from the page's top left,
// as pdftotext -bbox gives them; pages from 1.
struct PalabraPdf {
    QString texto;
    QRectF caja;
    int pagina = 0;
};
inline std::vector<PalabraPdf> PalabrasPdf(const QString& pdf) {
    QProcess p;
    p.start(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), pdf, QStringLiteral("-")});
    EXPECT_TRUE(p.waitForFinished(30000));
    const QString html = QString::fromUtf8(p.readAllStandardOutput());
    static const QRegularExpression re(QStringLiteral(
        "<page |<word xMin=\"([\\d.]+)\" yMin=\"([\\d.]+)\" xMax=\"([\\d.]+)\" yMax=\"([\\d.]+)\">([^<]*)</word>"));
    std::vector<PalabraPdf> palabras;
    int pagina = 0;
    for (auto it = re.globalMatch(html); it.hasNext();) {
        const auto m = it.next();
        if (m.captured(0).startsWith(QLatin1String("<page"))) {
            ++pagina;
            continue;
        }
        palabras.push_back({m.captured(5), QRectF(QPointF(m.captured(1).toDouble(), m.captured(2).toDouble()),
                                                  QPointF(m.captured(3).toDouble(), m.captured(4).toDouble())),
                            pagina});
    }
    return palabras;
}

inline void EjemploAnalizado::AlargarPresiones(int hasta) {
    QString error;
    ASSERT_TRUE(LleneTablasResultados(*a, p, sp.s, OpcionesResultados{}, error)) << error.toStdString();
    Conexion c;
    ASSERT_TRUE(c.Abrir(Trabajo()));
    Consulta q(c, QStringLiteral("INSERT INTO ImprePresiones (Numero, NodoI, Nodoj, Caudal) VALUES (?,?,?,?)"));
    for (int i = 7; i <= hasta; ++i)
        ASSERT_TRUE(q.Ejecutar({i, QStringLiteral("N%1").arg(i - 1), QStringLiteral("N%1").arg(i), 0.1}));
}
