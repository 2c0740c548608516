#include "base/Grid.h"

#include "base/ErrorEjecucion.h"
#include "base/Nivo.h"

#include <algorithm>
#include <numeric>

Grid::Grid(int columnas) { PonerColumnas(columnas); }

void Grid::PonerColumnas(int n) {
    const int antes = int(columnas_.size());
    std::vector<Celda> nuevas(size_t(filas_ + 1) * size_t(n + 1));
    for (int f = 0; f <= filas_; ++f)
        for (int c = 0; c < std::min(antes, n + 1); ++c)
            nuevas[size_t(f) * size_t(n + 1) + size_t(c)] = celdas_[size_t(f) * size_t(antes) + size_t(c)];
    celdas_ = std::move(nuevas);
    imagenes_.clear();  // a grid's columns are laid out before its pictures
    columnas_.resize(size_t(n + 1));
    columnas_[0].bloqueada = true;
    for (auto& e : encabezados_) {
        while (e.size() < n + 1) e << QString();
        while (e.size() > n + 1) e.removeLast();
    }
    ++version_;
}

void Grid::PonerFilas(int n) {
    if (n < 0) n = 0;
    celdas_.resize(size_t(n + 1) * columnas_.size());
    if (!imagenes_.empty()) imagenes_.resize(celdas_.size());
    filas_ = n;
    uniones_.erase(std::remove_if(uniones_.begin(), uniones_.end(),
                                  [n](const Union& u) { return u.fila > n; }),
                   uniones_.end());
    ++version_;
}

void Grid::Vaciar() {
    celdas_.assign(columnas_.size(), Celda());
    imagenes_.clear();
    filas_ = 0;
    uniones_.clear();
    filaActiva_ = 1;
    ++version_;
}

void Grid::InsertarFila(int fila) {
    if (fila < 1 || fila > filas_ + 1) throw ErrorEjecucion(Error::SubindiceFuera);
    celdas_.insert(celdas_.begin() + std::ptrdiff_t(size_t(fila) * columnas_.size()),
                   columnas_.size(), Celda());
    if (!imagenes_.empty())
        imagenes_.insert(imagenes_.begin() + std::ptrdiff_t(size_t(fila) * columnas_.size()), columnas_.size(),
                         nullptr);
    ++filas_;
    for (auto& u : uniones_)
        if (u.fila >= fila) ++u.fila;
    ++version_;
}

void Grid::EliminarFila(int fila) {
    if (fila < 1 || fila > filas_) throw ErrorEjecucion(Error::SubindiceFuera);
    auto inicio = celdas_.begin() + std::ptrdiff_t(size_t(fila) * columnas_.size());
    celdas_.erase(inicio, inicio + std::ptrdiff_t(columnas_.size()));
    if (!imagenes_.empty()) {
        auto i = imagenes_.begin() + std::ptrdiff_t(size_t(fila) * columnas_.size());
        imagenes_.erase(i, i + std::ptrdiff_t(columnas_.size()));
    }
    --filas_;
    uniones_.erase(std::remove_if(uniones_.begin(), uniones_.end(),
                                  [fila](const Union& u) { return u.fila == fila; }),
                   uniones_.end());
    for (auto& u : uniones_)
        if (u.fila > fila) --u.fila;
    ++version_;
}

Columna& Grid::Col(int c) {
    if (c < 0 || size_t(c) >= columnas_.size()) throw ErrorEjecucion(Error::SubindiceFuera);
    ++version_;
    return columnas_[size_t(c)];
}

const Columna& Grid::Col(int c) const {
    if (c < 0 || size_t(c) >= columnas_.size()) throw ErrorEjecucion(Error::SubindiceFuera);
    return columnas_[size_t(c)];
}

QString Grid::Encabezado(int fila, int columna) const {
    if (fila < 1 || fila > 2 || columna < 0 || columna > Columnas()) return QString();
    return encabezados_[fila - 1][columna];
}

void Grid::PonerEncabezado(int fila, int columna, const QString& texto) {
    if (fila < 1 || fila > 2 || columna < 0 || columna > Columnas())
        throw ErrorEjecucion(Error::SubindiceFuera);
    encabezados_[fila - 1][columna] = texto;
    ++version_;
}

void Grid::PonerEncabezados(int columna, const QString& grupo, const QString& nombre) {
    PonerEncabezado(1, columna, grupo);
    if (nombre.isNull()) {
        PonerEncabezado(2, columna, QString());
        UnirEncabezado(1, columna, 2, 1);
    } else {
        PonerEncabezado(2, columna, nombre);
    }
}

void Grid::UnirEncabezado(int fila, int columna, int filas, int columnas) {
    unionesEncabezado_.erase(
        std::remove_if(unionesEncabezado_.begin(), unionesEncabezado_.end(),
                       [&](const Union& u) { return u.fila == fila && u.columna == columna; }),
        unionesEncabezado_.end());
    if (filas > 1 || columnas > 1) unionesEncabezado_.push_back({fila, columna, filas, columnas});
    ++version_;
}

size_t Grid::Indice(int fila, int columna) const {
    if (fila < 1 || fila > filas_ || columna < 0 || columna > Columnas())
        throw ErrorEjecucion(Error::SubindiceFuera);
    return size_t(fila) * columnas_.size() + size_t(columna);
}

const Celda& Grid::Cel(int fila, int columna) const { return celdas_[Indice(fila, columna)]; }

Celda& Grid::Cel(int fila, int columna) {
    ++version_;
    return celdas_[Indice(fila, columna)];
}

QString Grid::Texto(int fila, int columna) const { return Cel(fila, columna).texto; }

double Grid::Valor(int fila, int columna) const {
    const Celda& c = Cel(fila, columna);
    if (c.esNumero) return c.valor;
    double v = 0.0;
    return LeerNumero(c.texto, v) ? v : 0.0;
}

bool Grid::EsNumero(int fila, int columna) const { return Cel(fila, columna).esNumero; }

void Grid::PonerTexto(int fila, int columna, const QString& texto) {
    Celda& c = Cel(fila, columna);
    c.texto = texto;
    c.esNumero = false;
    c.valor = 0.0;
}

void Grid::PonerNumero(int fila, int columna, double valor, int decimales) {
    Celda& c = Cel(fila, columna);
    // The pictures "0", "0.0", ... "0.000000", made once.
    static const QStringList mascaras = [] {
        QStringList l{QStringLiteral("0")};
        for (int d = 1; d <= 6; ++d) l << QStringLiteral("0.") + QString(d, QLatin1Char('0'));
        return l;
    }();
    const QString mascara = decimales <= 6 ? mascaras[std::max(decimales, 0)]
                                           : QStringLiteral("0.") + QString(decimales, QLatin1Char('0'));
    c.texto = Formato(valor, mascara);
    c.valor = valor;
    c.esNumero = true;
}

void Grid::PonerEntero(int fila, int columna, long long valor) {
    Celda& c = Cel(fila, columna);
    c.texto = QString::number(valor);
    c.valor = double(valor);
    c.esNumero = true;
}

void Grid::PonerVacio(int fila, int columna) { PonerTexto(fila, columna, QString()); }

void Grid::PonerColorFondo(int fila, int columna, int color) { Cel(fila, columna).colorFondo = color; }

void Grid::PonerColorTexto(int fila, int columna, int color) { Cel(fila, columna).colorTexto = color; }

void Grid::Bloquear(int fila, int columna, bool bloqueada) { Cel(fila, columna).bloqueada = bloqueada; }

bool Grid::EstaBloqueada(int fila, int columna) const {
    return Cel(fila, columna).bloqueada || Col(columna).bloqueada;
}

TipoCelda Grid::Tipo(int fila, int columna) const {
    const TipoCelda t = Cel(fila, columna).tipo;
    return t == TipoCelda::Heredado ? Col(columna).tipo : t;
}

bool Grid::TieneImagen(int fila, int columna) const {
    const size_t i = Indice(fila, columna);
    return !imagenes_.empty() && imagenes_[i];
}

void Grid::Unir(int fila, int columna, int filas, int columnas) {
    uniones_.erase(std::remove_if(uniones_.begin(), uniones_.end(),
                                  [&](const Union& u) { return u.fila == fila && u.columna == columna; }),
                   uniones_.end());
    if (filas > 1 || columnas > 1) uniones_.push_back({fila, columna, filas, columnas});
    ++version_;
}

void Grid::AgregarUnion(int fila, int columna, int filas, int columnas) {
    if (filas > 1 || columnas > 1) uniones_.push_back({fila, columna, filas, columnas});
    ++version_;
}

const Union* Grid::UnionEn(int fila, int columna) const {
    for (const auto& u : uniones_)
        if (u.fila == fila && u.columna == columna) return &u;
    return nullptr;
}

void Grid::PonerActiva(int fila, int columna) {
    filaActiva_ = fila;
    columnaActiva_ = columna;
    ++version_;
}

void Grid::OrdenarPorTexto(int columna, bool (*menor)(const QString&, const QString&)) {
    const size_t n = columnas_.size();
    std::vector<int> orden(static_cast<size_t>(filas_));
    std::iota(orden.begin(), orden.end(), 1);
    std::stable_sort(orden.begin(), orden.end(), [&](int a, int b) {
        return menor ? menor(Texto(a, columna), Texto(b, columna)) : Texto(a, columna) < Texto(b, columna);
    });
    auto reordenar = [&](auto& v) {
        std::remove_reference_t<decltype(v)> nuevas(v.size());
        std::copy(v.begin(), v.begin() + std::ptrdiff_t(n), nuevas.begin());
        for (int i = 0; i < filas_; ++i)
            std::copy_n(v.begin() + std::ptrdiff_t(size_t(orden[size_t(i)]) * n), n,
                        nuevas.begin() + std::ptrdiff_t(size_t(i + 1) * n));
        v = std::move(nuevas);
    };
    reordenar(celdas_);
    if (!imagenes_.empty()) reordenar(imagenes_);
    ++version_;
}

QString GridComoTexto(const Grid& g) {
    QString s;
    for (int h = 1; h <= 2; ++h) {
        QStringList celdas;
        for (int c = 0; c <= g.Columnas(); ++c) celdas << g.Encabezado(h, c);
        s += celdas.join(QLatin1Char('|')) + QLatin1Char('\n');
    }
    for (int f = 1; f <= g.Filas(); ++f) {
        QStringList celdas;
        for (int c = 0; c <= g.Columnas(); ++c) celdas << g.Texto(f, c);
        s += celdas.join(QLatin1Char('|')) + QLatin1Char('\n');
    }
    return s;
}
