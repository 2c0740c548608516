#include "shell/Herramientas.h"

#include "base/Nivo.h"

namespace {

Herramienta H(const char* id, const char* titulo, const char* tip, std::optional<Pantalla> requiere = std::nullopt,
              bool sinAccion = false) {
    return {QString::fromUtf8(id), QString::fromUtf8(titulo), QString::fromUtf8(tip), requiere, sinAccion};
}

}  // namespace

const QList<Herramienta>& TablaHerramientas() {
    static const QList<Herramienta> tabla = {
        H("ID_M1_Nuevo", "CREAR PROYECTO DE FONTARIA...", " CREAR UN PROYECTO DE FONTARIA "),
        H("ID_M1_Abrir", "ABRIR PROYECTO EXISTENTE...", " ABRIR UN PROYECTO EXISTENTE "),
        H("ID_M1_Modificar", "EDITAR LOS DATOS DEL PROYECTO...", " Modificar los Datos del Proyecto ",
          Pantalla::DatosRamales),
        H("ID_M1_SalvarComo", "SALVAR COMO...", " Salvar el Proyecto con otro Nombre "),
        H("ID_M1_ImprimirDatos", "", "", Pantalla::ImpreGeneral, true),
        H("ID_M1_Eliminar", "ELIMINAR PROYECTOS...", " Eliminar Proyectos Existentes "),
        H("ID_M4_Configurar", "CONFIGURACIÓN DEL PROGRAMA..", " CONFIGURACIÓN DEL PROGRAMA ",
          Pantalla::ConfigurarPrograma),
        H("ID_M1_Salida", "SALIDA DEL PROGRAMA", ""),
        H("ID_M1_Visualizar", "&Visualizar...", " Abre el Proyecto con la opción de No Modificar ", std::nullopt, true),
        H("ID_M2_AnalisisRed", "ANÁLISIS DE LA RED DE FONTARIA...", " ANÁLISIS DE LA RED DE FONTARIA ",
          Pantalla::AnalisisRed),
        H("ID_M2_TanqueH", "", " CÁLCULO DEL TANQUE HIDRONEUMÁTICO ", Pantalla::Hidroneumatico),
        H("ID_M2_Computos", "CÓMPUTOS DE LOS MATERIALES...", " CÓMPUTOS DE LOS MATERIALES ", Pantalla::Computos),
        H("ID_M3_Piezas", "BASE DE DATOS DE PIEZAS SANITARIAS...", " BASE DE DATOS DE PIEZAS SANITARIAS ",
          Pantalla::BDPiezas),
        H("ID_M3_Conexiones", "BASE DE DATOS DE CONEXIONES EN TUBERÍAS...", " BASE DE DATOS DE CONEXIONES EN TUBERÍAS ",
          Pantalla::BDConexiones),
        H("ID_M4_ImprimirHojas", "IMPRESIÓN DE HOJAS DE TRABAJO...", " Imprimir las Hojas de Trabajo ",
          Pantalla::ImpreHojas),
        H("ID_M5_Reparar", "", " Reparar y Compactar Archivos ", Pantalla::Compactar),
        H("ID_M5_Respaldar", "RESPALDAR Y COPIAR PROYECTOS...", " RESPALDAR Y COPIAR PROYECTOS ",
          Pantalla::RespaldoArchivos),
        H("ID_Explorador", "", " Explorador de Windows "),
        H("ID_TemasAyuda", "", " Temas de Ayuda de Fontaria "),
        H("ID_Manual", "MANUAL DEL PROGRAMA...", " MANUAL DEL PROGRAMA EN PDF "),
        H("ID_Ejemplos", "EJEMPLOS DEL PROGRAMA...", " EJEMPLOS DEL PROGRAMA "),
        H("ID_Sobre", "SOBRE NIVO-FONTARIA...", " Sobre Nivo-Fontaria ", Pantalla::Sobre),
        H("ID_Soporte", "", " Soporte Técnico ", std::nullopt, true),
        H("ID_A_Nuevo", "", " CREAR UN NUEVO PROYECTO DE ACUEDUCTOS ", Pantalla::DatosAcueducto),
        H("ID_A_Abrir", "", " &ABRIR UN PROYECTO EXISTENTE "),
        H("ID_A_Modificar", "EDITAR LOS DATOS DEL PROYECTO...", " EDITAR LOS DATOS DEL PROYECTO ",
          Pantalla::DatosAcueducto),
        H("ID_A_Salvar", "SALVAR COMO...", ""),
        H("ID_A_ImportarInp", "IMPORTAR RED EPANET (.inp)...", " Importar una Red en el Formato de EPANET "),
        H("ID_A_ExportarInp", "EXPORTAR RED EPANET (.inp)...", " Exportar la Red al Formato de EPANET "),
        H("ID_A_Eliminar", "", " ELIMINAR PROYECTOS "),
        H("ID_A_Analisis", "", " ANÁLISIS Y DISEÑO DE LA RED DE ACUEDUCTOS ", Pantalla::AnalisisACU),
    };
    return tabla;
}

const Herramienta* BuscarHerramienta(const QString& id) {
    for (const Herramienta& h : TablaHerramientas())
        if (h.id == id) return &h;
    return nullptr;
}

QString TextoMenu(const Herramienta& h) {
    if (!h.titulo.isEmpty()) return h.titulo;
    // A tool-bar tip keeps its accelerator mark, which a menu must not show.
    return Trim(h.tip).remove(QLatin1Char('&'));
}

const QList<MenuBarra>& MenusPrincipales() {
    static const QList<MenuBarra> menus = {
        {QStringLiteral("ID_M1_Proyecto"), QStringLiteral("Proyecto"),
         {QStringLiteral("ID_M1_Nuevo"), QStringLiteral("ID_M1_Abrir"), QStringLiteral("ID_M1_Modificar"),
          QStringLiteral("ID_M1_SalvarComo"), QStringLiteral("-"), QStringLiteral("ID_M1_Eliminar"),
          QStringLiteral("-"), QStringLiteral("ID_M4_Configurar"), QStringLiteral("-"),
          QStringLiteral("ID_M1_Salida")}},
        {QStringLiteral("ID_M2_Resultados"), QStringLiteral("Resultados"),
         {QStringLiteral("ID_M2_AnalisisRed"), QStringLiteral("ID_M2_TanqueH"), QStringLiteral("ID_M2_Computos")}},
        {QStringLiteral("ID_M3_BaseDatos"), QStringLiteral("&BASE_DATOS"),
         {QStringLiteral("ID_M3_Piezas"), QStringLiteral("ID_M3_Conexiones")}},
        {QStringLiteral("ID_M4_Utilitarios"), QStringLiteral("UTILITARIOS"),
         {QStringLiteral("ID_M4_ImprimirHojas"), QStringLiteral("ID_M4_Configurar")}},
        {QStringLiteral("ID_M5_Mantenimiento"), QStringLiteral("MANTENIMIENTO"),
         {QStringLiteral("ID_M5_Reparar"), QStringLiteral("ID_M5_Respaldar")}},
        {QStringLiteral("ID_Ayuda"), QStringLiteral("AYUDA"),
         {QStringLiteral("ID_TemasAyuda"), QStringLiteral("ID_Manual"), QStringLiteral("ID_Ejemplos"),
          QStringLiteral("-"), QStringLiteral("ID_Sobre")}},
        // The aqueduct menus; their captions beyond those named are the
        // building menus' own words.
        {QStringLiteral("ID_A_Proyecto"), QStringLiteral("&PROYECTO"),
         {QStringLiteral("ID_A_Nuevo"), QStringLiteral("ID_A_Abrir"), QStringLiteral("ID_A_Modificar"),
          QStringLiteral("ID_A_Salvar"), QStringLiteral("-"), QStringLiteral("ID_A_ImportarInp"),
          QStringLiteral("ID_A_ExportarInp"), QStringLiteral("-"), QStringLiteral("ID_A_Eliminar"), QStringLiteral("-"),
          QStringLiteral("ID_M4_Configurar"), QStringLiteral("-"), QStringLiteral("ID_M1_Salida")}},
        {QStringLiteral("ID_A_Resultados"), QStringLiteral("&RESULTADOS"),
         {QStringLiteral("ID_A_Analisis"), QStringLiteral("ID_A_Modificar")}},
        {QStringLiteral("ID_A_Utilitarios"), QStringLiteral("&UTILITARIOS"),
         {QStringLiteral("ID_M4_ImprimirHojas"), QStringLiteral("ID_M4_Configurar")}},
        {QStringLiteral("ID_A_Mantenimiento"), QStringLiteral("&MANTENIMIENTO"),
         {QStringLiteral("ID_M5_Reparar"), QStringLiteral("ID_M5_Respaldar")}},
        {QStringLiteral("ID_A_Ayuda"), QStringLiteral("&AYUDA"),
         {QStringLiteral("ID_TemasAyuda"), QStringLiteral("ID_Manual"), QStringLiteral("ID_Ejemplos"),
          QStringLiteral("-"), QStringLiteral("ID_Sobre")}},
    };
    return menus;
}

const QStringList& BarraHerramientas() {
    static const QStringList ids = {
        QStringLiteral("ID_M1_Abrir"),      QStringLiteral("ID_M1_Nuevo"),      QStringLiteral("ID_M1_Modificar"),
        QStringLiteral("ID_M2_AnalisisRed"), QStringLiteral("ID_M2_TanqueH"),   QStringLiteral("ID_M2_Computos"),
        QStringLiteral("ID_M3_Piezas"),     QStringLiteral("ID_M3_Conexiones"), QStringLiteral("ID_A_Abrir"),
        QStringLiteral("ID_A_Nuevo"),       QStringLiteral("ID_A_Modificar"),   QStringLiteral("ID_A_Analisis"),
        QStringLiteral("ID_M5_Reparar"),    QStringLiteral("ID_M5_Respaldar"),  QStringLiteral("ID_TemasAyuda"),
        QStringLiteral("ID_Manual"),        QStringLiteral("ID_Ejemplos"),      QStringLiteral("ID_Explorador"),
    };
    return ids;
}

const QStringList& IdsModoEdificio() {
    static const QStringList ids = {
        QStringLiteral("ID_M1_Proyecto"),    QStringLiteral("ID_M2_Resultados"), QStringLiteral("ID_M3_BaseDatos"),
        QStringLiteral("ID_M4_Utilitarios"), QStringLiteral("ID_M5_Mantenimiento"), QStringLiteral("ID_Ayuda"),
        QStringLiteral("ID_M1_Nuevo"),       QStringLiteral("ID_M1_Abrir"),      QStringLiteral("ID_M1_Modificar"),
        QStringLiteral("ID_M2_AnalisisRed"), QStringLiteral("ID_M2_TanqueH"),    QStringLiteral("ID_M2_Computos"),
        QStringLiteral("ID_M3_Piezas"),      QStringLiteral("ID_M3_Conexiones"),
    };
    return ids;
}

const QStringList& IdsModoAcueducto() {
    static const QStringList ids = {
        QStringLiteral("ID_A_Proyecto"), QStringLiteral("ID_A_Resultados"), QStringLiteral("ID_A_Utilitarios"),
        QStringLiteral("ID_A_Ayuda"),    QStringLiteral("ID_A_Nuevo"),      QStringLiteral("ID_A_Abrir"),
        QStringLiteral("ID_A_Modificar"), QStringLiteral("ID_A_Analisis"),  QStringLiteral("ID_A_Mantenimiento"),
    };
    return ids;
}
