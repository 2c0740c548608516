#include "catalogue/BDCatalogo.h"

#include "base/Dialogos.h"
#include "base/Nivo.h"
#include "images/Imagen.h"
#include "shell/Sesion.h"
#include "shell/Titulos.h"
#include "store/Colacion.h"

#include <algorithm>
#include <numeric>

namespace {

constexpr int ColClave = 1, ColImagen = 2, ColNombre = 3, ColFiguras = 4;
// The tint behind "Automático", a pale yellow (0x00BBGGRR).
constexpr int ColorAutomatico = 0xC0FFFF;

}  // namespace

BDCatalogo::BDCatalogo(const TipoCatalogo& t, Sesion& s, Dialogos& d, bool captura)
    : s_(s), d_(d), t_(t), captura_(captura) {}

Registros& BDCatalogo::Rs() { return s_.*(t_.registros); }

void BDCatalogo::Cargar() {
    if (!captura_ || !Rs().Abierto()) {
        // A catalogue file missing or of another kind is said, not shown as
        // an empty catalogue: by why it could not be opened, or else why it
        // could not be read.
        const Conexion& c = s_.ConexionCatalogo;
        const QString porQueNoAbrio = c.Abierta() ? QString() : c.UltimoError();
        if (!t_.leer(s_)) {
            QString motivo = porQueNoAbrio.isEmpty() ? Rs().Error() : porQueNoAbrio;
            if (c.Abierta()) motivo = c.Ruta() + QLatin1Char('\n') + motivo;
            d_.MostrarMensaje(QStringLiteral("No se pudo leer la base de datos:\n") + motivo,
                              t_.titulo + QStringLiteral("..."), TituloProyectoFontaria());
        }
        abiertoAqui_ = true;
    }
    ConfigurarSpread();
    ColoquePantalla();
    Spread1.PonerActiva(1, ColNombre);
}

void BDCatalogo::ConfigurarSpread() {
    Spread1 = Grid(ColFiguras - 1 + int(t_.figuras.size()));
    Spread1.PonerEncabezados(ColClave, QStringLiteral("Clave"));
    Spread1.PonerEncabezados(ColImagen, QStringLiteral("Imagen"));
    Spread1.PonerEncabezados(ColNombre, QStringLiteral("Descripción"));
    for (int i = 0; i < t_.figuras.size(); ++i) {
        Spread1.PonerEncabezado(1, ColFiguras + i, t_.encabezados1.value(i));
        Spread1.PonerEncabezado(2, ColFiguras + i, t_.encabezados2.value(i));
        Columna& c = Spread1.Col(ColFiguras + i);
        c.tipo = TipoCelda::Numero;
        c.ancho = t_.automatico ? 15 : 11;
    }
    // The upper header row pairs the figures of one use.
    for (int i = 0; i + 1 < t_.figuras.size(); i += 2) Spread1.UnirEncabezado(1, ColFiguras + i, 1, 2);
    Spread1.Col(ColClave).tipo = TipoCelda::Entero;
    Spread1.Col(ColClave).ancho = 6;
    Spread1.Col(ColImagen).tipo = TipoCelda::Imagen;
    Spread1.Col(ColImagen).ancho = 12;
    Spread1.Col(ColNombre).ancho = 40;
}

void BDCatalogo::ColoquePantalla(int registro) {
    Registros& rs = Rs();
    const int n = rs.Abierto() ? rs.RecordCount() : 0;
    orden_.resize(size_t(n));
    std::iota(orden_.begin(), orden_.end(), 0);
    columnaOrden_ = ColClave;
    descendente_ = false;
    Spread1.PonerFilas(n);
    for (int f = 1; f <= n; ++f) {
        rs.Mover(f - 1);
        ColoqueLinea(f);
    }
    PonerActiva(std::clamp(registro, 1, std::max(1, n)));
}

void BDCatalogo::ColoqueLinea(int fila) {
    const Registros& rs = Rs();
    Spread1.PonerEntero(fila, ColClave, ComoEntero(rs.Campo(t_.campoClave)));
    QImage foto;
    if (!rs.Campo(QStringLiteral("ExisteFoto")).isNull()) LeerImagen(rs, foto);
    Spread1.PonerImagen(fila, ColImagen, foto);
    Spread1.PonerTexto(fila, ColNombre, ComoTexto(rs.Campo(t_.campoNombre)));
    for (int i = 0; i < t_.figuras.size(); ++i) {
        const int c = ColFiguras + i;
        Spread1.PonerColorFondo(fila, c, SinColor);
        if (t_.automatico && ComoLogico(rs.Campo(QStringLiteral("Automatico")))) {
            Spread1.PonerTexto(fila, c, TextoAutomaticoCatalogo());
            Spread1.PonerColorFondo(fila, c, ColorAutomatico);
            continue;
        }
        const double v = ComoDoble(rs.Campo(t_.figuras[i]));
        // A fixture's figure shows only above 0; a fitting's length always.
        if (t_.automatico || v > 0) Spread1.PonerNumero(fila, c, v, 2);
        else Spread1.PonerVacio(fila, c);
    }
}

QString BDCatalogo::Cuenta() const { return Formato(Filas(), QStringLiteral("#,##0")); }

int BDCatalogo::FilaActiva() const {
    if (Filas() == 0) return 0;
    return std::clamp(Spread1.FilaActiva(), 1, Filas());
}

void BDCatalogo::PonerActiva(int fila) {
    Spread1.PonerActiva(std::max(1, fila), std::max(ColClave, Spread1.ColumnaActiva()));
}

int BDCatalogo::Registro(int fila) {
    if (fila < 1 || fila > int(orden_.size()) || !Rs().Abierto()) return 0;
    Rs().Mover(orden_[size_t(fila - 1)]);
    return orden_[size_t(fila - 1)] + 1;
}

int BDCatalogo::FilaDeRegistro(int registro) const {
    const auto i = std::find(orden_.begin(), orden_.end(), registro - 1);
    return i == orden_.end() ? 0 : int(i - orden_.begin()) + 1;
}

void BDCatalogo::Eliminar() {
    const int fila = FilaActiva();
    if (fila == 0 || Registro(fila) == 0) {
        d_.Pitido();
        return;
    }
    Registros& rs = Rs();
    const int clave = int(ComoEntero(rs.Campo(t_.campoClave)));
    const QString nombre = ComoTexto(rs.Campo(t_.campoNombre));
    const QString textoClave = QString::number(clave) + QStringLiteral(" )") + nombre;
    if (clave <= t_.ultimaReservada) {
        d_.MostrarMensaje(t_.reservada1 + textoClave + t_.reservada2, t_.encabezadoEliminar, TituloProyectoFontaria());
        return;
    }
    if (d_.MostrarMensaje(t_.pregunta1 + textoClave + t_.pregunta2, t_.encabezadoEliminar, TituloProyectoFontaria(),
                          Botones::SiNo) != Respuesta::Si)
        return;
    const int registro = orden_[size_t(fila - 1)];
    if (!s_.ConexionCatalogo.Ejecutar(QStringLiteral("DELETE FROM ") + t_.tabla + QStringLiteral(" WHERE ") +
                                          t_.campoClave + QStringLiteral("=?"),
                                      {clave})) {
        AvisarFalla(QStringLiteral("eliminar"), s_.ConexionCatalogo.UltimoError());
        return;
    }
    // The record set read again; the rows after the one gone move up by one.
    t_.leer(s_);
    orden_.erase(orden_.begin() + fila - 1);
    for (int& r : orden_)
        if (r > registro) --r;
    Spread1.EliminarFila(fila);
    PonerActiva(std::min(fila, Filas()));
}

void BDCatalogo::AvisarFalla(const QString& accion, const QString& motivo) {
    const QString donde = accion == QLatin1String("eliminar") ? QStringLiteral(" de") : QStringLiteral(" en");
    d_.MostrarMensaje(QStringLiteral("No se pudo ") + accion + QLatin1Char(' ') + t_.cosa + donde +
                          QStringLiteral(" la base de datos:\n") + s_.ConexionCatalogo.Ruta() + QLatin1Char('\n') +
                          motivo,
                      t_.titulo + QStringLiteral("..."), TituloProyectoFontaria());
}

void BDCatalogo::Ordenar(int columna) {
    if (columna < ColClave || columna > Spread1.Columnas() || columna == ColImagen || !Rs().Abierto()) return;
    descendente_ = columna == columnaOrden_ ? !descendente_ : false;
    columnaOrden_ = columna;
    Registros& rs = Rs();
    // The key of each record by the column: a number, or the name.
    std::vector<double> numero(size_t(rs.RecordCount()));
    std::vector<QString> texto(size_t(rs.RecordCount()));
    for (int r = 0; r < rs.RecordCount(); ++r) {
        rs.Mover(r);
        if (columna == ColNombre) texto[size_t(r)] = ComoTexto(rs.Campo(t_.campoNombre));
        else if (columna == ColClave) numero[size_t(r)] = ComoDoble(rs.Campo(t_.campoClave));
        // An automatic fitting has no length: it goes before every length.
        else if (t_.automatico && ComoLogico(rs.Campo(QStringLiteral("Automatico")))) numero[size_t(r)] = -1;
        else numero[size_t(r)] = ComoDoble(rs.Campo(t_.figuras[columna - ColFiguras]));
    }
    const int activo = FilaActiva() ? orden_[size_t(FilaActiva() - 1)] : -1;
    std::stable_sort(orden_.begin(), orden_.end(), [&](int a, int b) {
        const int c = columna == ColNombre ? CompararTexto(texto[size_t(a)], texto[size_t(b)])
                                           : (numero[size_t(a)] < numero[size_t(b)] ? -1 : numero[size_t(a)] > numero[size_t(b)]);
        return descendente_ ? c > 0 : c < 0;
    });
    for (int f = 1; f <= Filas(); ++f) {
        rs.Mover(orden_[size_t(f - 1)]);
        ColoqueLinea(f);
    }
    if (activo >= 0) PonerActiva(FilaDeRegistro(activo + 1));
}

bool BDCatalogo::Buscar(const QString& texto) {
    const QString buscado = Trim(texto);
    const int n = Filas();
    if (!buscado.isEmpty())
        for (int i = 1; i <= n; ++i) {
            const int f = (FilaActiva() - 1 + i) % n + 1;
            if (Spread1.Texto(f, ColNombre).contains(buscado, Qt::CaseInsensitive)) {
                Spread1.PonerActiva(f, ColNombre);
                return true;
            }
        }
    d_.Pitido();
    return false;
}

QImage BDCatalogo::ImagenFila(int fila) {
    QImage foto;
    if (Registro(fila) > 0 && !Rs().Campo(QStringLiteral("ExisteFoto")).isNull()) LeerImagen(Rs(), foto);
    return foto;
}

void BDCatalogo::Cerrar() {
    if (abiertoAqui_) Rs().Close();
    abiertoAqui_ = false;
}
