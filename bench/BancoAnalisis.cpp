// The building chain on generated projects of 100 to 32,766 branches: the
// first analysis of a file (which stores every assumed size and reduction),
// a later analysis, and the rerun after one assumed diameter is edited in the
// pre-sizing grid.  A project of 32,767 branches overflows NumeroRamales + 1.
//
//   cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=Release -DFONTARIA_BENCH=ON
//   ninja -C build BancoAnalisis && ./build/bench/BancoAnalisis

#include "analysis/AnalisisRed.h"
#include "analysis/Gastos.h"
#include "analysis/Numeracion.h"
#include "base/Dialogos.h"
#include "model/ArchivoEdificio.h"
#include "model/ProyectoEdificio.h"
#include "shell/Sesion.h"
#include "store/Conexion.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <chrono>
#include <map>

namespace {

class DialogosMudos : public Dialogos {
public:
    int MostrarMensaje(const QString&, const QString&, const QString&, int, int defecto, int, const QImage&) override {
        return defecto;
    }
    std::optional<QString> AbrirArchivo(const QString&, const QString&, const QString&) override { return {}; }
    std::optional<QString> GuardarArchivo(const QString&, const QString&, const QString&) override { return {}; }
    std::optional<QString> PedirTexto(const QString&, const QString&, const QString&) override { return {}; }
    std::optional<int> ElegirColor(int) override { return {}; }
    bool AbrirConSistema(const QString&) override { return false; }
    void CursorOcupado(bool) override {}
};

// A riser with two apartments at each floor, listed depth first: the riser
// segment Mk-1 -> Mk, then Mk -> Ak, Mk -> Bk, and the next segment from Mk.
void Generar(ProyectoEdificio& p, int n) {
    p.NumeroRamales = n;
    p.DimensionarRamales(n);
    int piso = 0;
    for (int i = 1; i <= n; ++i) {
        const int tipo = (i - 1) % 3;
        if (tipo == 0) {
            ++piso;
            p.NodoI[i] = QStringLiteral("M%1").arg(piso - 1);
            p.Nodoj[i] = QStringLiteral("M%1").arg(piso);
            p.longitudReal[i] = 3.0;
        } else {
            p.NodoI[i] = QStringLiteral("M%1").arg(piso);
            p.Nodoj[i] = QStringLiteral("%1%2").arg(tipo == 1 ? QLatin1Char('A') : QLatin1Char('B')).arg(piso);
            p.longitudReal[i] = 4.0;
            p.PiezaClave(i, 1) = 5;
            p.PiezaNombre(i, 1) = QStringLiteral("EXCUSADO DE TANQUE");
            p.PiezaUnidades(i, 1) = 3.0;
            p.PiezaCantidad(i, 1) = 1;
            p.PiezaClave(i, 2) = 10;
            p.PiezaNombre(i, 2) = QStringLiteral("LAVAMANOS");
            p.PiezaUnidades(i, 2) = 1.0;
            p.PiezaCantidad(i, 2) = 2;
            p.NPiezas[i] = 2;
        }
        p.ConexionClave(i, 1) = 5;
        p.ConexionNombre(i, 1) = QStringLiteral("CODO DE 90 GRADOS");
        p.ConexionCantidad(i, 1) = 2;
        p.ConexionAutomatica(i, 1) = true;
        p.ConexionClave(i, 2) = 13;
        p.ConexionNombre(i, 2) = QStringLiteral("MEDIDOR DE AGUA");
        p.ConexionLongitud(i, 2) = 5.0;
        p.ConexionCantidad(i, 2) = 1;
        p.NConexiones[i] = 2;
    }
    p.NumeroNodos = n + 1;
    p.DimensionarNodos(n + 1);
    for (int k = 1; k <= n + 1; ++k) p.CotaPiso[k] = 0.0;
}

// One blank-sized project file per size, kept for the whole run.
struct Archivos {
    QTemporaryDir dir;
    std::map<int, QString> porTamano;

    QString Plantilla(int n) {
        auto it = porTamano.find(n);
        if (it != porTamano.end()) return it->second;
        Sesion s;
        s.RutaPrograma = QStringLiteral(FONTARIA_RUTA_PROGRAMA);
        ProyectoEdificio p;
        ValoresIniciales(p, s);
        Generar(p, n);
        const QString ruta = dir.path() + QStringLiteral("/plantilla%1.plm").arg(n);
        QFile::copy(s.RutaImagen(QStringLiteral("Proyecto.nivo")), ruta);
        QFile(ruta).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
        s.ArchivoProyecto = ruta;
        QString error;
        if (!SalvarProyecto(p, s, error)) qFatal("%s", qPrintable(error));
        s.ConexionProyecto.Cerrar();
        porTamano[n] = ruta;
        return ruta;
    }
    QString Copia(int n, const QString& nombre) {
        const QString ruta = dir.path() + QLatin1Char('/') + nombre;
        QFile::remove(ruta);
        QFile::copy(Plantilla(n), ruta);
        QFile(ruta).setPermissions(QFile::ReadOwner | QFile::WriteOwner);
        return ruta;
    }
};

Archivos& LosArchivos() {
    static Archivos a;
    return a;
}

// The command's road: load and verify, then the screen's load with the whole chain.
struct Banco {
    Sesion s;
    DialogosMudos d;
    ProyectoEdificio p;
    AnalisisRed a{p, s, d};

    void Cargar() {
        ValoresIniciales(p, s);
        AbrirConexionProyecto(s);
        LeerProyecto(p, s);
        VerificarNumeracion(p, d);
        if (p.ErrorNumeracion != 0) qFatal("numeración");
    }
    void Analizar() {
        Cargar();
        a.Cargar();
    }
    // A copy of the generated file, analysed once.
    void Preparar(int n, const char* nombre) {
        s.ArchivoProyecto = LosArchivos().Copia(n, QString::fromLatin1(nombre));
        Analizar();
    }
};

void BM_PrimerAnalisis(benchmark::State& state) {
    const int n = int(state.range(0));
    Banco b;
    for (auto _ : state) {
        state.PauseTiming();
        b.s.ConexionProyecto.Cerrar();
        b.s.ArchivoProyecto = LosArchivos().Copia(n, QStringLiteral("primero.plm"));
        state.ResumeTiming();
        b.Analizar();
    }
    state.counters["ramales"] = n;
}

// A later analysis; the counters split the load of the file (with the
// verification) from the chain and its four grids.
void BM_Reanalisis(benchmark::State& state) {
    const int n = int(state.range(0));
    Banco b;
    b.Preparar(n, "segundo.plm");
    double carga = 0.0, cadena = 0.0;
    for (auto _ : state) {
        const auto t0 = std::chrono::steady_clock::now();
        b.Cargar();
        const auto t1 = std::chrono::steady_clock::now();
        b.a.Cargar();
        const auto t2 = std::chrono::steady_clock::now();
        carga += std::chrono::duration<double, std::milli>(t1 - t0).count();
        cadena += std::chrono::duration<double, std::milli>(t2 - t1).count();
    }
    state.counters["ramales"] = n;
    state.counters["carga_ms"] = benchmark::Counter(carga, benchmark::Counter::kAvgIterations);
    state.counters["cadena_ms"] = benchmark::Counter(cadena, benchmark::Counter::kAvgIterations);
}

void BM_EdicionDiametro(benchmark::State& state) {
    const int n = int(state.range(0));
    Banco b;
    b.Preparar(n, "edicion.plm");
    // A riser segment half-way up, alternately one size up and back, so that
    // every edit writes the file and changes the reductions around it.
    const int fila = ((n / 2) / 3) * 3 + 1;
    const QString original = b.a.Spread4.Texto(fila, 7);
    const QString otro = original == QStringLiteral("12\"") ? QStringLiteral("10\"") : QStringLiteral("12\"");
    bool alterno = false;
    for (auto _ : state) {
        b.a.EditarDiametroAsumido(fila, alterno ? original : otro);
        alterno = !alterno;
    }
    state.counters["ramales"] = n;
}

// The reducing valve of the same branch: pressures and their grid only.
void BM_EdicionValvula(benchmark::State& state) {
    const int n = int(state.range(0));
    Banco b;
    b.Preparar(n, "valvula.plm");
    const int fila = ((n / 2) / 3) * 3 + 1;
    double valor = 0.0;
    for (auto _ : state) b.a.EditarValvulaReductora(fila, valor = valor == 0.0 ? 2.0 : 0.0);
    state.counters["ramales"] = n;
}

// 32,767 branches: NumeroRamales + 1 overflows, as the 16-bit counter must.
void BM_Desborde32767(benchmark::State& state) {
    Sesion s;
    ProyectoEdificio p;
    ValoresIniciales(p, s);
    p.NumeroRamales = 32767;
    p.DimensionarRamales(32767);
    int numero = 0;
    for (auto _ : state) {
        try {
            ColoqueGastos(p);
        } catch (const ErrorEjecucion& e) {
            numero = e.numero();
        }
    }
    if (numero != Error::Desbordamiento) state.SkipWithError("32,767 branches did not overflow");
    state.counters["error"] = numero;
}

}  // namespace

BENCHMARK(BM_PrimerAnalisis)->Arg(100)->Arg(1000)->Arg(5000)->Arg(32766)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Reanalisis)->Arg(100)->Arg(1000)->Arg(5000)->Arg(32766)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_EdicionDiametro)->Arg(100)->Arg(1000)->Arg(5000)->Arg(32766)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_EdicionValvula)->Arg(100)->Arg(1000)->Arg(5000)->Arg(32766)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Desborde32767)->Iterations(1)->Unit(benchmark::kMillisecond);
