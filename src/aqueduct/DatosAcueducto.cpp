#include "aqueduct/DatosAcueducto.h"

#include "aqueduct/ArchivoAcueducto.h"
#include "aqueduct/FormatoGrid.h"
#include "aqueduct/NumeracionNodos.h"
#include "aqueduct/ProyectoAcueducto.h"
#include "base/Dialogos.h"
#include "base/Nivo.h"
#include "shell/Sesion.h"

#include <algorithm>
#include <iterator>
#include <cmath>

namespace {

enum ColRamal { RNo, RI, RJ, RLongitud, RDiametro, RC, RConsumo };
enum ColNodo { NNo, NNodo, NConsumo, NTerreno, NTanque, NConectados, NDireccion, NX, NY };

const QString TituloFontaria = QStringLiteral("Proyecto de Fontaria");
const QString EncabezadoRamales = QStringLiteral("Datos de los Ramales...");
QString MensajeErrorNumero() { return QStringLiteral("Error en el Número..."); }

// A coefficient typed as a number becomes the 16-bit whole number the
// column holds, halves to even as the older runtime assigned them.
bool EnteroDe(double v, int& e) {
    const double r = std::nearbyint(v);
    if (!(r >= -32768 && r <= 32767)) return false;
    e = int(r);
    return true;
}

struct Aviso {
    const char* texto;
    const char* titulo;
};

// The prompt of a block fill, by grid and column; null where none is asked.
const Aviso* AvisoBloque(int grid, int columna) {
    static const Aviso diametro{"Entre el Nuevo Diámetro:", "Diametro de los Tramos"};
    static const Aviso coeficiente{"Entre el Coeficiente C:", "Coeficiente de Hazen-Williams"};
    static const Aviso consumoTramo{"Entre el Consumo Medio de los Tramos:", "Consumo Medio de los Tramos"};
    static const Aviso consumoNodo{"Entre el Cosumo Medio (lps):", "Consumo Medio de los Nodos"};
    static const Aviso cota{"Entre la Cota del Nodo (m):", "Cota de los Nodos"};
    if (grid == 1 && columna == RDiametro) return &diametro;
    if (grid == 1 && columna == RC) return &coeficiente;
    if (grid == 1 && columna == RConsumo) return &consumoTramo;
    if (grid == 2 && columna == NConsumo) return &consumoNodo;
    if (grid == 2 && columna == NTerreno) return &cota;
    return nullptr;
}

}  // namespace

QString MensajeCorrijaDato() { return QStringLiteral("¡Corrija el Dato Seleccionado!"); }

DatosAcueducto::DatosAcueducto(ProyectoAcueducto& p, Sesion& s, Dialogos& d) : p_(p), s_(s), d_(d) {}

QString DatosAcueducto::Titulo() const { return TituloAcueducto(s_.NombreProyectoACU); }

void DatosAcueducto::Cargar() {
    ConfigurarSpread();
    ColoquePantalla();
    pagina_ = 1;
    HabilitarPagina();
    s_.DatosModificados = 0;
    proyectoSalvado_ = false;
    botones_.Abrir = s_.EdicionDesdeAnalisis != 1;
}

void DatosAcueducto::ConfigurarSpread() {
    Spread1 = Grid(RConsumo);
    Spread1.PonerEncabezado(1, RNo, QStringLiteral("Ramal"));
    Spread1.PonerEncabezado(2, RNo, QStringLiteral("No"));
    Spread1.PonerEncabezados(RI, QStringLiteral("( I )"));
    Spread1.PonerEncabezados(RJ, QStringLiteral("( J )"));
    Spread1.PonerEncabezados(RLongitud, QStringLiteral("Longitud"));
    Spread1.PonerEncabezados(RDiametro, QStringLiteral("Diámetro"));
    Spread1.PonerEncabezados(RC, QStringLiteral("Hansen - William"));
    Spread1.PonerEncabezado(1, RConsumo, QStringLiteral("Consumo"));
    Spread1.PonerEncabezado(2, RConsumo, QStringLiteral("lps"));
    FormatoColumna(Spread1, RI, TipoCelda::Texto, 0, 12, false);
    FormatoColumna(Spread1, RJ, TipoCelda::Texto, 0, 12, false);
    // A typed name fits the node record, so that the numbering finds it.
    Spread1.Col(RI).largo = Spread1.Col(RJ).largo = LargoNombreNodo;
    FormatoColumna(Spread1, RLongitud, TipoCelda::Numero, 2, 10, false);
    FormatoColumna(Spread1, RDiametro, TipoCelda::Numero, 3, 10, false);
    FormatoColumna(Spread1, RC, TipoCelda::Entero, 0, 9, false);
    Spread1.Col(RC).minimo = 0;
    Spread1.Col(RC).maximo = 32767;
    FormatoColumna(Spread1, RConsumo, TipoCelda::Numero, 3, 10, false);

    Spread2 = Grid(NY);
    Spread2.PonerEncabezados(NNo, QStringLiteral("No"));
    Spread2.PonerEncabezados(NNodo, QStringLiteral("Nodo"));
    Spread2.PonerEncabezado(1, NConsumo, QStringLiteral("Consumo"));
    Spread2.PonerEncabezado(2, NConsumo, QStringLiteral("Medio lps"));
    Spread2.PonerEncabezados(NTerreno, QStringLiteral("Cota Terreno"));
    Spread2.PonerEncabezado(1, NTanque, QStringLiteral("Cota Tanque/"));
    Spread2.PonerEncabezado(2, NTanque, QStringLiteral("Bomba m"));
    Spread2.PonerEncabezados(NConectados, QStringLiteral("Ramales Conectados"));
    Spread2.PonerEncabezados(NDireccion, QStringLiteral("Dirección Asumido del Flujo en los Ramales"));
    FormatoColumna(Spread2, NNodo, TipoCelda::Texto, 0, 12);
    FormatoColumna(Spread2, NConsumo, TipoCelda::Numero, 3, 10, false);
    FormatoColumna(Spread2, NTerreno, TipoCelda::Numero, 2, 10, false);
    FormatoColumna(Spread2, NTanque, TipoCelda::Numero, 2, 10, false);
    FormatoColumna(Spread2, NConectados, TipoCelda::Entero, 0, 12);
    FormatoColumna(Spread2, NDireccion, TipoCelda::Texto, 0, 40);
    // Typed as text, so that a blank cell reaches the logic as "none".
    Spread2.PonerEncabezado(1, NX, QStringLiteral("Coordenadas"));
    Spread2.UnirEncabezado(1, NX, 1, 2);
    for (const int c : {int(NX), int(NY)}) {
        Spread2.PonerEncabezado(2, c, c == NX ? QStringLiteral("X m") : QStringLiteral("Y m"));
        FormatoColumna(Spread2, c, TipoCelda::Texto, 3, 11, false);
    }
}

void DatosAcueducto::PonerCoordenada(int fila, int columna) {
    const std::optional<double> v = (columna == NX ? p_.X : p_.Y).Leer(fila);
    if (v)
        Spread2.PonerNumero(fila, columna, *v, 3);
    else
        Spread2.PonerVacio(fila, columna);
}

void DatosAcueducto::LlenarRamal(int t) {
    Grid& g = Spread1;
    g.PonerEntero(t, RNo, t);
    g.PonerTexto(t, RI, p_.Inicio[t]);
    g.PonerTexto(t, RJ, p_.Final[t]);
    g.PonerNumero(t, RLongitud, p_.Longitud[t], 2);
    g.PonerNumero(t, RDiametro, p_.Diametro[t], 3);
    g.PonerEntero(t, RC, p_.CoeficienteC[t]);
    g.PonerNumero(t, RConsumo, p_.Demanda[t], 3);
}

void DatosAcueducto::LlenarNodos() {
    Grid& g = Spread2;
    g.PonerFilas(p_.NumeroNodosACU);
    for (int n = 1; n <= p_.NumeroNodosACU; ++n) {
        g.PonerEntero(n, NNo, n);
        g.PonerTexto(n, NNodo, p_.Nodos.Leer(n));
        g.PonerNumero(n, NConsumo, p_.ConsumoMedio.Leer(n), 3);
        g.PonerNumero(n, NTerreno, p_.CotaTerreno.Leer(n), 2);
        const double tanque = p_.CotaBombaEstanque.Leer(n);
        if (tanque > 0)
            g.PonerNumero(n, NTanque, tanque, 2);
        else
            g.PonerVacio(n, NTanque);
        g.PonerEntero(n, NConectados, p_.TramosConectados.Leer(n));
        g.PonerTexto(n, NDireccion, p_.NombreTramos.Leer(n));
        PonerCoordenada(n, NX);
        PonerCoordenada(n, NY);
    }
}

void DatosAcueducto::ColoquePantalla() {
    cargando_ = true;
    if (p_.OpcionConsumo != 1 && p_.OpcionConsumo != 2) p_.OpcionConsumo = 1;
    if (p_.OpcionDiametro < 1 || p_.OpcionDiametro > 3) p_.OpcionDiametro = 1;
    if (p_.CasoPorcentaje != 1 && p_.CasoPorcentaje != 2) p_.CasoPorcentaje = 1;
    Spread2.Col(NConsumo).bloqueada = p_.OpcionConsumo == 1;
    botones_.Double1 = p_.CasoPorcentaje == 1;
    if (p_.C == 0) p_.C = 100;
    long1_ = p_.C;
    long2_ = p_.NumeroTramos;
    Spread1.PonerFilas(p_.NumeroTramos);
    for (int t = 1; t <= p_.NumeroTramos; ++t) LlenarRamal(t);
    if (p_.OpcionConsumo == 1) AcumularConsumos(p_);
    LlenarNodos();
    cargando_ = false;
}

DatosAcueducto::Habilitados DatosAcueducto::Botones() const {
    Habilitados h = botones_;
    h.Reportes = Spread1.Filas() > 0;
    return h;
}

DatosAcueducto::Estado DatosAcueducto::EstadoActual() const {
    Estado e;
    e.titulo = Titulo();
    e.pagina = pagina_;
    e.botones = Botones();
    const QString textos[4] = {p_.Proyecto, p_.Calculista, p_.Cliente, p_.Comentario};
    std::copy(std::begin(textos), std::end(textos), e.textos);
    e.fecha = p_.Fecha.isValid() ? p_.Fecha : Hoy();
    e.opcionConsumo = p_.OpcionConsumo;
    e.opcionDiametro = p_.OpcionDiametro;
    e.casoPorcentaje = p_.CasoPorcentaje;
    const double numeros[4] = {p_.DeltaPorcentaje, p_.FactorQMax, p_.FactorIncendio, p_.LitrosIncendio};
    std::copy(std::begin(numeros), std::end(numeros), e.numeros);
    e.long1 = long1_;
    e.long2 = long2_;
    return e;
}

void DatosAcueducto::HabilitarPagina() {
    botones_.Anterior = pagina_ > 1;
    botones_.Siguiente = pagina_ < 3;
    const bool ramales = pagina_ == 2;
    botones_.Insertar = botones_.Eliminar = botones_.Compatibilidad = botones_.Longitudes = ramales;
    botones_.MenuRamales = ramales;
}

void DatosAcueducto::MarcarModificado() {
    if (!cargando_) s_.DatosModificados = -1;
}

void DatosAcueducto::CambiarTexto(Texto caja, const QString& valor) {
    switch (caja) {
    case Texto::Proyecto: p_.Proyecto = valor.left(140); break;
    case Texto::Calculista: p_.Calculista = valor.left(70); break;
    case Texto::Cliente: p_.Cliente = valor.left(70); break;
    case Texto::Comentario: p_.Comentario = valor.left(100); break;
    }
    MarcarModificado();
}

void DatosAcueducto::CambiarFecha(const QDate& fecha) { Poner(p_.Fecha, fecha); }

void DatosAcueducto::CambiarOpcionConsumo(int opcion) {
    Spread2.Col(NConsumo).bloqueada = opcion == 1;
    Poner(p_.OpcionConsumo, uint8_t(opcion));
}

void DatosAcueducto::CambiarOpcionDiametro(int opcion) { Poner(p_.OpcionDiametro, uint8_t(opcion)); }

void DatosAcueducto::CambiarCasoPorcentaje(int opcion) {
    botones_.Double1 = opcion == 1;
    Poner(p_.CasoPorcentaje, uint8_t(opcion));
}

void DatosAcueducto::CambiarDeltaPorcentaje(double v) { Poner(p_.DeltaPorcentaje, v); }

void DatosAcueducto::CambiarFactorQMax(double v) { Poner(p_.FactorQMax, v); }

void DatosAcueducto::CambiarFactorIncendio(double v) { Poner(p_.FactorIncendio, v); }

void DatosAcueducto::CambiarLitrosIncendio(double v) { Poner(p_.LitrosIncendio, v); }

void DatosAcueducto::CambiarLong1(int valor) {
    long1_ = std::clamp(valor, 0, 32767);
    p_.C = long1_;
    MarcarModificado();
}

void DatosAcueducto::ColoqueDatosRamales() {
    const int n = std::clamp(long2_, 0, 32767);
    long2_ = n;
    p_.NumeroTramos = n;
    p_.RedimensionarTramos(n);
    for (int t = 1; t <= n; ++t)
        if (p_.CoeficienteC[t] == 0) p_.CoeficienteC[t] = p_.C;
    Spread1.PonerFilas(n);
    for (int t = 1; t <= n; ++t) LlenarRamal(t);
    RecalculeNodos();
    MarcarModificado();
    foco = Foco::Spread1;
}

void DatosAcueducto::SeleccionarCelda(Grid& g, int fila, int columna) { g.PonerActiva(fila, columna); }

bool DatosAcueducto::VerifiqueRamales() {
    errorVerificacion_ = false;
    const int tramos = p_.NumeroTramos;
    p_.RedimensionarTramos(tramos);
    auto falla = [&](int fila, int columna) {
        d_.Pitido();
        SeleccionarCelda(Spread1, fila, columna);
        errorVerificacion_ = true;
        return true;
    };
    for (int t = 1; t <= tramos; ++t) {
        if (Trim(p_.Inicio[t]).isEmpty()) return falla(t, RI);
        if (Trim(p_.Final[t]).isEmpty()) return falla(t, RJ);
        if (p_.Longitud[t] == 0) return falla(t, RLongitud);
        if (p_.Diametro[t] == 0) return falla(t, RDiametro);
    }
    if (tramos == 0) return false;
    NumerarNodos(p_, s_);

    // Marks spread from section 1 in a fixed number of sweeps, whatever the
    // size of the network: a network typed in an order the sweeps cannot
    // follow is reported as disconnected, and the engineer reorders it.
    const int nodos = p_.NumeroNodosACU;
    std::vector<char> nodo(size_t(nodos) + 1, 0), tramo(size_t(tramos) + 1, 0);
    auto extremo = [&](int e, int t) { return size_t(int(p_.NodosTramo(e, t))); };
    auto marcarAmbos = [&](int t) { nodo[extremo(1, t)] = nodo[extremo(2, t)] = 1; };
    tramo[1] = 1;
    marcarAmbos(1);
    // A section meets itself at both ends, so the pairings of ends reduce to:
    // a section with a marked end gets both.
    for (int j = 2; j <= tramos; ++j)
        if (nodo[extremo(1, j)] || nodo[extremo(2, j)]) marcarAmbos(j);
    std::vector<std::vector<int>> tocan(size_t(nodos) + 1);
    for (int t = 2; t <= tramos; ++t) {
        tocan[extremo(1, t)].push_back(t);
        if (extremo(2, t) != extremo(1, t)) tocan[extremo(2, t)].push_back(t);
    }
    for (int barrido = 0; barrido < 3; ++barrido)
        for (int n = 1; n <= nodos; ++n)
            if (nodo[size_t(n)])
                for (int t : tocan[size_t(n)]) marcarAmbos(t);
    for (int t = 1; t <= tramos; ++t)
        if (nodo[extremo(1, t)] || nodo[extremo(2, t)]) tramo[size_t(t)] = 1;
    for (int t = 1; t <= tramos; ++t) {
        if (tramo[size_t(t)]) continue;
        d_.MostrarMensaje(QStringLiteral("Existen Ramales Desconectados en la Red!\nVerifique el Tramo->( ") +
                              p_.Inicio[t] + QStringLiteral(" - ") + p_.Final[t] + QStringLiteral(" )"),
                          QStringLiteral("Verificando la Red..."), TituloFontaria);
        SeleccionarCelda(Spread1, t, RI);
        errorVerificacion_ = true;
        return true;
    }
    return false;
}

void DatosAcueducto::Compatibilidad() {
    if (!VerifiqueRamales()) {
        d_.MostrarMensaje(QStringLiteral("No Existen Errores en los Tramos..."), QStringLiteral("Verificando los Ramales..."),
                          TituloFontaria);
        return;
    }
    foco = Foco::Spread1;
    d_.MostrarMensaje(MensajeCorrijaDato(), EncabezadoRamales, TituloFontaria);
}

void DatosAcueducto::Siguiente() {
    if (pagina_ == 2) {
        if (VerifiqueRamales()) {
            foco = Foco::Spread1;
            d_.MostrarMensaje(MensajeCorrijaDato(), EncabezadoRamales, TituloFontaria);
            return;
        }
        RecalculeNodos();
        SeleccionarCelda(Spread2, 1, NConsumo);
    }
    if (pagina_ < 3) ++pagina_;
    HabilitarPagina();
    foco = Foco::PrimerControl;
}

void DatosAcueducto::Anterior() {
    if (pagina_ > 1) --pagina_;
    HabilitarPagina();
    foco = Foco::PrimerControl;
}

void DatosAcueducto::NumerarPosiciones(int desde) {
    for (int f = std::max(desde, 1); f <= Spread1.Filas(); ++f) Spread1.PonerEntero(f, RNo, f);
}

void DatosAcueducto::Insertar() {
    if (Spread1.Filas() == 0) {
        foco = Foco::Long2;
        return;
    }
    const int fila = std::clamp(Spread1.FilaActiva(), 1, Spread1.Filas());
    if (d_.MostrarMensaje(QStringLiteral("Insertar un Nuevo Ramal en la Posición: ( %1 )").arg(fila),
                          QStringLiteral("Insertar Ramal en la Red..."), TituloFontaria, Botones::SiNo,
                          1) != Respuesta::Si)
        return;
    p_.NumeroTramos += 1;
    long2_ = p_.NumeroTramos;
    Spread1.InsertarFila(fila);
    Spread1.PonerNumero(fila, RLongitud, 0, 2);
    Spread1.PonerNumero(fila, RDiametro, 0, 3);
    Spread1.PonerEntero(fila, RC, long1_);
    Spread1.PonerNumero(fila, RConsumo, 0, 3);
    NumerarPosiciones(fila);
    ActualizeTramos();
    RecalculeNodos();
    SeleccionarCelda(Spread1, fila, RI);
    foco = Foco::Spread1;
    MarcarModificado();
}

void DatosAcueducto::Eliminar() {
    if (Spread1.Filas() == 0) {
        foco = Foco::Long2;
        return;
    }
    const int fila = std::clamp(Spread1.FilaActiva(), 1, Spread1.Filas());
    if (d_.MostrarMensaje(QStringLiteral("El Ramal ( %1 ) Sera Eliminado...\nEsta Ustad Seguro de Eliminar el Ramal?")
                              .arg(fila),
                          QStringLiteral("Eliminar el Ramal..."), TituloFontaria, Botones::SiNo, 0) != Respuesta::Si)
        return;
    Spread1.EliminarFila(fila);
    p_.NumeroTramos -= 1;
    // The new count goes into the coefficient box, and so into C; the box
    // of sections keeps the old count until the screen is filled again.
    CambiarLong1(p_.NumeroTramos);
    NumerarPosiciones(fila);
    ActualizeTramos();
    RecalculeNodos();
    if (Spread1.Filas() > 0) SeleccionarCelda(Spread1, std::min(fila, Spread1.Filas()), Spread1.ColumnaActiva());
    MarcarModificado();
    d_.CursorOcupado(false);
    foco = Foco::Spread1;
}

void DatosAcueducto::RecalculeNodos() {
    NumerarNodos(p_, s_);
    ConectarNodos(p_);
    if (p_.OpcionConsumo == 1) AcumularConsumos(p_);
    p_.RedimensionarNodos(p_.NumeroNodosACU);
    LlenarNodos();
}

void DatosAcueducto::ActualizeTramos() {
    const int tramos = p_.NumeroTramos;
    p_.DimensionarTramos(tramos);
    for (int t = 1; t <= std::min(tramos, Spread1.Filas()); ++t) {
        p_.Inicio[t] = Trim(Spread1.Texto(t, RI));
        p_.Final[t] = Trim(Spread1.Texto(t, RJ));
        p_.Longitud[t] = Spread1.Valor(t, RLongitud);
        p_.Diametro[t] = Spread1.Valor(t, RDiametro);
        int c = 0;
        if (EnteroDe(Spread1.Valor(t, RC), c)) p_.CoeficienteC[t] = c;
        p_.Demanda[t] = Spread1.Valor(t, RConsumo);
    }
}

bool DatosAcueducto::EscribirTextoRamal(int fila, int columna, const QString& texto) {
    const QString v = Trim(texto);
    Spread1.PonerTexto(fila, columna, v);
    (columna == RI ? p_.Inicio : p_.Final)[fila] = v;
    return true;
}

bool DatosAcueducto::EscribirNumeroRamal(int fila, int columna, double valor) {
    switch (columna) {
    case RLongitud:
        p_.Longitud[fila] = valor;
        Spread1.PonerNumero(fila, columna, valor, 2);
        return true;
    case RDiametro:
        p_.Diametro[fila] = valor;
        Spread1.PonerNumero(fila, columna, valor, 3);
        return true;
    case RC: {
        int c = 0;
        if (!EnteroDe(valor, c)) return false;
        p_.CoeficienteC[fila] = c;
        Spread1.PonerEntero(fila, columna, c);
        return true;
    }
    case RConsumo:
        p_.Demanda[fila] = valor;
        Spread1.PonerNumero(fila, columna, valor, 3);
        return true;
    default: return false;
    }
}

bool DatosAcueducto::EditarRamal(int fila, int columna, const QString& texto) {
    if (columna != RI && columna != RJ) {
        double v = 0.0;
        return LeerNumeroOAvisar(d_, texto, v) && EditarRamal(fila, columna, v);
    }
    if (fila < 1 || fila > Spread1.Filas() || fila > p_.NumeroTramos) return false;
    EscribirTextoRamal(fila, columna, texto);
    RecalculeNodos();
    MarcarModificado();
    return true;
}

bool DatosAcueducto::EditarRamal(int fila, int columna, double valor) {
    if (fila < 1 || fila > Spread1.Filas() || fila > p_.NumeroTramos || !EscribirNumeroRamal(fila, columna, valor))
        return false;
    RecalculeNodos();
    MarcarModificado();
    return true;
}

bool DatosAcueducto::EscribirNumeroNodo(int fila, int columna, double valor) {
    if (fila < 1 || fila > Spread2.Filas() || fila > p_.NumeroNodosACU || Spread2.EstaBloqueada(fila, columna))
        return false;
    switch (columna) {
    case NConsumo: p_.ConsumoMedio[fila] = valor; break;
    case NTerreno: p_.CotaTerreno[fila] = valor; break;
    case NTanque: p_.CotaBombaEstanque[fila] = valor; break;
    case NX: p_.X[fila] = valor; break;
    case NY: p_.Y[fila] = valor; break;
    default: return false;
    }
    if (columna == NX || columna == NY) {
        PonerCoordenada(fila, columna);
        return true;
    }
    if (columna == NTanque && !(valor > 0))
        Spread2.PonerVacio(fila, columna);
    else
        Spread2.PonerNumero(fila, columna, valor, columna == NConsumo ? 3 : 2);
    return true;
}

bool DatosAcueducto::EditarNodo(int fila, int columna, const QString& texto) {
    if ((columna == NX || columna == NY) && Trim(texto).isEmpty()) {
        if (fila < 1 || fila > Spread2.Filas() || fila > p_.NumeroNodosACU) return false;
        (columna == NX ? p_.X : p_.Y)[fila].reset();
        PonerCoordenada(fila, columna);
        MarcarModificado();
        return true;
    }
    double v = 0.0;
    return LeerNumeroOAvisar(d_, texto, v) && EditarNodo(fila, columna, v);
}

bool DatosAcueducto::EditarNodo(int fila, int columna, double valor) {
    if (!EscribirNumeroNodo(fila, columna, valor)) return false;
    MarcarModificado();
    return true;
}

bool DatosAcueducto::EditarCelda(int grid, int fila, int columna, const QString& texto) {
    const Grid& g = grid == 1 ? Spread1 : Spread2;
    if (fila < 1 || fila > g.Filas()) return false;
    const bool numero = g.EsNumero(fila, columna);
    if (grid == 1)
        return numero ? EditarRamal(fila, columna, g.Valor(fila, columna)) : EditarRamal(fila, columna, texto);
    if (columna == NX || columna == NY) {
        // A refused text leaves the coordinate as it was.
        if (EditarNodo(fila, columna, texto)) return true;
        PonerCoordenada(fila, columna);
        return false;
    }
    return EditarNodo(fila, columna, g.Valor(fila, columna));
}

void DatosAcueducto::NumeroRechazado(int grid, int columna, const QString& texto) {
    double v = 0.0;
    if (!LeerNumeroOAvisar(d_, texto, v)) return;
    const Columna& c = (grid == 1 ? Spread1 : Spread2).Col(columna);
    d_.MostrarMensaje(QStringLiteral("¡Debe Entrar un Número entre %1 y %2!").arg(c.minimo).arg(c.maximo),
                      MensajeErrorNumero(), TituloFontaria);
}

bool DatosAcueducto::LlenarBloque(int grid, int fila1, int fila2, int columna1, int columna2) {
    if (columna1 != columna2) return false;
    Grid& g = grid == 1 ? Spread1 : Spread2;
    const Aviso* aviso = AvisoBloque(grid, columna1);
    if (!aviso || g.Filas() == 0 || g.Col(columna1).bloqueada) return false;
    const int desde = std::clamp(std::min(fila1, fila2), 1, g.Filas());
    const int hasta = std::clamp(std::max(fila1, fila2), 1, g.Filas());
    const auto respuesta = d_.PedirTexto(QString::fromUtf8(aviso->texto), QString::fromUtf8(aviso->titulo));
    if (!respuesta || Trim(*respuesta).isEmpty()) return true;
    const NumeroLeido leido = LeerNumeroTecleado(*respuesta);
    if (leido.ambiguo) {
        MostrarNumeroRechazado(d_, leido.motivo);
        return true;
    }
    double v = leido.valor;
    int entero = 0;
    if (!leido.valido || (grid == 1 && columna1 == RC && !EnteroDe(RoundNivo(v, 3), entero))) {
        d_.MostrarMensaje(QStringLiteral("¡Debe Entrar un Número!"), MensajeErrorNumero(), TituloFontaria);
        return true;
    }
    v = RoundNivo(v, 3);
    if (v == 0) return true;
    for (int f = desde; f <= hasta; ++f) {
        if (grid == 1)
            EscribirNumeroRamal(f, columna1, v);
        else
            EscribirNumeroNodo(f, columna1, v);
    }
    if (grid == 1) RecalculeNodos();
    MarcarModificado();
    return true;
}

bool DatosAcueducto::SalvarArchivo() {
    QString error;
    if (!SalvarProyectoACU(p_, s_, error)) {
        d_.MostrarMensaje(error, QStringLiteral("Salvar el Proyecto..."), TituloFontaria);
        return false;
    }
    if (s_.EdicionDesdeAnalisis == 1) proyectoSalvado_ = true;
    return true;
}

bool DatosAcueducto::Salvar() {
    RecalculeNodos();
    return SalvarArchivo();
}

bool DatosAcueducto::PreguntarSalvar() {
    if (s_.DatosModificados == 0) return true;
    const int r = d_.MostrarMensaje(
        QStringLiteral("Los Datos del Proyecto han sido Modificados...\n¿Desea Salvar los Cambios Realizados?"),
        QStringLiteral("Salvar las Modificaciones..."), TituloFontaria, Botones::SiNoCancelar, 2);
    if (r == Respuesta::Cancelar) return false;
    return r != Respuesta::Si || SalvarArchivo();
}

bool DatosAcueducto::PuedeCerrar() { return PreguntarSalvar(); }

void DatosAcueducto::Abrir() {
    if (!PreguntarSalvar()) return;
    if (!AbrirOtroProyectoACU(p_, s_, d_)) return;
    ColoquePantalla();
    foco = Foco::PrimerControl;
}

bool DatosAcueducto::Longitudes() {
    if (Spread1.Filas() == 0) return false;
    SeleccionarCelda(Spread1, std::clamp(Spread1.FilaActiva(), 1, Spread1.Filas()), RLongitud);
    foco = Foco::Spread1;
    return true;
}
