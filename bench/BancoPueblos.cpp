// The aqueduct solver and the whole command line on networks shaped like
// real towns (RedesPueblo.h): towns of about 1,000, 4,000, 10,000 and 32,000
// sections typed street by street ("entrada") and in a scattered order
// ("revuelta"), a star of 5,000 sections on one tank and a hamlet of ten.
//
// Per network: the iterations of the solve, the time of one AnalizarMalla on
// the loaded project (Google Benchmark), and for the process
// `fontaria acueducto X.acu --caso 1 --json` the median wall time of several
// runs and the largest peak memory (ru_maxrss of wait4).  A process that
// passes the time cap is killed, and that network is shown as "> N s"
// without a solve time, so that the run always ends.
//
//   build-bench/bench/BancoPueblos [--corridas 11] [--tope 30] [--carpeta DIR]
//                                  [--programa build-bench/fontaria] [--solo REGEX]
//                                  [benchmark options]
//
// --solo keeps only the networks whose name matches, e.g. "pueblo-32k".

#include "RedesPueblo.h"
#include "aqueduct/SolverMalla.h"

#include <QCoreApplication>
#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstring>
#include <string>

namespace {

struct Fila {
    QString nombre, archivo;
    size_t red = 0;  // index into the networks and their loaded projects
    int estado = 0;
    double msProceso = -1, mibMemoria = 0;
    bool tope = false;
};

// One run of the program on `archivo`: wall time in ms, peak memory in MiB,
// exit status.  False when it passed `topeS` seconds and was killed.
bool Proceso(const std::string& programa, const std::string& ruta, double topeS, double& ms, double& mib,
             int& estado) {
    const auto inicio = std::chrono::steady_clock::now();
    const pid_t pid = fork();
    if (pid == 0) {
        const int nulo = open("/dev/null", O_WRONLY);
        dup2(nulo, 1);
        dup2(nulo, 2);
        execl(programa.c_str(), programa.c_str(), "acueducto", ruta.c_str(), "--caso", "1", "--json", (char*)nullptr);
        _exit(127);
    }
    // A pidfd becomes readable when the child ends: waiting on it keeps the
    // timing exact and still allows the cap (without one, no cap).
    const int pidfd = int(syscall(SYS_pidfd_open, pid, 0));
    pollfd pf{pidfd, POLLIN, 0};
    const bool acabo = pidfd < 0 || poll(&pf, 1, int(topeS * 1000)) > 0;
    if (!acabo) kill(pid, SIGKILL);
    int st = 0;
    rusage uso{};
    wait4(pid, &st, 0, &uso);
    ms = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - inicio).count();
    if (pidfd >= 0) close(pidfd);
    mib = uso.ru_maxrss / 1024.0;
    estado = WIFEXITED(st) ? WEXITSTATUS(st) : -1;
    return acabo;
}

// The runs are started by a small process forked before any network is
// loaded.  A child forked from the bench itself would start with the
// bench's whole memory counted as its peak (the kernel keeps the high-water
// mark of the memory an exec replaces), and the peak of a small run would
// read as the bench's size.
struct Pedido {
    char ruta[4096];
    double topeS;
};
struct Respuesta {
    double ms, mib;
    int estado;
    bool acabo;
};

class Lanzador {
public:
    explicit Lanzador(const std::string& programa) {
        int pedidos[2], respuestas[2];
        if (pipe(pedidos) != 0 || pipe(respuestas) != 0) return;
        pid_ = fork();
        if (pid_ == 0) {
            close(pedidos[1]);
            close(respuestas[0]);
            Pedido p{};
            while (read(pedidos[0], &p, sizeof p) == ssize_t(sizeof p)) {
                Respuesta r{};
                r.acabo = Proceso(programa, p.ruta, p.topeS, r.ms, r.mib, r.estado);
                if (write(respuestas[1], &r, sizeof r) != ssize_t(sizeof r)) break;
            }
            _exit(0);
        }
        close(pedidos[0]);
        close(respuestas[1]);
        pedidos_ = pedidos[1];
        respuestas_ = respuestas[0];
    }
    ~Lanzador() {
        if (pedidos_ >= 0) close(pedidos_);
        if (respuestas_ >= 0) close(respuestas_);
        if (pid_ > 0) waitpid(pid_, nullptr, 0);
    }
    bool Correr(const QString& archivo, double topeS, double& ms, double& mib, int& estado) {
        Pedido p{};
        strncpy(p.ruta, archivo.toStdString().c_str(), sizeof p.ruta - 1);
        p.topeS = topeS;
        Respuesta r{};
        if (write(pedidos_, &p, sizeof p) != ssize_t(sizeof p) || read(respuestas_, &r, sizeof r) != ssize_t(sizeof r)) {
            estado = -1;
            return false;
        }
        ms = r.ms;
        mib = r.mib;
        estado = r.estado;
        return r.acabo;
    }

private:
    pid_t pid_ = -1;
    int pedidos_ = -1, respuestas_ = -1;
};

// The median of up to `corridas` runs (fewer when they pass 20 s in all),
// the largest peak memory; the first run is also the cap check.
void MedirProceso(Fila& f, Lanzador& lanzador, int corridas, double topeS) {
    std::vector<double> tiempos;
    double ms = 0, mib = 0, total = 0;
    for (int k = 0; k < corridas && (k < 3 || total < 20000); ++k) {
        if (!lanzador.Correr(f.archivo, topeS, ms, mib, f.estado)) {
            f.tope = true;
            return;
        }
        tiempos.push_back(ms);
        total += ms;
        f.mibMemoria = std::max(f.mibMemoria, mib);
    }
    std::sort(tiempos.begin(), tiempos.end());
    f.msProceso = tiempos[tiempos.size() / 2];
}

// Keeps the time per solve of each benchmark besides printing it.
class Reportero : public benchmark::ConsoleReporter {
public:
    std::map<std::string, double> ms;
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& r : runs)
            if (!r.error_occurred && r.run_type == Run::RT_Iteration)
                ms[r.benchmark_name()] = r.GetAdjustedRealTime();
        ConsoleReporter::ReportRuns(runs);
    }
};

QString Opcion(QStringList& args, const QString& nombre, const QString& defecto) {
    const int k = args.indexOf(nombre);
    if (k < 0 || k + 1 >= args.size()) return defecto;
    const QString v = args[k + 1];
    args.remove(k, 2);
    return v;
}

}  // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    QStringList args = app.arguments();
    const int corridas = Opcion(args, QStringLiteral("--corridas"), QStringLiteral("11")).toInt();
    const double topeS = Opcion(args, QStringLiteral("--tope"), QStringLiteral("30")).toDouble();
    const std::string programa =
        Opcion(args, QStringLiteral("--programa"), QStringLiteral(FONTARIA_RUTA_PROGRAMA "/fontaria")).toStdString();
    Lanzador lanzador(programa);
    QTemporaryDir temporal;
    const QString carpeta = Opcion(args, QStringLiteral("--carpeta"), temporal.path());
    const QRegularExpression solo(Opcion(args, QStringLiteral("--solo"), QString()));
    QDir().mkpath(carpeta + QStringLiteral("/datos/Trabajo"));

    Sesion s;
    s.RutaPrograma = QStringLiteral(FONTARIA_RUTA_PROGRAMA);
    s.DirectorioDatos = carpeta + QStringLiteral("/datos");

    // The networks, written once per run of this program.
    std::vector<std::pair<QString, RedGenerada>> redes;
    redes.emplace_back(QStringLiteral("aldea-10"), Aldea());
    for (int secciones : {1000, 4000, 10000, 32000}) {
        const RedGenerada r = Pueblo(secciones, 2 + secciones / 8000, 20240515u + unsigned(secciones));
        const QString base = QStringLiteral("pueblo-%1k").arg(secciones / 1000);
        redes.emplace_back(base + QStringLiteral("-entrada"), r);
        redes.emplace_back(base + QStringLiteral("-revuelta"), Revuelta(r, 7));
    }
    redes.emplace_back(QStringLiteral("estrella-5k"), Estrella(5000, 11));

    std::vector<Fila> filas;
    std::vector<ProyectoAcueducto> proyectos(redes.size());
    for (size_t k = 0; k < redes.size(); ++k) {
        if (!solo.match(redes[k].first).hasMatch()) continue;
        Fila f;
        f.red = k;
        f.nombre = redes[k].first;
        f.archivo = carpeta + QLatin1Char('/') + f.nombre + QStringLiteral(".acu");
        QString error;
        if (!EscribirRed(redes[k].second, f.archivo, s, error)) {
            fprintf(stderr, "%s: %s\n", qPrintable(f.nombre), qPrintable(error));
            return 1;
        }
        MedirProceso(f, lanzador, corridas, topeS);
        fprintf(stderr, "%s: proceso %s\n", qPrintable(f.nombre),
                f.tope ? "pasó el tope" : qPrintable(QString::number(f.msProceso, 'f', 1) + " ms"));
        filas.push_back(f);
        if (f.tope) continue;
        ProyectoAcueducto& p = proyectos[k];
        ValoresInicialesACU(p, s);
        if (!CargarProyectoACU(p, s, f.archivo, error)) {
            fprintf(stderr, "%s: %s\n", qPrintable(f.nombre), qPrintable(error));
            return 1;
        }
        p.CasoDemanda = 1;
        benchmark::RegisterBenchmark(f.nombre.toUtf8().constData(), [&p, &s](benchmark::State& state) {
            for (auto _ : state) {
                p.ErrorAnalisis = 0;
                AnalizarMalla(p, s);
            }
            if (p.ErrorAnalisis == 1) state.SkipWithError(p.DetalleError.toUtf8().constData());
        })->Unit(benchmark::kMillisecond);
    }

    std::vector<QByteArray> resto;
    std::vector<char*> argvResto;
    for (const QString& a : args) resto.push_back(a.toLocal8Bit());
    for (QByteArray& a : resto) argvResto.push_back(a.data());
    int argcResto = int(argvResto.size());
    benchmark::Initialize(&argcResto, argvResto.data());
    Reportero reportero;
    benchmark::RunSpecifiedBenchmarks(&reportero);

    printf("\n%-20s %7s %7s %10s %10s %12s %9s %6s\n", "red", "tramos", "nodos", "iter", "solve ms", "proceso ms",
           "MiB", "salida");
    for (const Fila& f : filas) {
        const ProyectoAcueducto& p = proyectos[f.red];
        const auto medido = reportero.ms.find(f.nombre.toStdString());
        if (f.tope) {
            printf("%-20s %7d %7s %10s %10s %12s %9s %6s\n", qPrintable(f.nombre),
                   int(redes[f.red].second.tramos.size()), "-", "-", "-",
                   qPrintable(QStringLiteral("> %1 s").arg(topeS)), "-", "-");
            continue;
        }
        QStringList pasos;
        bool limite = p.SinConvergencia();
        for (int i : p.Iteraciones) {
            pasos << QString::number(i);
            limite = limite || i >= p.LimiteIteraciones;
        }
        const QString solve =
            medido == reportero.ms.end() ? QStringLiteral("-") : QString::number(medido->second, 'f', 2);
        printf("%-20s %7d %7d %9s%s %10s %12.2f %9.1f %6d\n", qPrintable(f.nombre), int(p.NumeroTramos),
               int(p.NumeroNodosACU), pasos.isEmpty() ? "-" : qPrintable(pasos.join(QLatin1Char('+'))),
               limite ? "!" : " ", qPrintable(solve), f.msProceso, f.mibMemoria, f.estado);
    }
    printf("\niter: iterations of each pass of the solve; \"!\" a pass that reached the limit.\n");
    return 0;
}
