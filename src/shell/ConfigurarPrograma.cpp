#include "shell/ConfigurarPrograma.h"

#include "base/Dialogos.h"
#include "shell/Sesion.h"

ConfigurarPrograma::ConfigurarPrograma(const Sesion& s)
    : directorioDatos_(s.DirectorioDatos), valores_(s.Tapiz) {}

void ConfigurarPrograma::Abrir(Dialogos& d) {
    const auto ruta = d.AbrirArchivo(QStringLiteral("Cambiar el Tapiz del Menú Principal"),
                                     QStringLiteral("Archivos de Dibujo|*.bmp; *.jpg; *.gif; *.dib; *.wmf, *.emf"),
                                     directorioDatos_ + QStringLiteral("/Tapices"));
    if (!ruta) return;
    valores_.RutaTapiz = *ruta;
    valores_.PosicionVertical = 0;
    valores_.PosicionHorizontal = 0;
    valores_.EfectoTapiz = 0;
}

void ConfigurarPrograma::PonerVertical(int v) {
    if (v >= 0 && v <= 2) valores_.PosicionVertical = int16_t(v);
}

void ConfigurarPrograma::PonerHorizontal(int h) {
    if (h >= 0 && h <= 2) valores_.PosicionHorizontal = int16_t(h);
}

void ConfigurarPrograma::PonerAjustar(bool si) { valores_.AjustarTapiz = si; }

void ConfigurarPrograma::PonerProporcion(bool si) {
    if (Check2Habilitado()) valores_.ProporcionTapiz = si;
}

QStringList ConfigurarPrograma::TamanosLetra() {
    return {QStringLiteral("10"), QStringLiteral("11"), QStringLiteral("12"), QStringLiteral("13"), QStringLiteral("14")};
}

void ConfigurarPrograma::PonerTamanoLetra(int indice) {
    if (indice >= 0 && indice <= 4) valores_.TamanoLetraTip = uint8_t(indice);
}

void ConfigurarPrograma::ElegirColorFondo(Dialogos& d) {
    if (const auto c = d.ElegirColor(valores_.ColorFondoTip)) valores_.ColorFondoTip = *c;
}

void ConfigurarPrograma::ElegirColorTexto(Dialogos& d) {
    if (const auto c = d.ElegirColor(valores_.ColorTextoTip)) valores_.ColorTextoTip = *c;
}

const QList<ParColores>& ConfigurarPrograma::ColoresPredefinidos() {
    // Background and text, as 0x00BBGGRR: cream, sky, mint, slate, wine.
    static const QList<ParColores> pares = {
        {0xD6F4FF, 0x000000}, {0xF7E6C8, 0x6B2A00}, {0xD8F5DC, 0x1E4D12}, {0x4F3F2F, 0xFFFFFF}, {0x3A1F7A, 0xE0F8FF},
    };
    return pares;
}

void ConfigurarPrograma::PonerColoresPredefinidos(int i) {
    if (i < 0 || i >= ColoresPredefinidos().size()) return;
    valores_.ColorFondoTip = ColoresPredefinidos()[i].fondo;
    valores_.ColorTextoTip = ColoresPredefinidos()[i].texto;
}

void ConfigurarPrograma::Restaurar() { valores_ = TapizPorDefecto(directorioDatos_); }

bool ConfigurarPrograma::Aceptar(Sesion& s, Dialogos& d) {
    const QString ruta = s.RutaDatos(QStringLiteral("Tapiz.nivo"));
    if (!EscribirTapizConfiguracion(ruta, valores_)) {
        d.MostrarMensaje(QStringLiteral("No se puede escribir el archivo: ") + ruta, QStringLiteral("Configuración..."),
                         QStringLiteral("Proyecto de Fontaria"));
        return false;
    }
    s.Tapiz = valores_;
    return true;
}
