#include "images/CapturaFotoF2.h"

#include "base/Dialogos.h"
#include "images/ArchivoImagen.h"
#include "images/CaminoImagen.h"
#include "images/PantallasFoto.h"
#include "shell/Sesion.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QStandardPaths>

namespace {
QString TituloCapturar() { return QStringLiteral("Capturar Imágenes"); }
QString EncabezadoInsumos() { return QStringLiteral("Imágenes de los Insumos..."); }

// A system without a desktop or documents folder has at least a home.
QString CarpetaDelSistema(QStandardPaths::StandardLocation lugar) {
    const QString carpeta = QStandardPaths::writableLocation(lugar);
    return QFileInfo(carpeta).isDir() ? carpeta : QDir::homePath();
}
}  // namespace

CapturaFotoF2::CapturaFotoF2(Sesion& s, Dialogos& d, PantallasFoto& fotos, bool registroConImagen)
    : s_(s), d_(d), fotos_(fotos), registroConImagen_(registroConImagen) {
    // The screen opens where the engineer last took a picture from.
    const QString ultima = LeerUltimaCarpeta(s_.DirectorioDatos);
    if (!ultima.isEmpty() && QFileInfo(ultima).isDir())
        carpeta_ = ultima;
    else
        IrADocumentos();
}

QString CapturaFotoF2::Titulo() { return QStringLiteral("Capturar Imagenes"); }
QString CapturaFotoF2::TipEscritorio() { return QStringLiteral(" Directorio de Escritorio "); }
QString CapturaFotoF2::TipDocumentos() { return QStringLiteral(" Directorio de Mis Documentos "); }
QString CapturaFotoF2::TipMiPC() { return QStringLiteral(" Directorio de Mi PC "); }
QString CapturaFotoF2::TipExplorador() { return QStringLiteral(" Explorador de Windows "); }
QString CapturaFotoF2::TipUltimo() { return QStringLiteral(" Abrir el Último Directorio Abierto "); }
QString CapturaFotoF2::TipRestablecer() { return QStringLiteral("Restablece la imagen original. "); }
QString CapturaFotoF2::TipEfectos() { return QStringLiteral("Fija efectos para mejorar la imagen. "); }
QString CapturaFotoF2::TipCopiar() { return QStringLiteral("Copiar un área de la imagen. "); }
QString CapturaFotoF2::TipCapturar() { return QStringLiteral("Capturar la imagen seleccionada. "); }
QString CapturaFotoF2::TipCancelar() { return QStringLiteral(" Cancelar "); }

QStringList CapturaFotoF2::FiltrosImagen() {
    QStringList filtros;
    for (const QByteArray& f : QImageReader::supportedImageFormats())
        filtros << QStringLiteral("*.") + QString::fromLatin1(f);
    return filtros;
}

void CapturaFotoF2::IrACarpeta(const QString& carpeta) {
    if (QFileInfo(carpeta).isDir()) carpeta_ = QDir::cleanPath(carpeta);
}

void CapturaFotoF2::IrAEscritorio() { IrACarpeta(CarpetaDelSistema(QStandardPaths::DesktopLocation)); }

void CapturaFotoF2::IrADocumentos() { IrACarpeta(CarpetaDelSistema(QStandardPaths::DocumentsLocation)); }

void CapturaFotoF2::IrAMiPC() { IrACarpeta(QDir::rootPath()); }

void CapturaFotoF2::AbrirExplorador() {
    if (!d_.AbrirConSistema(carpeta_))
        d_.MostrarMensaje(QStringLiteral("No se Pudo Abrir el Directorio con el Explorador del Sistema:\n") + carpeta_,
                          QStringLiteral("Explorador de Archivos..."), TituloCapturar());
}

bool CapturaFotoF2::IrAUltimaCarpeta() {
    const QString ultima = LeerUltimaCarpeta(s_.DirectorioDatos);
    const QString encabezado = QStringLiteral("Abrir el Último Directorio Abierto...");
    if (ultima.isEmpty()) {
        d_.MostrarMensaje(QStringLiteral("¡No se ha Capturado Todavía Ninguna Imagen desde un Directorio!"),
                          encabezado, TituloCapturar());
        return false;
    }
    if (!QFileInfo(ultima).isDir()) {
        d_.MostrarMensaje(QStringLiteral("¡El Último Directorio Abierto ya no Existe!\n") + ultima, encabezado,
                          TituloCapturar());
        return false;
    }
    IrACarpeta(ultima);
    return true;
}

bool CapturaFotoF2::SeleccionarArchivo(const QString& ruta) {
    QImage leida;
    QString motivo;
    if (!LeerArchivoImagen(ruta, leida, motivo)) {
        // The refused file's name stays chosen, but nothing of it is shown
        // nor taken.
        archivo_.clear();
        imagen_ = QImage();
        MostrarMotivo(motivo);
        return false;
    }
    archivo_ = ruta;
    imagen_ = leida;
    return true;
}

void CapturaFotoF2::Restablecer() {
    if (archivo_.isEmpty()) return;
    SeleccionarArchivo(archivo_);
}

void CapturaFotoF2::Efectos() {
    if (HayImagen()) fotos_.EfectosImagen(imagen_);
}

void CapturaFotoF2::Visualizar() {
    if (HayImagen()) fotos_.VisualizarImagen(imagen_);
}

bool CapturaFotoF2::Aceptar() {
    if (!HayImagen()) return false;
    if (registroConImagen_ &&
        d_.MostrarMensaje(QStringLiteral("El Registro Seleccionado Contiene una Imagen...\n¿Desea Reemplazar la Imagen?"),
                          QStringLiteral("Reemplazar la Imagen..."), TituloCapturar(), Botones::SiNo) !=
            Respuesta::Si)
        return false;
    s_.HayImagenNueva = -1;
    s_.RutaImagenCapturada = archivo_;
    // Remembering the folder is a convenience: a data folder that can't be
    // written doesn't stop the picture.
    EscribirUltimaCarpeta(s_.DirectorioDatos, QFileInfo(archivo_).absolutePath());
    return true;
}

bool CapturaFotoF2::HayImagen() {
    if (!imagen_.isNull()) return true;
    d_.MostrarMensaje(QStringLiteral("¡No ha Seleccionado Ninguna Imagen!"), EncabezadoInsumos(), TituloCapturar());
    return false;
}

void CapturaFotoF2::MostrarMotivo(const QString& motivo) {
    d_.MostrarMensaje(motivo, EncabezadoInsumos(), TituloCapturar());
}
