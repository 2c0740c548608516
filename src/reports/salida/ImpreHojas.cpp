#include "reports/salida/ImpreHojas.h"

#include "aqueduct/ProyectoAcueducto.h"
#include "model/ProyectoEdificio.h"
#include "reports/TablasAcueducto.h"
#include "reports/salida/ImpreAcueducto.h"
#include "shell/Sesion.h"

ImpreHojas::ImpreHojas(const ProyectoEdificio& edificio, const ProyectoAcueducto& acueducto, Sesion& s, Dialogos& d,
                       PantallasSalida& salida)
    : Spread1(3), edificio_(edificio), acueducto_(acueducto), s_(s), d_(d), salida_(salida) {}

bool ImpreHojas::Acueducto() const { return s_.TipoRed == 1; }

QString ImpreHojas::TextoOpcion1() const {
    return Acueducto() ? QStringLiteral("Imprimir Tabla de los Ramales...")
                       : QStringLiteral("Piezas Sanitarias y Conexiones de los Ramales");
}

QString ImpreHojas::TextoOpcion2() const {
    return Acueducto() ? QStringLiteral("Imprimir Tabla de los Nodos...")
                       : QStringLiteral("Longitudes y Cotas de los Ramales");
}

QString ImpreHojas::Plantilla() const {
    if (Acueducto()) return Opcion == 2 ? QStringLiteral("TablaNodos") : QStringLiteral("TablaTramos");
    return Opcion == 2 ? QStringLiteral("TablaDatos2") : QStringLiteral("TablaDatos1");
}

void ImpreHojas::Cargar() {
    Spread1.PonerEncabezados(1, QStringLiteral("Ramal"));
    Spread1.PonerEncabezados(2, QStringLiteral("( I )"));
    Spread1.PonerEncabezados(3, QStringLiteral("( J )"));
    Spread1.Col(1).ancho = 6;
    Spread1.Col(2).ancho = 16;
    Spread1.Col(3).ancho = 16;
    Spread1.Col(2).largo = 20;
    Spread1.Col(3).largo = 20;
    const int n = Acueducto() ? int(acueducto_.NumeroTramos) : int(edificio_.NumeroRamales);
    CambiarLong1(n);
    for (int f = 1; f <= n; ++f) {
        Spread1.PonerTexto(f, 2, Acueducto() ? acueducto_.Inicio.Leer(f) : edificio_.NodoI.Leer(f));
        Spread1.PonerTexto(f, 3, Acueducto() ? acueducto_.Final.Leer(f) : edificio_.Nodoj.Leer(f));
    }
}

void ImpreHojas::CambiarLong1(int filas) {
    const int antes = Spread1.Filas();
    Spread1.PonerFilas(std::max(filas, 0));
    for (int f = antes + 1; f <= Spread1.Filas(); ++f) Spread1.PonerEntero(f, 1, f);
    for (int f = 1; f <= Spread1.Filas(); ++f) Spread1.Bloquear(f, 1, true);
}

void ImpreHojas::BorrarNodos() {
    for (int f = 1; f <= Spread1.Filas(); ++f) {
        Spread1.PonerTexto(f, 2, QString());
        Spread1.PonerTexto(f, 3, QString());
    }
}

bool ImpreHojas::Aceptar() {
    if (Long1() <= 0) return false;
    std::vector<FilaHoja> filas;
    for (int f = 1; f <= Long1(); ++f) filas.push_back({f, Spread1.Texto(f, 2), Spread1.Texto(f, 3)});
    const QString base = s_.RutaDatos(Acueducto() ? QStringLiteral("Trabajo/Resultados.mdb")
                                                  : QStringLiteral("Trabajo/Trabajo.mdb"));
    QString error;
    const bool lleno = Acueducto() ? LleneHojasAcueducto(base, filas, error)
                                   : LleneHojasEdificio(base, filas, Check1, error);
    if (!lleno) {
        MostrarErrorReporte(d_, error);
        return false;
    }
    return SalidaPlantilla(s_, d_, salida_, Plantilla(), Acueducto(), base);
}
