// The result reports of a generated 5,000-branch building: filling the work
// tables from the analysis screen's grids, then the report itself, split
// into reading its tables and composing and writing the file, in PDF and as
// a workbook.  The analysis runs once, outside the measure.
//
//   cmake -S . -B build-bench -G Ninja -DCMAKE_BUILD_TYPE=Release -DFONTARIA_BENCH=ON
//   ninja -C build-bench BancoReportes datos && ./build-bench/bench/BancoReportes

#include "BancoConVentanas.h"
#include "ProyectoGenerado.h"
#include "analysis/AnalisisRed.h"
#include "analysis/Numeracion.h"
#include "reports/TablasResultados.h"
#include "reports/motor/Reporte.h"
#include "shell/Inicio.h"

#include <QDir>
#include <chrono>
#include <memory>

namespace {

constexpr int Ramales = 5000;

// The generated project analysed, and a data folder with fresh work databases.
struct Banco {
    QTemporaryDir datos;
    Sesion s;
    DialogosMudos d;
    ProyectoEdificio p;
    std::unique_ptr<AnalisisRed> a;

    Banco() {
        s.RutaPrograma = QStringLiteral(FONTARIA_RUTA_PROGRAMA);
        s.DirectorioDatos = datos.path();
        QDir().mkpath(s.RutaDatos(QStringLiteral("Trabajo")));
        CopiarBasesTrabajo(s);
        s.ArchivoProyecto = LosArchivos().Copia(Ramales, QStringLiteral("reportes.plm"));
        ValoresIniciales(p, s);
        AbrirConexionProyecto(s);
        LeerProyecto(p, s);
        VerificarNumeracion(p, d);
        if (p.ErrorNumeracion != 0) qFatal("numeración");
        a = std::make_unique<AnalisisRed>(p, s, d);
        a->Cargar();
    }
    void Llenar() {
        QString error;
        if (!LleneTablasResultados(*a, p, s, OpcionesResultados{}, error)) qFatal("%s", qPrintable(error));
    }
    QString Trabajo() const { return s.RutaDatos(QStringLiteral("Trabajo/Trabajo.mdb")); }
};

Banco& ElBanco() {
    static Banco b;
    return b;
}

const char* const Plantillas[] = {"UnidadesGasto", "PerdidasPresiones", "Resultado"};

void BM_LlenarTablas(benchmark::State& state) {
    Banco& b = ElBanco();
    for (auto _ : state) b.Llenar();
    state.counters["ramales"] = Ramales;
    state.counters["filas_unidades"] = b.a->Spread1.Filas();
}

// One report to a file: counters split the reading of the tables from the
// composition and the writing.
void Escribir(benchmark::State& state, bool pdf) {
    Banco& b = ElBanco();
    b.Llenar();
    const QString nombre = QString::fromLatin1(Plantillas[state.range(0)]);
    const QString archivo = b.s.RutaDatos(nombre + (pdf ? QStringLiteral(".pdf") : QStringLiteral(".xlsx")));
    double leer = 0.0, escribir = 0.0;
    for (auto _ : state) {
        const auto t0 = std::chrono::steady_clock::now();
        Reporte r;
        if (!r.Abrir(b.s.RutaPrograma, nombre) || !r.Vincular(b.Trabajo())) qFatal("%s", qPrintable(r.Error()));
        const auto t1 = std::chrono::steady_clock::now();
        if (!(pdf ? r.ExportarPdf(archivo) : r.ExportarXlsx(archivo))) qFatal("%s", qPrintable(r.Error()));
        const auto t2 = std::chrono::steady_clock::now();
        leer += std::chrono::duration<double, std::milli>(t1 - t0).count();
        escribir += std::chrono::duration<double, std::milli>(t2 - t1).count();
    }
    state.SetLabel(nombre.toStdString());
    state.counters["leer_ms"] = benchmark::Counter(leer, benchmark::Counter::kAvgIterations);
    state.counters["escribir_ms"] = benchmark::Counter(escribir, benchmark::Counter::kAvgIterations);
    state.counters["KB"] = double(QFileInfo(archivo).size()) / 1024.0;
}

void BM_Pdf(benchmark::State& state) { Escribir(state, true); }
void BM_Xlsx(benchmark::State& state) { Escribir(state, false); }

}  // namespace

BENCHMARK(BM_LlenarTablas)->Unit(benchmark::kMillisecond)->MinTime(2.0);
BENCHMARK(BM_Pdf)->DenseRange(0, 2)->Unit(benchmark::kMillisecond)->MinTime(2.0);
BENCHMARK(BM_Xlsx)->DenseRange(0, 2)->Unit(benchmark::kMillisecond)->MinTime(2.0);

int main(int argc, char** argv) { return CorrerBancosConVentanas(argc, argv); }
