#include "analysis/AnalisisRed.h"

#include "analysis/CargaProyecto.h"
#include "analysis/EscrituraRamales.h"
#include "analysis/Gastos.h"
#include "analysis/Numeracion.h"
#include "analysis/Predimensionado.h"
#include "analysis/Presiones.h"
#include "base/Dialogos.h"
#include "model/ArchivoEdificio.h"
#include "model/ProyectoEdificio.h"
#include "shell/Sesion.h"
#include "shell/Titulos.h"

AnalisisRed::AnalisisRed(ProyectoEdificio& p, Sesion& s, Dialogos& d) : p_(p), s_(s), d_(d) { ConfigurarSpread(); }

QString AnalisisRed::TituloPestana(int tab) {
    switch (tab) {
    case 1: return QStringLiteral("PREDIMENSIONADO");
    case 2: return QStringLiteral("UNIDADES DE GASTO");
    case 3: return QStringLiteral("LONGITUDES EQUIVALENTES");
    case 4: return QStringLiteral("PERDIDAS Y PRESIONES");
    case PestanaEsquema: return QStringLiteral("ESQUEMA");
    default: return QString();
    }
}

std::vector<AyudaControl> AnalisisRed::AyudasControles() {
    auto t = [](const char* c, const char* titulo, const char* texto) {
        return AyudaControl{QString::fromUtf8(c), QString::fromUtf8(titulo), QString::fromUtf8(texto)};
    };
    return {
        t("LSButton6", "Actualizar las Pérdidas y Presiones",
          "Actualizar las Pérdidas y Presiones Disponibles \nFijando una Altura del Tanque Elevado. "),
        t("LSButton7", "Altura del Tanque Elevado", "Calcular la Altura del Inicial del Tanque Elevado. "),
        t("LSButton2", "Diámetro de los Ramales", "Iguala los diámetros asumidos con \nlos diámetros de cálculo. "),
        t("LSButton4", "", "Exportar el análisis de la red a Excel. "),
        t("LSButton1", "", " Retorno "),
        t("LSButton3", "", "Imprimir los resultados del análisis de la red. "),
        t("LSButton5", "", "Abre un proyecto existente. "),
        t("LSButton8", "", "Listado de piezas y conexiones de la red. "),
        t("LSButton9", "", "Editar el comentario de los ramales. "),
        t("LSButton11", "", "Edita los datos del Red. "),
    };
}

// ---------------------------------------------------------------- chain

bool AnalisisRed::EjecutarCadena() {
    cadenaCompleta_ = false;
    // The assumed sizes and the reductions that follow are written together.
    EscrituraConjunta escritura(s_.ConexionProyecto);
    ColoqueGastos(p_);
    CalcularPredimensionado(p_);
    Predimensionado_Asumido(p_, s_);
    ColoquePredimensionado();
    ColoqueUnidadesGasto();
    if (!RehacerPerdidas(escritura)) return false;
    if (p_.OpcionPresionInicial == 2) {
        Double1 = p_.longitudReal[1];
        Frame3Visible = true;
    }
    return true;
}

bool AnalisisRed::RehacerPerdidas(EscrituraConjunta& escritura) {
    cadenaCompleta_ = false;
    const bool longitudes = ColoqueLongitudEquivalente();
    escritura.Confirmar();
    if (!longitudes) {
        Spread3.Vaciar();
        return false;
    }
    CalcularPresiones(p_);
    ColoquePerdidasPresiones();
    cadenaCompleta_ = true;
    return true;
}

bool AnalisisRed::PresionesCalculadas() {
    if (cadenaCompleta_) return true;
    d_.MostrarMensaje(QStringLiteral("¡No se Pueden Calcular las Pérdidas y Presiones!\nRevise los Datos de la Red..."),
                      QStringLiteral("Pérdidas y Presiones..."), TituloProyectoFontaria());
    return false;
}

QString AnalisisRed::AvisoErrorRed() const {
    if (p_.ErrorNumeracion == 0) return QString();
    return QStringLiteral("La red tiene errores de numeración: los resultados no son válidos.");
}

void AnalisisRed::VaciarGrids() {
    for (Grid* g : {&Spread4, &Spread1, &Spread2, &Spread3}) g->Vaciar();
    cadenaCompleta_ = false;
}

void AnalisisRed::PonerCaption(bool desdeEstaPantalla) {
    Caption = QStringLiteral("Resultado del Análisis  ") + QString(desdeEstaPantalla ? 3 : 0, QLatin1Char(' ')) +
              QStringLiteral("Proyecto: [ ") + s_.NombreProyecto + QStringLiteral(" ]");
}

void AnalisisRed::Cargar() {
    PonerCaption(false);
    VaciarGrids();  // first, so the configuration has no old rows to carry
    ConfigurarSpread();
    Frame3Visible = false;
    if (p_.NumeroRamales > 0) EjecutarCadena();
    SSPanel1 = QString::number(int(p_.NumeroRamales));
    Tab = 1;
}

void AnalisisRed::CambiarTab(int tab) {
    if (tab >= 1 && tab <= PestanaEsquema) Tab = tab;
}

void AnalisisRed::Reconstruir() {
    VaciarGrids();
    Frame3Visible = false;
    if (p_.NumeroRamales > 0) {
        // A numbering fault shows its message and the rebuild goes on with
        // the node numbers as they stand, so the engineer sees what the list
        // gives; only the command refuses a broken list before the screen.
        VerificarNumeracion(p_, d_);
        EjecutarCadena();
    }
    SSPanel1 = QString::number(int(p_.NumeroRamales));
}

bool AnalisisRed::LSButton5_Click() {
    if (!AbrirOtroProyecto(p_, s_, d_)) return false;
    Reconstruir();
    PonerCaption(true);
    return true;
}

void AnalisisRed::RetornoEditorRamales(bool salvado) {
    if (!salvado) return;
    LeerProyecto(p_, s_);
    Reconstruir();
}
