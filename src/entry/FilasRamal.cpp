#include "entry/FilasRamal.h"

#include "base/Dialogos.h"
#include "base/Nivo.h"
#include "entry/EditorRamales.h"
#include "images/Imagen.h"
#include "model/ProyectoEdificio.h"
#include "shell/Sesion.h"
#include "shell/Titulos.h"

#include <cmath>

namespace {

QString TablaDe(TablaImagenes t) {
    return t == TablaImagenes::Piezas ? QStringLiteral("ImgPiezas") : QStringLiteral("ImgConexiones");
}

QString CriterioClave(int clave) { return QStringLiteral("Clave=") + QString::number(clave); }

}  // namespace

FilasRamal::FilasRamal(Grid& spread1, Grid& spread2, ProyectoEdificio& p, Sesion& s, Dialogos& d,
                       EditorRamales& editor, Arreglo<int>& cuenta, TablaImagenes tabla)
    : spread1_(spread1), spread2_(spread2), p_(p), s_(s), d_(d), editor_(editor), cuenta_(cuenta), tabla_(tabla) {}

QString FilasRamal::Caption() const {
    return UCase(QStringLiteral("Nivo-Fontaria ") + EtiquetaVersion() + QStringLiteral("   Proyecto: [") +
                 s_.NombreProyecto + QStringLiteral(" ]"));
}

void FilasRamal::Cargar(const QStringList& encabezadoCuenta, const QStringList& encabezadoValor) {
    s_.CatalogoDesdeProyecto = true;
    const bool modificado = s_.ProyectoModificado;
    VerifiqueImagenesProyecto(s_, tabla_);
    s_.ProyectoModificado = modificado;
    ReabrirImagenes();
    ConfigurarRamales(encabezadoCuenta);
    ConfigurarFilas(encabezadoValor);
    LleneRamales();
    if (!HayRamal()) s_.RamalActual = p_.NumeroRamales > 0 ? 1 : 0;
    spread1_.PonerActiva(std::max(1, s_.RamalActual), 3);
    coloquePantalla(s_.RamalActual);
    spread2_.PonerActiva(1, FClave);
}

void FilasRamal::ColoqueFilas(int ramal, const Arreglo2<int>& claves,
                              const std::function<void(int fila, int clave)>& poner) {
    spread2_.PonerFilas(0);
    if (ramal < 1 || ramal > p_.NumeroRamales) return;
    spread2_.PonerFilas(cuenta_[ramal]);
    for (int f = 1; f <= Filas(); ++f) {
        const int clave = claves(ramal, f);
        if (clave < 1) LimpiarFila(f);
        else poner(f, clave);
    }
}

void FilasRamal::SalvarFilas(const std::function<void(int ramal, int fila, int clave)>& guardar) {
    if (!HayRamal()) return;
    const int b = s_.RamalActual;
    ReabrirImagenes();
    cuenta_[b] = Filas();
    for (int f = 1; f <= FilasPorRamal; ++f) {
        const int clave = f <= Filas() ? std::max(0, ClaveFila(f)) : 0;
        guardar(b, f, clave);
        if (clave > 0) GuardarImagenFila(f);
    }
}

int FilasRamal::ClaveTecleada(int fila, const QString& texto, Registros& catalogo, const QString& campo,
                              const std::function<void(int clave)>& noExiste, bool& tomado) {
    int k = 0;
    tomado = LeerEntero16(texto, QStringLiteral("La clave"), true, k);
    if (!tomado) {
        coloquePantalla(Ramal());
        return 0;
    }
    if (k == 0) {
        LimpiarFila(fila);
        Guardar();
        return 0;
    }
    if (!BuscarEnCatalogo(catalogo, campo, k)) {
        noExiste(k);
        spread2_.PonerVacio(fila, FClave);
        tomado = false;
        return 0;
    }
    return k;
}

bool FilasRamal::PedirNombre(const QString& texto, const QString& titulo, const QString& inicial, QString& nombre) {
    const auto r = d_.PedirTexto(texto, titulo, inicial);
    if (!r || Trim(*r).isEmpty()) return false;
    nombre = UCase(Trim(*r));
    return true;
}

bool FilasRamal::EditarFilas(int fila, int columna, const QString& texto,
                             const std::function<bool(int fila, const QString& texto)>& teclear) {
    if (fila < 1 || fila > Filas()) return false;
    if (columna == FClave) return teclear(fila, texto);
    return EditarOtraColumna(fila, columna, texto);
}

void FilasRamal::BajarYGuardar() {
    Bajar();
    Guardar();
}

void FilasRamal::Cerrar(Registros& catalogo) {
    imagenes_.Close();
    catalogo.Close();
    s_.CatalogoDesdeProyecto = false;
}

void FilasRamal::ConfigurarRamales(const QStringList& encabezado) {
    spread1_ = Grid(3);
    spread1_.PonerEncabezados(0, QStringLiteral("Ramal"));
    spread1_.Col(1).ancho = 6;
    spread1_.Col(2).ancho = 6;
    spread1_.PonerEncabezado(1, 3, encabezado.value(0));
    spread1_.PonerEncabezado(2, 3, encabezado.value(1));
    spread1_.Col(3).tipo = TipoCelda::Entero;
    spread1_.Col(3).ancho = 6;
    spread1_.Col(3).bloqueada = false;
    spread1_.Col(3).minimo = 0;
}

void FilasRamal::ConfigurarFilas(const QStringList& encabezado) {
    spread2_ = Grid(FCantidad);
    const struct {
        int columna;
        TipoCelda tipo;
        int ancho;
        bool editable;
    } columnas[] = {{FClave, TipoCelda::Entero, 6, true},   {FImagen, TipoCelda::Imagen, 12, false},
                    {FDescripcion, TipoCelda::Texto, 34, true}, {FValor, TipoCelda::Numero, 12, true},
                    {FCantidad, TipoCelda::Entero, 8, true}};
    for (const auto& c : columnas) {
        Columna& col = spread2_.Col(c.columna);
        col.tipo = c.tipo;
        col.ancho = c.ancho;
        col.bloqueada = !c.editable;
        col.minimo = 0;
    }
    // A key is a whole number: the cell takes no letters, so a slip of the
    // keyboard never reads as key 0 and empties the row.
    spread2_.Col(FClave).largo = 6;
    spread2_.Col(FClave).maximo = 32767;
    spread2_.Col(FCantidad).maximo = 32767;
    spread2_.PonerEncabezados(FClave, QStringLiteral("Clave"));
    spread2_.PonerEncabezados(FImagen, QStringLiteral("Imagen"));
    spread2_.PonerEncabezados(FDescripcion, QStringLiteral("Descripción"));
    spread2_.PonerEncabezado(1, FValor, encabezado.value(0));
    spread2_.PonerEncabezado(2, FValor, encabezado.value(1));
    spread2_.PonerEncabezados(FCantidad, QStringLiteral("Cantidad"));
}

void FilasRamal::LleneRamales() {
    const int n = p_.NumeroRamales;
    spread1_.PonerFilas(n);
    for (int r = 1; r <= n; ++r) {
        spread1_.PonerEntero(r, 0, r);
        spread1_.PonerTexto(r, 1, p_.NodoI[r]);
        spread1_.PonerTexto(r, 2, p_.Nodoj[r]);
        MostrarCuenta(r);
    }
}

void FilasRamal::MostrarCuenta(int ramal) {
    if (cuenta_[ramal] > 0) spread1_.PonerEntero(ramal, 3, cuenta_[ramal]);
    else spread1_.PonerVacio(ramal, 3);
}

void FilasRamal::ReabrirImagenes() {
    imagenes_.Close();
    if (s_.ConexionProyecto.Abierta()) AbrirTabla(s_.ConexionProyecto, imagenes_, TablaDe(tabla_));
}

void FilasRamal::ActualizarImagenes(const QString& pregunta, const QString& encabezado) {
    if (!Preguntar(pregunta, encabezado)) return;
    imagenes_.Close();
    ActualizarImagenesProyecto(s_, tabla_);
    ReabrirImagenes();
    if (HayRamal()) coloquePantalla(Ramal());
}

bool FilasRamal::Preguntar(const QString& pregunta, const QString& encabezado) {
    return d_.MostrarMensaje(pregunta, encabezado, TituloProyectoFontaria(), Botones::SiNo) == Respuesta::Si;
}

void FilasRamal::Guardar() {
    salvarRamal();
    s_.ProyectoModificado = true;
}

QString FilasRamal::EtiquetaRamal() const { return QStringLiteral("Ramal ") + QString::number(s_.RamalActual); }
QString FilasRamal::NodoI() const { return HayRamal() ? p_.NodoI[s_.RamalActual] : QString(); }
QString FilasRamal::NodoJ() const { return HayRamal() ? p_.Nodoj[s_.RamalActual] : QString(); }

int FilasRamal::Ramal() const { return s_.RamalActual; }

bool FilasRamal::HayRamal() const { return s_.RamalActual >= 1 && s_.RamalActual <= p_.NumeroRamales; }

int FilasRamal::FilaActiva() const {
    if (spread2_.Filas() == 0) return 0;
    return std::clamp(spread2_.FilaActiva(), 1, spread2_.Filas());
}

bool FilasRamal::ReservarFilas(int fila, int columna, const QString& texto) {
    if (columna != 3 || fila < 1 || fila > p_.NumeroRamales) return false;
    int n = 0;
    if (!Trim(texto).isEmpty()) {
        double v = 0;
        if (!LeerNumeroOAvisar(d_, texto, v)) {
            MostrarCuenta(fila);
            return false;
        }
        if (!NoNegativo(v, texto)) {
            MostrarCuenta(fila);
            return false;
        }
        n = v >= MaximoFilasRamal ? MaximoFilasRamal : int(std::nearbyint(v));
    }
    if (fila != s_.RamalActual) CambiarRamal(fila);
    cuenta_[fila] = n;
    spread2_.PonerFilas(n);
    MostrarCuenta(fila);
    Guardar();
    return true;
}

void FilasRamal::IrARamal(int ramal) {
    if (ramal < 1 || ramal > p_.NumeroRamales) return;
    s_.RamalActual = ramal;
    spread1_.PonerActiva(ramal, 3);
    editor_.IrARamal(ramal, 3);
}

void FilasRamal::CambiarRamal(int ramal) {
    if (ramal < 1 || ramal > p_.NumeroRamales) return;
    IrARamal(ramal);
    coloquePantalla(ramal);
    spread2_.PonerActiva(1, FClave);
}

void FilasRamal::Baja() {
    if (s_.RamalActual < p_.NumeroRamales) CambiarRamal(s_.RamalActual + 1);
}

void FilasRamal::Sube() {
    if (s_.RamalActual > 1) CambiarRamal(s_.RamalActual - 1);
}

void FilasRamal::Intercambiar(int f1, int f2) {
    for (int c = 1; c <= spread2_.Columnas(); ++c) {
        std::swap(spread2_.Cel(f1, c), spread2_.Cel(f2, c));
        const QImage a = spread2_.Imagen(f1, c), b = spread2_.Imagen(f2, c);
        spread2_.PonerImagen(f1, c, b);
        spread2_.PonerImagen(f2, c, a);
    }
}

// The active row carried to `hasta`, the rows between shifting by one.
void FilasRamal::Llevar(int desde, int hasta) {
    if (desde < 1 || hasta < 1 || desde == hasta) return;
    for (int f = desde; f != hasta; f += hasta > desde ? 1 : -1) Intercambiar(f, hasta > desde ? f + 1 : f - 1);
    spread2_.PonerActiva(hasta, spread2_.ColumnaActiva());
    Guardar();
}

void FilasRamal::MoverPrimera() { Llevar(FilaActiva(), 1); }
void FilasRamal::MoverArriba() { Llevar(FilaActiva(), FilaActiva() - 1); }
void FilasRamal::MoverAbajo() { Llevar(FilaActiva(), FilaActiva() < Filas() ? FilaActiva() + 1 : 0); }
void FilasRamal::MoverUltima() { Llevar(FilaActiva(), Filas()); }

void FilasRamal::Eliminar(const std::function<QString(int fila)>& pregunta, const QString& encabezado) {
    const int f = FilaActiva();
    if (f < 1 || !HayRamal()) return;
    if (!Trim(spread2_.Texto(f, FClave)).isEmpty() && !Preguntar(pregunta(f), encabezado)) return;
    spread2_.EliminarFila(f);
    spread2_.PonerActiva(std::max(1, std::min(f, Filas())), spread2_.ColumnaActiva());
    cuenta_[Ramal()] = Filas();
    MostrarCuenta(Ramal());
    Guardar();
}

void FilasRamal::EliminarTodas(const QString& pregunta, const QString& encabezado) {
    if (Filas() == 0 || !HayRamal() || !Preguntar(pregunta, encabezado)) return;
    spread2_.PonerFilas(0);
    cuenta_[Ramal()] = 0;
    MostrarCuenta(Ramal());
    Guardar();
}

QImage FilasRamal::ImagenClave(int clave) {
    QImage img;
    if (!imagenes_.Abierto() || imagenes_.RecordCount() == 0) return img;
    imagenes_.MoveFirst();
    if (BuscarClave(imagenes_, CriterioClave(clave)) == 1 && !imagenes_.Campo(QStringLiteral("ExisteFoto")).isNull())
        LeerImagen(imagenes_, img);
    return img;
}

void FilasRamal::GuardarImagenClave(int clave, const QImage& imagen) {
    if (!imagenes_.Abierto() || imagenes_.RecordCount() == 0) return;
    imagenes_.MoveFirst();
    if (BuscarClave(imagenes_, CriterioClave(clave)) != 1) return;
    const Valor foto = imagenes_.Campo(QStringLiteral("Foto"));
    const bool existe = ComoLogico(imagenes_.Campo(QStringLiteral("ExisteFoto")));
    if (imagen.isNull()) {
        if (foto.isNull() && !existe && !imagenes_.Campo(QStringLiteral("ExisteFoto")).isNull()) return;
        imagenes_.Poner(QStringLiteral("Foto"), Valor());
        imagenes_.Poner(QStringLiteral("ExisteFoto"), Logico(false));
    } else {
        if (existe && foto.toByteArray() == ImagenComoBmp(imagen)) return;
        GuardarImagen(imagenes_, imagen);
        imagenes_.Poner(QStringLiteral("ExisteFoto"), Logico(true));
    }
    imagenes_.Update();
}

bool FilasRamal::LeerEntero16(const QString& texto, const QString& nombre, bool noNumeroEsCero, int& valor) {
    if (Trim(texto).isEmpty()) {
        valor = 0;
        return true;
    }
    const NumeroLeido r = LeerNumeroTecleado(texto);
    if (!r.valido) {
        if (noNumeroEsCero) {
            valor = 0;
            return true;
        }
        MostrarNumeroRechazado(d_, r.motivo);
        return false;
    }
    const double v = std::nearbyint(r.valor);
    if (!(v >= -32768 && v <= 32767)) {
        MostrarNumeroRechazado(d_, nombre + QStringLiteral(" es un número entero de 0 a 32") +
                                       SeparadoresActuales().miles + QStringLiteral("767: \"") + Trim(texto) +
                                       QStringLiteral("\" pasa de ese límite."));
        return false;
    }
    valor = int(v);
    return true;
}

bool FilasRamal::NoNegativo(double valor, const QString& texto) {
    if (valor >= 0) return true;
    MostrarNumeroRechazado(d_, QStringLiteral("El número no puede ser negativo: \"") + Trim(texto) + QStringLiteral("\"."));
    return false;
}

bool FilasRamal::LeerDoble(const QString& texto, double& valor) {
    if (Trim(texto).isEmpty()) {
        valor = 0;
        return true;
    }
    return LeerNumeroOAvisar(d_, texto, valor);
}

int FilasRamal::ClaveFila(int fila) const {
    const NumeroLeido r = LeerNumeroTecleado(spread2_.Texto(fila, FClave));
    const double v = r.valido ? std::nearbyint(r.valor) : 0.0;
    return v >= -32768 && v <= 32767 ? int(v) : 0;
}

double FilasRamal::NumeroCelda(int fila, int columna) const {
    if (spread2_.EsNumero(fila, columna)) return spread2_.Valor(fila, columna);
    const NumeroLeido r = LeerNumeroTecleado(spread2_.Texto(fila, columna));
    return r.valido ? r.valor : 0.0;
}

void FilasRamal::LimpiarFila(int fila) {
    for (int c = FClave; c <= FCantidad; ++c) {
        spread2_.PonerVacio(fila, c);
        spread2_.Cel(fila, c).tipo = TipoCelda::Heredado;
        spread2_.Bloquear(fila, c, false);
    }
    spread2_.PonerImagen(fila, FImagen, QImage());
}

void FilasRamal::Bajar() {
    const int f = FilaActiva();
    if (f >= 1 && f < spread2_.Filas()) spread2_.PonerActiva(f + 1, spread2_.ColumnaActiva());
}

bool FilasRamal::BuscarEnCatalogo(Registros& rs, const QString& campo, int clave) {
    if (!rs.Abierto() || rs.RecordCount() == 0) return false;
    rs.MoveFirst();
    return BuscarClave(rs, campo + QLatin1Char('=') + QString::number(clave)) == 1;
}

void FilasRamal::PonerFila(int fila, int clave, const QString& nombre, const QImage& imagen, int cantidad) {
    spread2_.PonerTexto(fila, FClave, QString::number(clave));
    spread2_.PonerImagen(fila, FImagen, imagen);
    spread2_.PonerTexto(fila, FDescripcion, nombre);
    spread2_.PonerEntero(fila, FCantidad, cantidad);
}

bool FilasRamal::EditarOtraColumna(int fila, int columna, const QString& texto) {
    if (fila < 1 || fila > Filas() || columna <= FClave || columna > FCantidad || spread2_.EstaBloqueada(fila, columna))
        return false;
    if (Trim(spread2_.Texto(fila, FClave)).isEmpty()) {
        spread2_.PonerVacio(fila, columna);
        return true;
    }
    bool tomado = true;
    if (columna == FDescripcion) {
        spread2_.PonerTexto(fila, columna, texto);
    } else if (columna == FValor) {
        double v = 0;
        tomado = LeerDoble(texto, v) && NoNegativo(v, texto);
        if (tomado) spread2_.PonerNumero(fila, columna, v, 2);
    } else if (columna == FCantidad) {
        int n = 0;
        tomado = LeerEntero16(texto, QStringLiteral("La cantidad"), false, n) && NoNegativo(n, texto);
        if (tomado) spread2_.PonerEntero(fila, columna, n);
    }
    if (!tomado) {
        coloquePantalla(Ramal());
        return false;
    }
    Guardar();
    return true;
}

bool FilasRamal::PuedeReemplazar(int fila, const QString& pregunta, const QString& encabezado) {
    return Trim(spread2_.Texto(fila, FClave)).isEmpty() || Preguntar(pregunta, encabezado);
}

void FilasRamal::GuardarImagenFila(int fila) { GuardarImagenClave(ClaveFila(fila), spread2_.Imagen(fila, FImagen)); }

QImage FilasRamal::ImagenFila(int fila) {
    if (fila < 1 || fila > Filas()) return QImage();
    const int clave = ClaveFila(fila);
    return clave < 1 ? QImage() : ImagenClave(clave);
}
