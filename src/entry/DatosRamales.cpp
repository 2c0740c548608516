#include "entry/DatosRamales.h"

#include "base/Dialogos.h"
#include "catalogue/Catalogo.h"
#include "base/Entero16.h"
#include "base/ErrorEjecucion.h"
#include "base/Nivo.h"
#include "entry/BuscarPartida.h"
#include "images/Imagen.h"
#include "model/ArchivoEdificio.h"
#include "model/ProyectoEdificio.h"
#include "shell/Sesion.h"
#include "shell/Titulos.h"
#include "store/Registros.h"

#include <QHash>
#include <algorithm>

namespace {

const QString Tanque = QStringLiteral("Piezas de Tanque");
const QString Valvula = QStringLiteral("Piezas de Válvula");
const QString EncabezadoNumeracion = QStringLiteral("Numeración de los Ramales...");
constexpr double LongitudMaxima = 9999999999.99;

enum ColRevision { RClave = 1, RFoto, RNombre, RCantidad };

}  // namespace

DatosRamales::DatosRamales(ProyectoEdificio& p, Sesion& s, Dialogos& d) : p_(p), s_(s), d_(d) {}

QString DatosRamales::Titulo() const { return TituloEdificio(s_); }

void DatosRamales::Cargar() {
    ConfigurarSpread();
    ColoquePantalla();
    s_.ProyectoModificado = false;
    proyectoSalvado_ = false;
    graficos_ = false;
    if (Spread1.Filas() > 0) Spread1.PonerActiva(1, CLongitud);
    foco = Foco::PrimerControl;
}

void DatosRamales::ConfigurarSpread() {
    Spread1 = Grid(CComentario);
    Spread1.PonerEncabezados(CRamal, QStringLiteral("Ramal"));
    Spread1.PonerEncabezados(CNodoI, QStringLiteral("Nodo ( I )"));
    Spread1.PonerEncabezados(CNodoJ, QStringLiteral("Nodo ( J )"));
    Spread1.PonerEncabezado(1, CLongitud, QStringLiteral("Longitud Real"));
    Spread1.PonerEncabezado(2, CLongitud, QStringLiteral("(m)"));
    Spread1.PonerEncabezados(COpcion, QStringLiteral("Opción Diseño"));
    Spread1.PonerEncabezado(1, CValvula, QStringLiteral("Válvula"));
    Spread1.PonerEncabezado(2, CValvula, QStringLiteral("Reductora (m)"));
    Spread1.PonerEncabezado(1, CPiezas, QStringLiteral("Número"));
    Spread1.PonerEncabezado(2, CPiezas, QStringLiteral("de Piezas"));
    Spread1.PonerEncabezado(1, CConexiones, QStringLiteral("Número de"));
    Spread1.PonerEncabezado(2, CConexiones, QStringLiteral("Conexiones"));
    Spread1.PonerEncabezados(CComentario, QStringLiteral("Comentario"));
    auto formato = [this](int c, TipoCelda tipo, int ancho, bool bloqueada) {
        ::Columna& col = Spread1.Col(c);
        col.tipo = tipo;
        col.decimales = 2;
        col.ancho = ancho;
        col.bloqueada = bloqueada;
    };
    formato(CNodoI, TipoCelda::Texto, 12, false);
    formato(CNodoJ, TipoCelda::Texto, 12, false);
    formato(CLongitud, TipoCelda::Numero, 12, false);
    formato(COpcion, TipoCelda::Lista, 18, false);
    formato(CValvula, TipoCelda::Numero, 12, false);
    formato(CPiezas, TipoCelda::Entero, 9, true);
    formato(CConexiones, TipoCelda::Entero, 11, true);
    formato(CComentario, TipoCelda::Texto, 30, true);
    for (int c : {CLongitud, CValvula}) {
        Spread1.Col(c).minimo = 0;
        Spread1.Col(c).maximo = LongitudMaxima;
    }
    Spread1.Col(COpcion).lista = QStringList{Tanque, Valvula};

    Spread2 = Grid(RCantidad);
    Spread2.PonerEncabezados(RClave, QStringLiteral("Clave"));
    Spread2.PonerEncabezados(RFoto, QStringLiteral("Foto"));
    Spread2.PonerEncabezados(RNombre, QStringLiteral("Descripción"));
    Spread2.PonerEncabezados(RCantidad, QStringLiteral("Cantidad"));
    const int anchos[] = {0, 6, 12, 30, 8};
    for (int c = RClave; c <= RCantidad; ++c) {
        Spread2.Col(c).ancho = anchos[c];
        Spread2.Col(c).bloqueada = true;
    }
    Spread2.Col(RFoto).tipo = TipoCelda::Imagen;
}

void DatosRamales::RedimensioneVariables() {
    const int n = p_.NumeroRamales;
    p_.NumeroNodos = p_.NumeroRamales + 1;
    p_.NodoI.RedimPreserve(n);
    p_.Nodoj.RedimPreserve(n);
    p_.longitudReal.RedimPreserve(n);
    p_.OpcionDiseño.RedimPreserve(n);
    p_.ValvulaR.RedimPreserve(n);
    p_.RamalComentario.RedimPreserve(n);
    p_.Predimensionado.RedimPreserve(n);
    p_.Reduccion.RedimPreserve(n);
    p_.NPiezas.RedimPreserve(n);
    p_.NConexiones.RedimPreserve(n);
    p_.PiezaClave.RedimPreserve(n, FilasPorRamal);
    p_.PiezaNombre.RedimPreserve(n, FilasPorRamal);
    p_.PiezaUnidades.RedimPreserve(n, FilasPorRamal);
    p_.PiezaCantidad.RedimPreserve(n, FilasPorRamal);
    p_.ConexionClave.RedimPreserve(n, FilasPorRamal);
    p_.ConexionNombre.RedimPreserve(n, FilasPorRamal);
    p_.ConexionLongitud.RedimPreserve(n, FilasPorRamal);
    p_.ConexionCantidad.RedimPreserve(n, FilasPorRamal);
    p_.ConexionAutomatica.RedimPreserve(n, FilasPorRamal);
    p_.CotaPiso.RedimPreserve(p_.NumeroNodos);
}

void DatosRamales::ColorOpcion(int f) {
    Spread1.PonerColorFondo(f, COpcion, p_.OpcionDiseño[f] == 0 ? ColorBlanco : ColorValvula);
}

void DatosRamales::LlenarRamal(int f) {
    Grid& g = Spread1;
    g.PonerEntero(f, CRamal, f);
    g.PonerTexto(f, CNodoI, Trim(p_.NodoI[f]));
    g.PonerTexto(f, CNodoJ, Trim(p_.Nodoj[f]));
    g.PonerColorFondo(f, CNodoI, ColorNodos);
    g.PonerColorFondo(f, CNodoJ, ColorNodos);
    g.PonerNumero(f, CLongitud, p_.longitudReal[f], 2);
    g.PonerTexto(f, COpcion, p_.OpcionDiseño[f] == 0 ? Tanque : Valvula);
    ColorOpcion(f);
    if (p_.ValvulaR[f] > 0)
        g.PonerNumero(f, CValvula, p_.ValvulaR[f], 2);
    else
        g.PonerVacio(f, CValvula);
    g.PonerTexto(f, CComentario, p_.RamalComentario[f]);
}

// The first branch leaves the elevated tank: its length is the tank's.
void DatosRamales::PonerTanque() {
    if (Spread1.Filas() < 1) return;
    const bool tanque = p_.OpcionPresionInicial >= 2;
    Spread1.Bloquear(1, CLongitud, tanque);
    Spread1.PonerColorFondo(1, CLongitud, tanque ? ColorTanque : SinColor);
    if (tanque) Spread1.PonerTexto(1, CLongitud, QStringLiteral("H. Tanque"));
}

void DatosRamales::ColoqueRamales() {
    const int n = p_.NumeroRamales;
    Spread1.Vaciar();
    Spread1.PonerFilas(n);
    for (int f = 1; f <= n; ++f) LlenarRamal(f);
    ColoqueNPiezas();
    ColoqueNConexiones();
    PonerTanque();
}

void DatosRamales::ColoquePantalla() {
    RedimensioneVariables();
    numeroRamales_ = p_.NumeroRamales;
    numeroCambiado_ = false;
    ColoqueRamales();
    if (!p_.Fecha.isValid()) p_.Fecha = Hoy();
}

void DatosRamales::ColoqueNPiezas() {
    for (int f = 1; f <= std::min<int>(Spread1.Filas(), p_.NumeroRamales); ++f)
        p_.NPiezas[f] >= 1 ? Spread1.PonerEntero(f, CPiezas, p_.NPiezas[f]) : Spread1.PonerVacio(f, CPiezas);
}

void DatosRamales::ColoqueNConexiones() {
    for (int f = 1; f <= std::min<int>(Spread1.Filas(), p_.NumeroRamales); ++f)
        p_.NConexiones[f] >= 1 ? Spread1.PonerEntero(f, CConexiones, p_.NConexiones[f])
                               : Spread1.PonerVacio(f, CConexiones);
}

DatosRamales::Estado DatosRamales::EstadoActual() const {
    Estado e;
    e.titulo = Titulo();
    e.etiquetaRamal = EtiquetaRamal();
    const QString textos[4] = {p_.Proyecto, p_.Calculista, p_.Cliente, p_.Comentario};
    std::copy(std::begin(textos), std::end(textos), e.textos);
    e.fecha = p_.Fecha.isValid() ? p_.Fecha : Hoy();
    e.opcionUsoPiezas = p_.OpcionUsoPiezas;
    e.opcionPresionInicial = p_.OpcionPresionInicial;
    e.opcionDiametro = p_.OpcionDiametro;
    e.opcionPerdidas = p_.OpcionPerdidas;
    e.valor[0] = p_.Valor1;
    e.valor[1] = p_.Valor2;
    e.valor[2] = p_.Valor3;
    e.velocidad = p_.Velocidad;
    e.presionM = p_.PresionM;
    e.coeficienteC = int(p_.CoeficienteC);
    e.diametroMinimo = p_.DiametroMinimo;
    e.opcionPresionM = p_.OpcionPresionM;
    e.graficos = graficos_;
    e.numeroRamales = numeroRamales_;
    for (int i = 0; i < 3; ++i) e.habilitados.Valor[i] = p_.OpcionPresionInicial == i;
    e.etiquetaValor = p_.OpcionPresionInicial == 1 ? QStringLiteral("Entrar la Presión Inicial en la Entrada de la Red")
                                                   : QStringLiteral("Presión Mínima en el Punto más Desfavorable de la Red");
    e.habilitados.CoeficienteC = p_.OpcionPerdidas == 2;
    e.habilitados.PresionM = p_.OpcionPresionM;
    e.habilitados.Abrir = s_.EdicionDesdeAnalisis != 1;
    return e;
}

void DatosRamales::MarcarModificado() { s_.ProyectoModificado = true; }

void DatosRamales::CambiarTexto(Texto caja, const QString& valor) {
    QString* destino[] = {&p_.Proyecto, &p_.Calculista, &p_.Cliente, &p_.Comentario};
    Poner(*destino[int(caja)], Trim(valor));
}

void DatosRamales::CambiarFecha(const QDate& fecha) { Poner(p_.Fecha, fecha); }
void DatosRamales::CambiarOpcionUsoPiezas(int o) { Poner(p_.OpcionUsoPiezas, uint8_t(o)); }
void DatosRamales::CambiarOpcionPresionInicial(int o) { Poner(p_.OpcionPresionInicial, uint8_t(o)); }
void DatosRamales::CambiarValor(int cual, double v) {
    double* destino[] = {&p_.Valor1, &p_.Valor2, &p_.Valor3};
    if (cual >= 1 && cual <= 3) Poner(*destino[cual - 1], v);
}
void DatosRamales::CambiarVelocidad(double v) { Poner(p_.Velocidad, v); }
void DatosRamales::CambiarOpcionDiametro(int o) { Poner(p_.OpcionDiametro, uint8_t(o)); }
void DatosRamales::CambiarDiametroMinimo(bool si) { Poner(p_.DiametroMinimo, si); }
void DatosRamales::CambiarOpcionPerdidas(int o) { Poner(p_.OpcionPerdidas, uint8_t(o)); }
void DatosRamales::CambiarCoeficienteC(int c) { Poner(p_.CoeficienteC, double(c)); }
void DatosRamales::CambiarOpcionPresionM(bool si) { Poner(p_.OpcionPresionM, si); }
void DatosRamales::CambiarPresionM(double v) { Poner(p_.PresionM, v); }

void DatosRamales::CambiarNumeroRamales(int n) {
    numeroRamales_ = n;
    numeroCambiado_ = true;
}

void DatosRamales::AplicarNumeroRamales() {
    if (!numeroCambiado_) return;
    // The box goes back to the model's count first, so that a refused count
    // is reported once; both counters are checked before anything changes.
    const int pedido = numeroRamales_;
    numeroRamales_ = p_.NumeroRamales;
    numeroCambiado_ = false;
    const Entero16 ramales = pedido;
    const Entero16 nodos = ramales + 1;
    if (ramales < 0) throw ErrorEjecucion(Error::SubindiceFuera);
    numeroRamales_ = ramales;
    p_.NumeroRamales = ramales;
    p_.NumeroNodos = nodos;
    RedimensioneVariables();
    ColoqueRamales();
    SeguirRevision();
    MarcarModificado();
    if (p_.NumeroRamales > 0) {
        Spread1.PonerActiva(std::clamp(Spread1.FilaActiva(), 1, Spread1.Filas()), Spread1.ColumnaActiva());
        foco = Foco::Grid;
    }
}

int DatosRamales::RamalActivo() const {
    return Spread1.Filas() > 0 ? std::clamp(Spread1.FilaActiva(), 1, Spread1.Filas()) : 0;
}

QString DatosRamales::EtiquetaRamal() const {
    return QStringLiteral("Ramal ( %1 )").arg(RamalActivo());
}

void DatosRamales::MoverCursor(int fila, int columna) {
    if (Spread1.Filas() == 0) return;
    Spread1.PonerActiva(std::clamp(fila, 1, Spread1.Filas()), columna);
    if (graficos_ && ramalRevision_ != RamalActivo()) ColoqueRevision(RamalActivo());
}

bool DatosRamales::NumeroDeCelda(int fila, int columna, const QString& texto, double& v) {
    if (Trim(texto).isEmpty()) {
        v = 0;
        return true;
    }
    // What the grid itself wrote is the number it holds, not its picture.
    if (Spread1.EsNumero(fila, columna) && Spread1.Texto(fila, columna) == texto) {
        v = Spread1.Valor(fila, columna);
        return true;
    }
    if (!LeerNumeroOAvisar(d_, texto, v)) return false;
    if (v < 0 || v > LongitudMaxima) {
        NumeroRechazado(columna, texto);
        return false;
    }
    return true;
}

void DatosRamales::NumeroRechazado(int, const QString& texto) {
    double v = 0;
    if (!LeerNumeroOAvisar(d_, texto, v)) return;
    MostrarNumeroRechazado(d_, QStringLiteral("¡Debe Entrar un Número entre 0 y %1!")
                                   .arg(Formato(LongitudMaxima, QStringLiteral("#,##0.00"))));
}

bool DatosRamales::EditarCelda(int fila, int columna, const QString& texto) {
    if (fila < 1 || fila > Spread1.Filas() || fila > p_.NumeroRamales) return false;
    if (Spread1.EstaBloqueada(fila, columna) && columna != CConexiones) return false;
    double v = 0;
    switch (columna) {
    case CNodoI:
        p_.NodoI[fila] = Trim(texto);
        Spread1.PonerTexto(fila, columna, p_.NodoI[fila]);
        Spread1.PonerActiva(fila, CNodoJ);
        break;
    case CNodoJ:
        p_.Nodoj[fila] = Trim(texto);
        Spread1.PonerTexto(fila, columna, p_.Nodoj[fila]);
        // The last row keeps the cursor: there is no next branch yet.
        Spread1.PonerActiva(std::min(fila + 1, Spread1.Filas()), fila < Spread1.Filas() ? CNodoI : CNodoJ);
        break;
    case CLongitud:
        if (!NumeroDeCelda(fila, columna, texto, v)) return false;
        p_.longitudReal[fila] = v;
        Spread1.PonerNumero(fila, columna, v, 2);
        break;
    case COpcion:
        p_.OpcionDiseño[fila] = texto == Tanque ? 0 : 1;
        Spread1.PonerTexto(fila, columna, texto);
        ColorOpcion(fila);
        break;
    case CValvula:
        if (!NumeroDeCelda(fila, columna, texto, v)) return false;
        p_.ValvulaR[fila] = v;
        v == 0 ? Spread1.PonerVacio(fila, columna) : Spread1.PonerNumero(fila, columna, v, 2);
        break;
    case CConexiones:
        // The comment has long been stored from this column's handler.
        p_.RamalComentario[fila] = Trim(texto);
        break;
    default:
        return false;
    }
    MarcarModificado();
    foco = Foco::Grid;
    return true;
}

void DatosRamales::VerificaNodos() {
    nodoVacio_ = false;
    for (int i = 1; i <= p_.NumeroRamales; ++i) {
        const int columna = Trim(p_.NodoI[i]).isEmpty() ? CNodoI : Trim(p_.Nodoj[i]).isEmpty() ? CNodoJ : 0;
        if (columna == 0) continue;
        nodoVacio_ = true;
        Spread1.PonerActiva(i, columna);
        foco = Foco::Grid;
        return;
    }
}

void DatosRamales::NumeracionNodos() {
    p_.ErrorNumeracion = 0;
    const int n = p_.NumeroRamales;
    auto fallar = [&](int i, const QString& texto) {
        Spread1.PonerActiva(i, CNodoI);
        foco = Foco::Grid;
        d_.MostrarMensaje(texto, EncabezadoNumeracion, TituloProyectoFontaria());
        p_.ErrorNumeracion = 1;
    };
    for (int i = 1; i <= n; ++i)
        if (Trim(p_.NodoI[i]) == Trim(p_.Nodoj[i]))
            return fallar(i, QStringLiteral("Error en la Numeración de los Ramales...\nRamal-> ( %1 )  (I) = ") .arg(i) +
                                 p_.NodoI[i] + QStringLiteral("  ó  ") + QStringLiteral(" (J) = ") + p_.Nodoj[i]);
    // A branch is connected when some earlier branch ends at its start: the
    // first branch ending at each label is enough to tell.
    QHash<QString, int> primerFinal;
    primerFinal.reserve(n);
    for (int k = n; k >= 1; --k) primerFinal.insert(Trim(p_.Nodoj[k]), k);
    for (int i = 2; i <= n; ++i) {
        const auto it = primerFinal.constFind(Trim(p_.NodoI[i]));
        if (it != primerFinal.constEnd() && it.value() < i) continue;
        return fallar(i, QStringLiteral("El Nodo-> ( ") + p_.NodoI[i] + QStringLiteral(" )  del Ramal: %1\n").arg(i) +
                             QStringLiteral("Este Nodo Está Desconectado..."));
    }
}

void DatosRamales::Compatibilidad() {
    if (!HayRamales()) return;
    VerificaNodos();
    if (nodoVacio_) {
        nodoVacio_ = false;
        return;
    }
    NumeracionNodos();
    if (p_.ErrorNumeracion == 0)
        d_.MostrarMensaje(QStringLiteral("¡No se Encontraron Errores en la Numeración de los Ramales!"),
                          EncabezadoNumeracion, TituloProyectoFontaria());
    p_.ErrorNumeracion = 0;
}

void DatosRamales::NumerarDesde(int fila) {
    for (int f = std::max(fila, 1); f <= Spread1.Filas(); ++f) Spread1.PonerEntero(f, CRamal, f);
}

// Branch `desde` copied into `hacia`; the slots up to the counts the
// receiving index holds, which stay where they are.
void DatosRamales::CopiarRamal(int desde, int hacia) {
    ProyectoEdificio& p = p_;
    p.NodoI[hacia] = p.NodoI[desde];
    p.Nodoj[hacia] = p.Nodoj[desde];
    p.longitudReal[hacia] = p.longitudReal[desde];
    p.OpcionDiseño[hacia] = p.OpcionDiseño[desde];
    p.ValvulaR[hacia] = p.ValvulaR[desde];
    p.RamalComentario[hacia] = p.RamalComentario[desde];
    for (int j = 1; j <= p.NPiezas[hacia]; ++j) {
        p.PiezaClave(hacia, j) = p.PiezaClave(desde, j);
        p.PiezaNombre(hacia, j) = p.PiezaNombre(desde, j);
        p.PiezaUnidades(hacia, j) = p.PiezaUnidades(desde, j);
        p.PiezaCantidad(hacia, j) = p.PiezaCantidad(desde, j);
    }
    for (int j = 1; j <= p.NConexiones[hacia]; ++j) {
        p.ConexionClave(hacia, j) = p.ConexionClave(desde, j);
        p.ConexionNombre(hacia, j) = p.ConexionNombre(desde, j);
        p.ConexionLongitud(hacia, j) = p.ConexionLongitud(desde, j);
        p.ConexionCantidad(hacia, j) = p.ConexionCantidad(desde, j);
        p.ConexionAutomatica(hacia, j) = p.ConexionAutomatica(desde, j);
    }
}

void DatosRamales::LimpiarRamal(int r) {
    ProyectoEdificio& p = p_;
    p.NodoI[r].clear();
    p.Nodoj[r].clear();
    p.RamalComentario[r].clear();
    p.longitudReal[r] = 0;
    p.ValvulaR[r] = 0;
    p.OpcionDiseño[r] = 0;
    for (int j = 1; j <= p.NPiezas[r]; ++j) {
        p.PiezaClave(r, j) = 0;
        p.PiezaNombre(r, j).clear();
        p.PiezaUnidades(r, j) = 0;
        p.PiezaCantidad(r, j) = 0;
    }
    for (int j = 1; j <= p.NConexiones[r]; ++j) {
        p.ConexionClave(r, j) = 0;
        p.ConexionNombre(r, j).clear();
        p.ConexionLongitud(r, j) = 0;
        p.ConexionCantidad(r, j) = 0;
        p.ConexionAutomatica(r, j) = false;
    }
}

void DatosRamales::EliminarRamal(int r) {
    if (r < 1 || r > p_.NumeroRamales) return;
    if (!Spread1.Texto(r, CNodoI).isEmpty() &&
        d_.MostrarMensaje(QStringLiteral("Eliminar el Ramal-> ( %1 )\nI = ( ").arg(r) + p_.NodoI[r] +
                              QStringLiteral(" )  J = ( ") + p_.Nodoj[r] +
                              QStringLiteral(" )\n¿Esta Usted Seguro de Elimar el Ramal?"),
                          QStringLiteral("Eliminar Ramales..."), TituloProyectoFontaria(), Botones::SiNo, 0) !=
            Respuesta::Si)
        return;
    for (int i = r; i <= p_.NumeroRamales - 1; ++i) CopiarRamal(i + 1, i);
    for (int k = r + 1; k <= p_.NumeroNodos - 1; ++k) p_.CotaPiso[k] = p_.CotaPiso[k + 1];
    Spread1.EliminarFila(r);
    p_.NumeroRamales -= 1;
    RedimensioneVariables();
    numeroRamales_ = p_.NumeroRamales;
    NumerarDesde(r);
    if (Spread1.Filas() > 0) Spread1.PonerActiva(std::min(r, Spread1.Filas()), Spread1.ColumnaActiva());
    SeguirRevision();
    MarcarModificado();
    foco = Foco::Grid;
}

// The panel shows the active branch as it is after the rows moved.
void DatosRamales::SeguirRevision() {
    if (graficos_) CambiarGraficos(true);
}

void DatosRamales::InsertarRamal(int posicion) {
    const int p = posicion;
    if (p < 1 || p > p_.NumeroRamales) return;
    if (d_.MostrarMensaje(QStringLiteral("¿Insertar un Nuevo Ramal en la Posición: ( %1 )?").arg(p),
                          QStringLiteral("Insertar Ramales en la Red..."), TituloProyectoFontaria(), Botones::SiNo,
                          1) != Respuesta::Si)
        return;
    const Entero16 ramales = p_.NumeroRamales + 1;
    const Entero16 nodos = ramales + 1;  // checked before anything moves
    p_.NumeroRamales = ramales;
    p_.NumeroNodos = nodos;
    RedimensioneVariables();
    for (int i = p_.NumeroRamales; i >= p + 1; --i) CopiarRamal(i - 1, i);
    LimpiarRamal(p);
    for (int k = p_.NumeroNodos; k >= p + 1; --k) p_.CotaPiso[k] = p_.CotaPiso[k - 1];
    p_.CotaPiso[p + 1] = 0;
    numeroRamales_ = p_.NumeroRamales;
    Spread1.InsertarFila(p);
    Spread1.PonerColorFondo(p, CNodoI, ColorNodos);
    Spread1.PonerColorFondo(p, CNodoJ, ColorNodos);
    Spread1.PonerNumero(p, CLongitud, 0, 2);
    Spread1.PonerTexto(p, COpcion, Tanque);
    NumerarDesde(p);
    Spread1.PonerActiva(p, CNodoI);
    SeguirRevision();
    MarcarModificado();
    foco = Foco::Grid;
}

bool DatosRamales::HayRamales() const { return p_.NumeroRamales > 0 && Spread1.Filas() > 0; }

void DatosRamales::Crear() {
    if (HayRamales()) InsertarRamal(RamalActivo());
}

void DatosRamales::Eliminar() {
    if (HayRamales()) EliminarRamal(RamalActivo());
}

bool DatosRamales::SalvarArchivo() {
    QString error;
    if (!SalvarProyecto(p_, s_, error)) {
        d_.MostrarMensaje(error, QStringLiteral("Salvar el Proyecto..."), TituloProyectoFontaria());
        return false;
    }
    s_.ProyectoModificado = false;
    if (s_.EdicionDesdeAnalisis == 1) proyectoSalvado_ = true;
    return true;
}

bool DatosRamales::Salvar() {
    const bool salvado = SalvarArchivo();
    foco = Foco::Grid;
    return salvado;
}

bool DatosRamales::PreguntarSalvar() {
    if (!s_.ProyectoModificado) return true;
    const int r = d_.MostrarMensaje(
        QStringLiteral("Los Datos del Proyecto han sido Modificados...\n¿Desea Salvar los Cambios Realizados?"),
        QStringLiteral("Salvar las Modificaciones..."), TituloProyectoFontaria(), Botones::SiNoCancelar, 2);
    if (r == Respuesta::Cancelar) return false;
    return r != Respuesta::Si || SalvarArchivo();
}

bool DatosRamales::PuedeCerrar() { return PreguntarSalvar(); }

void DatosRamales::Abrir() {
    if (s_.EdicionDesdeAnalisis == 1 || !PreguntarSalvar()) return;
    foco = Foco::PrimerControl;
    const auto ruta = d_.AbrirArchivo(QStringLiteral("Abrir un Proyecto Existente"), QStringLiteral("*.plm|*.plm"),
                                      s_.RutaDatos(QStringLiteral("Proyectos")));
    if (!ruta) return;
    const QString archivo = s_.ArchivoProyecto, nombre = s_.NombreProyecto;
    const bool modificado = s_.ProyectoModificado;
    ProyectoEdificio nuevo;
    nuevo.Cliente = p_.Cliente;
    QString error;
    if (!CargarProyectoEdificio(nuevo, s_, *ruta, error)) {
        // The project in memory stays the one being edited, on its file.
        s_.ArchivoProyecto = archivo;
        s_.NombreProyecto = nombre;
        s_.ProyectoModificado = modificado;
        if (!archivo.isEmpty() && s_.ConexionProyecto.Abierta() == false) AbrirConexionProyecto(s_);
        d_.MostrarMensaje(error, QStringLiteral("Error en Lectura de Datos..."), TituloProyectoFontaria());
        return;
    }
    p_ = std::move(nuevo);
    ColoquePantalla();
    p_.Fecha = Hoy();
    graficos_ = false;
    if (Spread1.Filas() > 0) Spread1.PonerActiva(1, CLongitud);
    s_.ProyectoModificado = false;
}

bool DatosRamales::PuedeAbrirRamal(bool verificar) {
    if (!HayRamales()) return false;
    if (verificar) {
        VerificaNodos();
        if (nodoVacio_) {
            nodoVacio_ = false;
            foco = Foco::Grid;
            return false;
        }
    }
    s_.RamalActual = RamalActivo();
    return true;
}

bool DatosRamales::PiezasSanitarias() { return PuedeAbrirRamal(true); }
bool DatosRamales::Conexiones() { return PuedeAbrirRamal(true); }
bool DatosRamales::CotasPiso() { return PuedeAbrirRamal(true); }
bool DatosRamales::Diseno() { return PuedeAbrirRamal(false); }
bool DatosRamales::Longitudes() { return PuedeAbrirRamal(false); }

void DatosRamales::BuscarRamal(const BuscarPartida& b) {
    if (!HayRamales()) return;
    if (const auto fila = FilaBuscada(b, RamalActivo(), Spread1.Filas())) MoverCursor(*fila, Spread1.ColumnaActiva());
    foco = Foco::Grid;
}

bool DatosRamales::CambiarGraficos(bool si) {
    const bool encender = si && !graficos_ && HayRamales();
    graficos_ = si && HayRamales();
    // The project's copy of the catalogue's photographs, made once, as the
    // branch screens make it.
    if (encender && s_.ConexionCatalogo.Abierta()) {
        VerifiqueImagenesProyecto(s_, TablaImagenes::Piezas);
        VerifiqueImagenesProyecto(s_, TablaImagenes::Conexiones);
    }
    if (graficos_) ColoqueRevision(RamalActivo());
    return graficos_;
}

void DatosRamales::ColoqueRevision(int ramal) {
    ramalRevision_ = ramal;
    ColoquePiezasTemp(ramal);
    ColoqueConexionesTemp(ramal);
}

// Rows of the fixtures or fittings of a branch from `fila` on, each with the
// photograph of its key in the project's mirror of the catalogue; a blank
// row when there are none.  The row after the last is returned.
int DatosRamales::ColoqueFilas(bool piezas, int ramal, int fila) {
    const int n = piezas ? p_.NPiezas.Leer(ramal) : p_.NConexiones.Leer(ramal);
    Registros imagenes;
    const bool conImagenes =
        s_.ConexionProyecto.Abierta() &&
        AbrirTabla(s_.ConexionProyecto, imagenes, piezas ? QStringLiteral("ImgPiezas") : QStringLiteral("ImgConexiones")) == 0;
    for (int j = 1; j <= n; ++j, ++fila) {
        const int clave = piezas ? p_.PiezaClave.Leer(ramal, j) : p_.ConexionClave.Leer(ramal, j);
        Spread2.PonerEntero(fila, RClave, clave);
        Spread2.PonerTexto(fila, RNombre, piezas ? p_.PiezaNombre.Leer(ramal, j) : p_.ConexionNombre.Leer(ramal, j));
        Spread2.PonerEntero(fila, RCantidad, piezas ? p_.PiezaCantidad.Leer(ramal, j) : p_.ConexionCantidad.Leer(ramal, j));
        QImage foto;
        if (conImagenes && imagenes.RecordCount() > 0 && BuscarClave(imagenes, QStringLiteral("Clave=%1").arg(clave)))
            LeerImagen(imagenes, foto);
        Spread2.PonerImagen(fila, RFoto, foto);
    }
    return n > 0 ? fila : fila + 1;
}

void DatosRamales::ColoquePiezasTemp(int ramal) {
    Spread2.Vaciar();
    Spread2.PonerFilas(100);
    Spread2.PonerTexto(1, RClave, QStringLiteral("PIEZAS SANITARIAS EN EL RAMAL ( %1 )").arg(ramal));
    for (int c = RClave; c <= RCantidad; ++c) Spread2.Cel(1, c).negrita = true;
    Spread2.AgregarUnion(1, RClave, 1, RCantidad);
    filaRevision_ = ColoqueFilas(true, ramal, 2);
}

void DatosRamales::ColoqueConexionesTemp(int ramal) {
    int f = filaRevision_ > 0 ? filaRevision_ : 1;
    if (Spread2.Filas() < f) Spread2.PonerFilas(f + 31);
    Spread2.PonerTexto(f, RClave, QStringLiteral("PIEZAS DE CONEXIÓN EN EL RAMAL ( %1 )").arg(ramal));
    for (int c = RClave; c <= RCantidad; ++c) Spread2.PonerColorFondo(f, c, ColorConexiones);
    Spread2.AgregarUnion(f, RClave, 1, RCantidad);
    filaRevision_ = ColoqueFilas(false, ramal, f + 1);
    Spread2.PonerFilas(filaRevision_ - 1);
}

void DatosRamales::IrARamal(int ramal, int columna) { MoverCursor(ramal, columna); }

QString DatosRamales::TextoRamal(int ramal, int columna) const {
    return ramal >= 1 && ramal <= Spread1.Filas() ? Spread1.Texto(ramal, columna) : QString();
}

void DatosRamales::FijarLongitud(int ramal, double longitud) {
    if (ramal < 1 || ramal > Spread1.Filas() || Spread1.EstaBloqueada(ramal, CLongitud)) return;
    p_.longitudReal[ramal] = longitud;
    Spread1.PonerNumero(ramal, CLongitud, longitud, 2);
    MarcarModificado();
}
