#include "workbook/HojaLibro.h"

#include <algorithm>
#include <unordered_map>

bool EstiloLibro::operator==(const EstiloLibro& o) const {
    return tamano == o.tamano && negrita == o.negrita && subrayado == o.subrayado && ajustar == o.ajustar &&
           horizontal == o.horizontal && vertical == o.vertical && fondo == o.fondo && letra == o.letra &&
           formato == o.formato && bordes == o.bordes;
}

unsigned ColorPaleta(int indice) {
    // The workbook's own palette, written as the spreadsheet takes it (blue
    // in the high byte).
    static const struct {
        int indice;
        unsigned bgr;
    } propios[] = {{11, 0xB69778}, {12, 0x6C5237}, {41, 0xBFEEFF}, {42, 0xD6EBE4}, {43, 0xD1D1FA},
                   {44, 0xF4E3EA}, {45, 0xD1D6BE}, {46, 0xBED7FC}, {47, 0xF4D9CE}, {48, 0xE0D9EC},
                   {49, 0xC0EDE4}, {50, 0xD0E6DE}, {51, 0xD7D7FB}, {52, 0xEFD1DD}, {53, 0xD3D8C2},
                   {54, 0xC8DDFD}, {55, 0xF2D6C8}};
    for (const auto& p : propios)
        if (p.indice == indice) return ((p.bgr & 0xFF) << 16) | (p.bgr & 0xFF00) | (p.bgr >> 16);
    // The spreadsheet's default palette, as RGB.
    static const unsigned defecto[56] = {
        0x000000, 0xFFFFFF, 0xFF0000, 0x00FF00, 0x0000FF, 0xFFFF00, 0xFF00FF, 0x00FFFF, 0x800000, 0x008000,
        0x000080, 0x808000, 0x800080, 0x008080, 0xC0C0C0, 0x808080, 0x9999FF, 0x993366, 0xFFFFCC, 0xCCFFFF,
        0x660066, 0xFF8080, 0x0066CC, 0xCCCCFF, 0x000080, 0xFF00FF, 0xFFFF00, 0x00FFFF, 0x800080, 0x800000,
        0x008080, 0x0000FF, 0x00CCFF, 0xCCFFFF, 0xCCFFCC, 0xFFFF99, 0x99CCFF, 0xFF99CC, 0xCC99FF, 0xFFCC99,
        0x3366FF, 0x33CCCC, 0x99CC00, 0xFFCC00, 0xFF9900, 0xFF6600, 0x666699, 0x969696, 0x003366, 0x339966,
        0x003300, 0x333300, 0x993300, 0x993366, 0x333399, 0x333333};
    return indice >= 1 && indice <= 56 ? defecto[indice - 1] : 0x000000;
}

namespace {

// Reads "B12" from `p`, leaving it after the reference; a missing row is 0.
void LeerReferencia(const char*& p, int& fila, int& columna) {
    columna = 0;
    while (*p >= 'A' && *p <= 'Z') columna = columna * 26 + (*p++ - 'A' + 1);
    fila = 0;
    while (*p >= '0' && *p <= '9') fila = fila * 10 + (*p++ - '0');
}

}  // namespace

Rango Rg(const char* a1, int ultima) {
    Rango r;
    const char* p = a1;
    LeerReferencia(p, r.fila1, r.columna1);
    if (*p == ':') {
        ++p;
        LeerReferencia(p, r.fila2, r.columna2);
        if (r.fila2 == 0) r.fila2 = ultima;
    } else {
        r.fila2 = r.fila1;
        r.columna2 = r.columna1;
    }
    return r;
}

QString Referencia(int fila, int columna) {
    QString letras;
    for (int c = columna; c > 0; c = (c - 1) / 26) letras.prepend(QChar('A' + (c - 1) % 26));
    return letras + QString::number(fila);
}

HojaLibro::HojaLibro(const QString& nombre) : nombre_(nombre), filas_(1), estilos_(1) {}

CeldaLibro& HojaLibro::Asegurar(int fila, int columna) {
    if (fila >= int(filas_.size())) filas_.resize(size_t(fila) + 1);
    auto& f = filas_[size_t(fila)];
    columnas_ = std::max(columnas_, columna);
    // A row is filled left to right: it takes the sheet's width at once.
    if (columna >= int(f.size())) {
        f.reserve(size_t(columnas_) + 1);
        f.resize(size_t(columna) + 1);
    }
    return f[size_t(columna)];
}

const CeldaLibro& HojaLibro::Celda(int fila, int columna) const {
    static const CeldaLibro vacia;
    if (fila < 1 || fila >= int(filas_.size())) return vacia;
    const auto& f = filas_[size_t(fila)];
    return columna >= 1 && columna < int(f.size()) ? f[size_t(columna)] : vacia;
}

const EstiloLibro& HojaLibro::Estilo(int fila, int columna) const { return estilos_[size_t(Celda(fila, columna).estilo)]; }

void HojaLibro::PonerNumero(int fila, int columna, double valor) {
    CeldaLibro& c = Asegurar(fila, columna);
    c.tipo = CeldaLibro::Numero;
    c.numero = valor;
    c.texto.clear();
}

void HojaLibro::PonerTexto(int fila, int columna, const QString& texto) {
    CeldaLibro& c = Asegurar(fila, columna);
    c.tipo = texto.isEmpty() ? CeldaLibro::Vacia : CeldaLibro::Texto;
    c.texto = texto;
}

int HojaLibro::Internar(const EstiloLibro& e) {
    for (size_t i = 0; i < estilos_.size(); ++i)
        if (estilos_[i] == e) return int(i);
    estilos_.push_back(e);
    return int(estilos_.size()) - 1;
}

void HojaLibro::Formato(const Rango& r, const std::function<void(EstiloLibro&)>& cambio) {
    if (r.Vacio() || r.fila1 < 1 || r.columna1 < 1) return;
    // A range of many rows holds few styles: each is changed once.
    std::unordered_map<int, int> hechos;
    for (int f = r.fila1; f <= r.fila2; ++f)
        for (int c = r.columna1; c <= r.columna2; ++c) {
            CeldaLibro& celda = Asegurar(f, c);
            auto it = hechos.find(celda.estilo);
            if (it == hechos.end()) {
                EstiloLibro e = estilos_[size_t(celda.estilo)];
                cambio(e);
                it = hechos.emplace(celda.estilo, Internar(e)).first;
            }
            celda.estilo = it->second;
        }
}

void HojaLibro::Bordes(const Rango& r, bool izquierdo, bool superior, bool derecho, bool inferior,
                       bool horizontales, bool verticales) {
    if (r.Vacio()) return;
    auto lado = [&](const Rango& parte, unsigned char borde) {
        Formato(parte, [borde](EstiloLibro& e) { e.bordes |= borde; });
    };
    if (izquierdo) lado({r.fila1, r.columna1, r.fila2, r.columna1}, Borde::Izquierdo);
    if (derecho) lado({r.fila1, r.columna2, r.fila2, r.columna2}, Borde::Derecho);
    if (superior) lado({r.fila1, r.columna1, r.fila1, r.columna2}, Borde::Superior);
    if (inferior) lado({r.fila2, r.columna1, r.fila2, r.columna2}, Borde::Inferior);
    if (verticales && r.columna2 > r.columna1) lado({r.fila1, r.columna1, r.fila2, r.columna2 - 1}, Borde::Derecho);
    if (horizontales && r.fila2 > r.fila1) lado({r.fila1, r.columna1, r.fila2 - 1, r.columna2}, Borde::Inferior);
}

void HojaLibro::Unir(const Rango& r) {
    if (r.Vacio() || (r.fila1 == r.fila2 && r.columna1 == r.columna2)) return;
    for (int f = r.fila1; f <= r.fila2; ++f)
        for (int c = r.columna1; c <= r.columna2; ++c)
            if (f != r.fila1 || c != r.columna1) {
                CeldaLibro& celda = Asegurar(f, c);
                celda.tipo = CeldaLibro::Vacia;
                celda.texto.clear();
            }
    Asegurar(r.fila1, r.columna1);
    uniones_.push_back(r);
}

void HojaLibro::PonerVinculo(int fila, int columna, const QString& destino, const QString& texto) {
    PonerTexto(fila, columna, texto);
    vinculos_.push_back({fila, columna, destino, texto});
}

void HojaLibro::AnchoColumnas(int desde, int hasta, double ancho) {
    if (hasta >= int(anchos_.size())) anchos_.resize(size_t(hasta) + 1, 0.0);
    for (int c = desde; c <= hasta; ++c) anchos_[size_t(c)] = ancho;
}

void HojaLibro::Anchos(std::initializer_list<double> anchos) {
    int c = 1;
    for (double a : anchos) AnchoColumnas(c, c, a), ++c;
}

void HojaLibro::Inmovilizar(const char* celda) {
    const Rango r = Rg(celda);
    inmovilizarFila = r.fila1;
    inmovilizarColumna = r.columna1;
}

void HojaLibro::Seleccionar(const char* celda) {
    const Rango r = Rg(celda);
    seleccionFila = r.fila1;
    seleccionColumna = r.columna1;
}

double HojaLibro::AnchoColumna(int columna) const {
    return columna < int(anchos_.size()) ? anchos_[size_t(columna)] : 0.0;
}

void HojaLibro::AltoFila(int fila, double alto) {
    if (fila >= int(altos_.size())) altos_.resize(size_t(fila) + 1, 0.0);
    altos_[size_t(fila)] = alto;
}

double HojaLibro::AltoFilaFijado(int fila) const { return fila < int(altos_.size()) ? altos_[size_t(fila)] : 0.0; }
