// The project commands of the main window: each picks a file, puts its path
// in the session, loads the project and shows a screen modally.

#include "aqueduct/ArchivoAcueducto.h"
#include "aqueduct/MenuInp.h"
#include "aqueduct/ProyectoAcueducto.h"
#include "base/Dialogos.h"
#include "model/ArchivoEdificio.h"
#include "model/ProyectoEdificio.h"
#include "shell/MenuPrincipal.h"
#include "shell/Sesion.h"
#include "store/Archivos.h"

#include <QFile>
#include <QFileInfo>

namespace {

const QString FiltroPlm = QStringLiteral("*.plm|*.plm");
const QString FiltroAcu = QStringLiteral("*.ACU|*.acu");

QString TituloArchivo(const QString& ruta) { return QFileInfo(ruta).fileName(); }

bool MismoNombre(const QString& a, const QString& b) { return UCase(Trim(a)) == UCase(Trim(b)); }

}  // namespace

bool MenuPrincipal::CopiarPlantilla(const QString& plantilla, const QString& ruta) {
    // The copy replaces an existing file in one step, so a failed copy
    // leaves the old one whole.
    QString error;
    if (CopiarArchivo(s_.RutaImagen(plantilla), ruta, &error)) return true;
    d_.MostrarMensaje(error, QStringLiteral("Crear un Nuevo Proyecto..."), TituloProyectoFontaria());
    return false;
}

void MenuPrincipal::NuevoProyecto() {
    const auto ruta = d_.GuardarArchivo(QStringLiteral("Crear un Nuevo Proyecto"),
                                        QStringLiteral("Fontaria (*.plm)|*.plm"), s_.RutaDatos(QStringLiteral("Proyectos")));
    if (!ruta) return;
    if (!CopiarPlantilla(QStringLiteral("Proyecto.nivo"), *ruta)) return;
    s_.NombreProyecto = TituloArchivo(*ruta);
    s_.ArchivoProyecto = *ruta;
    TituloEdificio();
    ValoresIniciales(p_, s_);
    s_.ProyectoModificado = true;
    AbrirConexionProyecto(s_);
    MostrarSiHay(Pantalla::DatosRamales);
    // The editor may have opened another project.
    TituloEdificio();
    Habilitar(QStringLiteral("ID_M1_SalvarComo"), true);
}

void MenuPrincipal::AbrirProyecto() {
    const auto ruta = d_.AbrirArchivo(QStringLiteral("Abrir un Proyecto Existente"), FiltroPlm,
                                      s_.RutaDatos(QStringLiteral("Proyectos")));
    if (!ruta) return;
    s_.NombreProyecto = TituloArchivo(*ruta);
    s_.ArchivoProyecto = *ruta;
    TituloEdificio();
    Habilitar(QStringLiteral("ID_M1_SalvarComo"), true);
}

bool MenuPrincipal::PedirProyectoSiFalta() {
    if (Trim(s_.NombreProyecto).isEmpty()) AbrirProyecto();
    return !Trim(s_.NombreProyecto).isEmpty();
}

bool MenuPrincipal::CargarProyecto() {
    QString error;
    if (CargarProyectoEdificio(p_, s_, s_.ArchivoProyecto, error)) return true;
    Ocupado(false);
    MostrarFallaLectura(error);
    return false;
}

void MenuPrincipal::MostrarFallaLectura(const QString& error) {
    d_.MostrarMensaje(error + QStringLiteral("\nRevise el Archivo de Datos..."),
                      QStringLiteral("Error en Lectura de Datos..."), TituloProyectoFontaria());
}

void MenuPrincipal::ModificarProyecto() {
    if (!PedirProyectoSiFalta()) return;
    if (!CargarProyecto()) return;
    MostrarSiHay(Pantalla::DatosRamales);
    TituloEdificio();
}

void MenuPrincipal::TanqueHidroneumatico() {
    // The one screen that works without a project: with none, it goes on
    // with what the model holds; a chosen project that cannot be read is
    // reported and the screen opens on an empty model, so that nothing of
    // an earlier project passes for this one's.
    if (!Trim(s_.NombreProyecto).isEmpty() && !CargarProyecto()) ValoresIniciales(p_, s_);
    MostrarSiHay(Pantalla::Hidroneumatico);
    // The screen may have opened another project.
    TituloEdificio();
}

bool MenuPrincipal::CargarConProyecto() {
    if (!PedirProyectoSiFalta()) return false;
    Ocupado(true);
    return CargarProyecto();
}

void MenuPrincipal::MostrarResultado(Pantalla p) {
    Ocupado(true);
    MostrarSiHay(p);
    s_.ConexionProyecto.Cerrar();
    TituloEdificio();
    Ocupado(false);
}

void MenuPrincipal::ResultadosAnalisis() {
    if (!CargarConProyecto()) return;
    if (p_.NumeroRamales >= 1) {
        p_.ErrorNumeracion = 0;
        if (VerificarNumeracion) VerificarNumeracion();
        if (p_.ErrorNumeracion != 0) {
            // The pointer stays busy until the window is activated again.
            p_.ErrorNumeracion = 0;
            return;
        }
    }
    MostrarResultado(Pantalla::AnalisisRed);
}

void MenuPrincipal::ComputosRed() {
    if (!CargarConProyecto()) return;
    // Run even with no branch; its fault is not looked at here.
    if (VerificarNumeracion) VerificarNumeracion();
    MostrarResultado(Pantalla::Computos);
}

void MenuPrincipal::ImprimirDatos() {
    if (!CargarConProyecto()) return;
    if (VerificarNumeracion) VerificarNumeracion();
    Ocupado(true);
    // The data reports keep the connection.
    MostrarSiHay(Pantalla::ImpreGeneral);
    Ocupado(false);
}

void MenuPrincipal::SalvarComo() { SalvarComoModo(false); }
void MenuPrincipal::SalvarComoACU() { SalvarComoModo(true); }

void MenuPrincipal::SalvarComoModo(bool acueducto) {
    const QString filtro = acueducto ? FiltroAcu : FiltroPlm;
    const QString carpeta = s_.RutaDatos(acueducto ? QStringLiteral("Redes") : QStringLiteral("Proyectos"));
    QString ruta;
    for (;;) {
        // Both forms name and compare the building project: the twins
        // share their dialog.
        const auto elegido = d_.GuardarArchivo(s_.NombreProyecto + QStringLiteral("  Salvarlo como..."), filtro, carpeta);
        if (!elegido) {
            Ocupado(false);
            return;
        }
        if (!MismoNombre(TituloArchivo(*elegido), s_.NombreProyecto)) {
            ruta = *elegido;
            break;
        }
        s_.Mensaje = QStringLiteral("Proyecto Existente: ") + s_.NombreProyecto + QStringLiteral("\nSalvarlo Como: ") +
                     TituloArchivo(*elegido) + QStringLiteral("\nNo se Puede Salvar el Proyecto con el Mismo Nombre...");
        d_.MostrarMensaje(s_.Mensaje, QStringLiteral("Salvar Proyecto Como..."), TituloProyectoFontaria());
    }
    // The copy is of the file as last written.
    if (!acueducto) s_.ConexionProyecto.Cerrar();
    QString error;
    if (!CopiarArchivo(acueducto ? s_.ArchivoProyectoACU : s_.ArchivoProyecto, ruta, &error)) {
        d_.MostrarMensaje(error, QStringLiteral("Salvar Proyecto Como..."), TituloProyectoFontaria());
        return;
    }
    if (acueducto) {
        s_.NombreProyectoACU = TituloArchivo(ruta);
        s_.ArchivoProyectoACU = ruta;
        TituloAcueducto();
    } else {
        s_.NombreProyecto = TituloArchivo(ruta);
        s_.ArchivoProyecto = ruta;
        TituloEdificio();
    }
}

void MenuPrincipal::EliminarProyectos() {
    const bool acueducto = s_.TipoRed == 1;
    const auto ruta = d_.AbrirArchivo(QStringLiteral("Eliminar Proyectos Existentes..."), acueducto ? FiltroAcu : FiltroPlm,
                                      s_.RutaDatos(acueducto ? QStringLiteral("Redes") : QStringLiteral("Proyectos")));
    if (!ruta) {
        Ocupado(false);
        return;
    }
    const QString titulo = TituloArchivo(*ruta);
    const QString encabezado = QStringLiteral("Eliminar Proyecto Existente...");
    s_.Mensaje = QStringLiteral("Proyecto: ") + titulo + QStringLiteral("\n¿Esta Seguro de Querer Eliminarlo?") +
                 QStringLiteral("\n(Recuerde Sacar Respaldos!)");
    if (d_.MostrarMensaje(s_.Mensaje, encabezado, TituloProyectoFontaria(), Botones::SiNo, 0) != Respuesta::Si) return;
    s_.Mensaje = QStringLiteral("Proyecto: ") + titulo + QStringLiteral("\n¿Esta Seguro de Eliminar el Proyecto Seleccionado?");
    if (d_.MostrarMensaje(s_.Mensaje, encabezado, TituloProyectoFontaria(), Botones::SiNo, 1) != Respuesta::Si) return;

    if (s_.ConexionProyecto.Abierta() && QFileInfo(s_.ConexionProyecto.Ruta()) == QFileInfo(*ruta))
        s_.ConexionProyecto.Cerrar();
    if (!QFile::remove(*ruta)) {
        d_.MostrarMensaje(QStringLiteral("No se puede eliminar el archivo: ") + *ruta, encabezado,
                          TituloProyectoFontaria());
        return;
    }
    // Both modes compare against the building name; the aqueduct tool stays
    // as it was.
    if (MismoNombre(titulo, s_.NombreProyecto)) {
        (acueducto ? s_.NombreProyectoACU : s_.NombreProyecto).clear();
        Habilitar(QStringLiteral("ID_M1_SalvarComo"), false);
    }
    if (acueducto)
        TituloAcueducto();
    else
        TituloEdificio();
}

void MenuPrincipal::ACUAbrirProyecto() {
    const auto ruta = d_.AbrirArchivo(QStringLiteral("Abrir un Proyecto Existente"), FiltroAcu,
                                      s_.RutaDatos(QStringLiteral("Redes")));
    if (!ruta) {
        Ocupado(false);
        return;
    }
    s_.NombreProyectoACU = TituloArchivo(*ruta);
    s_.ArchivoProyectoACU = *ruta;
    TituloAcueducto();
    Habilitar(QStringLiteral("ID_A_Salvar"), true);
}

void MenuPrincipal::ACUNuevoProyecto() {
    const auto ruta = d_.GuardarArchivo(QStringLiteral("Crear un Nuevo Proyecto"), FiltroAcu,
                                        s_.RutaDatos(QStringLiteral("Redes")));
    if (!ruta) {
        Ocupado(false);
        return;
    }
    // A failed copy leaves the chosen network as it was too.
    if (!CopiarPlantilla(QStringLiteral("Malla.nivo"), *ruta)) return;
    s_.NombreProyectoACU = TituloArchivo(*ruta);
    s_.ArchivoProyectoACU = *ruta;
    ValoresInicialesACU(acu_, s_);
    s_.DatosModificados = 0;
    TituloAcueducto();
    Habilitar(QStringLiteral("ID_A_Salvar"), true);
    if (!CargarAcueducto()) return;
    s_.EdicionDesdeAnalisis = 0;
    MostrarSiHay(Pantalla::DatosAcueducto);
    Ocupado(false);
}

bool MenuPrincipal::PedirAcueductoSiFalta() {
    if (Trim(s_.NombreProyectoACU).isEmpty()) ACUAbrirProyecto();
    return !Trim(s_.NombreProyectoACU).isEmpty();
}

bool MenuPrincipal::CargarAcueducto() {
    QString error;
    if (CargarProyectoACU(acu_, s_, s_.ArchivoProyectoACU, error)) return true;
    Ocupado(false);
    MostrarFallaLectura(error);
    return false;
}

void MenuPrincipal::ACUImportarInp() {
    if (ImportarRedInpMenu(acu_, s_, d_)) {
        TituloAcueducto();
        Habilitar(QStringLiteral("ID_A_Salvar"), true);
    }
    Ocupado(false);
}

void MenuPrincipal::ACUExportarInp() {
    if (PedirAcueductoSiFalta()) ExportarRedInpMenu(s_, d_);
    Ocupado(false);
}

void MenuPrincipal::ACUModificarProyecto() {
    if (!PedirAcueductoSiFalta()) return;
    if (!CargarAcueducto()) return;
    s_.EdicionDesdeAnalisis = 0;
    const QString nombre = s_.NombreProyectoACU;
    MostrarSiHay(Pantalla::DatosAcueducto);
    // The data screen's "Abrir" may have chosen another network.
    if (s_.NombreProyectoACU != nombre) TituloAcueducto();
    Ocupado(false);
}

void MenuPrincipal::ACUResultados() {
    if (!PedirAcueductoSiFalta()) return;
    Ocupado(true);
    if (!CargarAcueducto()) return;
    if (acu_.NumeroTramos != 0) {
        MostrarSiHay(Pantalla::AnalisisACU);
        Ocupado(false);
        titulo_ = UCase(QStringLiteral("NIVO-REDES    Proyecto:[ ") + s_.NombreProyectoACU + QStringLiteral(" ]"));
        return;
    }
    Ocupado(false);
    s_.Mensaje = s_.NombreProyectoACU + QStringLiteral("\nNúmero de Ramales = 0\nRevise el Archivo de Datos...");
    d_.MostrarMensaje(s_.Mensaje, QStringLiteral("Error en Lectura de Datos..."), TituloProyectoFontaria());
}

void MenuPrincipal::AbrirDocumento(const QString& ruta, const QString& mensaje, const QString& encabezado) {
    Ocupado(true);
    const bool abierto = d_.AbrirConSistema(ruta);
    Ocupado(false);
    if (!abierto) d_.MostrarMensaje(ruta + QStringLiteral("\n") + mensaje, encabezado, TituloProyectoFontaria());
}

void MenuPrincipal::ManualPrograma() {
    AbrirDocumento(s_.RutaPrograma + QStringLiteral("/Manual/ManualFontaria24.pdf"),
                   QStringLiteral("No se Puede Abrir el Archivo:"), QStringLiteral("Manual del Programa..."));
}

void MenuPrincipal::VerEjemplos() {
    const QString nombre = s_.TipoRed == 1 ? QStringLiteral("Ejemplo Acueductos.pdf")
                                           : QStringLiteral("Ejemplo Viviendas y Edificios.pdf");
    AbrirDocumento(s_.RutaPrograma + QStringLiteral("/Manual/") + nombre, QStringLiteral("No se Puede Abrir el Archivo: "),
                   QStringLiteral("Manual del Usuario..."));
}

void MenuPrincipal::TemasAyuda() {
    AbrirDocumento(s_.ArchivoAyuda, QStringLiteral("No se Puede Abrir el Archivo:"), QStringLiteral("Temas de Ayuda..."));
}

void MenuPrincipal::ExploradorWindows() {
    d_.AbrirConSistema(s_.RutaDatos(s_.TipoRed == 1 ? QStringLiteral("Redes") : QStringLiteral("Proyectos")));
}

void MenuPrincipal::ConfigurarPrograma() {
    Ocupado(true);
    MostrarSiHay(Pantalla::ConfigurarPrograma);
    Ocupado(false);
}

void MenuPrincipal::RepararArchivos() {
    // The current project is closed first, so that it may be compacted.
    Ocupado(true);
    ValoresIniciales(p_, s_);
    MostrarSiHay(Pantalla::Compactar);
    Ocupado(false);
}
