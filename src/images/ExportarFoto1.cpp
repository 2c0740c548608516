#include "images/ExportarFoto1.h"

#include "base/Dialogos.h"
#include "shell/Sesion.h"
#include "store/Archivos.h"

#include <QDir>
#include <QFileInfo>
#include <QImageWriter>
#include <QPainter>
#include <QSaveFile>

namespace {
QString EncabezadoExportar() { return QStringLiteral("Exportar la Imagen..."); }
}  // namespace

ExportarFoto1::ExportarFoto1(Sesion& s, Dialogos& d, const QImage& imagen) : s_(s), d_(d), imagen_(imagen) {}

QString ExportarFoto1::Titulo() { return QStringLiteral("Exportar Imagen de los Insumos"); }
QString ExportarFoto1::TipAbrirCarpeta() { return QStringLiteral(" Abrir el Directorio de las Fotos "); }

QString ExportarFoto1::Carpeta() const { return s_.DirectorioDatos + QStringLiteral("/Fotos"); }

bool ExportarFoto1::Exportar() {
    QDir().mkpath(Carpeta());
    const QString filtro = jpg_ ? QStringLiteral("Image (*.jpg)|*.jpg") : QStringLiteral("Image (*.bmp)|*.bmp");
    const std::optional<QString> elegido =
        d_.GuardarArchivo(QStringLiteral("Salvar la Imagen Seleccionada"), filtro, Carpeta());
    if (!elegido || elegido->isEmpty()) return false;
    // The format is the option's, and the name ends as the format does.
    const QString extension = jpg_ ? QStringLiteral("jpg") : QStringLiteral("bmp");
    QString ruta = *elegido;
    const QString sufijo = QFileInfo(ruta).suffix().toLower();
    if (sufijo != extension && !(jpg_ && sufijo == QStringLiteral("jpeg"))) ruta += QLatin1Char('.') + extension;
    QString error;
    if (!Escribir(ruta, error)) {
        d_.MostrarMensaje(QStringLiteral("¡No se Pudo Exportar la Imagen!\n") + error, EncabezadoExportar(), Titulo());
        return false;
    }
    d_.MostrarMensaje(QStringLiteral("La Imagen se Exportó con Exito!"), EncabezadoExportar(), Titulo());
    return true;
}

bool ExportarFoto1::Escribir(const QString& ruta, QString& error) const {
    if (imagen_.isNull()) {
        error = QStringLiteral("No hay ninguna imagen que exportar.");
        return false;
    }
    if (!DestinoReemplazable(ruta, QString(), error)) return false;
    // Written beside the target under another name and put in its place
    // whole: a failed write leaves the folder as it was.
    QSaveFile archivo(ruta);
    if (!archivo.open(QIODevice::WriteOnly)) {
        error = QStringLiteral("No se puede escribir en ") + ruta;
        return false;
    }
    QImageWriter escritor(&archivo, jpg_ ? "jpg" : "bmp");
    if (jpg_) escritor.setQuality(CalidadJpg);
    // JPEG and 24-bit bitmaps hold no transparency: it is laid on white.
    QImage plana(imagen_.size(), QImage::Format_RGB32);
    plana.fill(Qt::white);
    {
        QPainter p(&plana);
        p.drawImage(0, 0, imagen_);
    }
    if (!escritor.write(plana) || !archivo.commit()) {
        archivo.cancelWriting();
        error = QStringLiteral("No se pudo escribir el archivo ") + ruta;
        return false;
    }
    return true;
}

void ExportarFoto1::AbrirCarpeta() {
    QDir().mkpath(Carpeta());
    if (!d_.AbrirConSistema(Carpeta()))
        d_.MostrarMensaje(QStringLiteral("No se Pudo Abrir el Directorio:\n") + Carpeta(), EncabezadoExportar(),
                          Titulo());
}
