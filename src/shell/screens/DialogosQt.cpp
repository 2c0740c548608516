#include "shell/screens/DialogosQt.h"

#include "shell/screens/VentanaMsgBox.h"
#include "widgets/Colores.h"

#include <QApplication>
#include <QColorDialog>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QRegularExpression>
#include <QUrl>
#include <algorithm>

namespace {

QWidget* Padre() { return QApplication::activeWindow(); }

// The first pattern's extension, added to a name typed without one.
QString SufijoDe(const QString& filtro) {
    const QStringList partes = filtro.split(QLatin1Char('|'));
    if (partes.size() < 2) return QString();
    const QString patron = partes[1].section(QRegularExpression(QStringLiteral("[;,]")), 0, 0).trimmed();
    const QString resto = patron.mid(2);
    return patron.startsWith(QLatin1String("*.")) && !resto.contains(QLatin1Char('*')) ? resto.toLower() : QString();
}

std::optional<QString> Dialogo(bool guardar, const QString& titulo, const QString& filtro, const QString& carpeta) {
    PunteroEnPausa pausa;
    QFileDialog d(Padre(), titulo, carpeta);
    d.setAcceptMode(guardar ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    d.setFileMode(guardar ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    d.setNameFilters(FiltroComoPatrones(filtro));
    if (guardar) d.setDefaultSuffix(SufijoDe(filtro));
    if (d.exec() != QDialog::Accepted || d.selectedFiles().isEmpty()) return std::nullopt;
    return d.selectedFiles().first();
}

}  // namespace

int DialogosQt::MostrarMensaje(const QString& texto, const QString& encabezado, const QString& titulo, int botones,
                               int defecto, int icono, const QImage* imagen) {
    PunteroEnPausa pausa;
    return VentanaMsgBox::MostrarMensaje(texto, encabezado, titulo, botones, defecto, icono, imagen ? *imagen : QImage(), Padre());
}

std::optional<QString> DialogosQt::AbrirArchivo(const QString& titulo, const QString& filtro, const QString& carpeta) {
    return Dialogo(false, titulo, filtro, carpeta);
}

std::optional<QString> DialogosQt::GuardarArchivo(const QString& titulo, const QString& filtro,
                                                  const QString& carpeta) {
    return Dialogo(true, titulo, filtro, carpeta);
}

std::optional<QString> DialogosQt::PedirTexto(const QString& texto, const QString& titulo, const QString& inicial) {
    PunteroEnPausa pausa;
    QInputDialog caja(Padre());
    caja.setWindowTitle(titulo);
    caja.setLabelText(texto);
    caja.setTextValue(inicial);
    // Wide enough for its title.
    caja.setMinimumWidth(std::max(360, caja.fontMetrics().horizontalAdvance(titulo) + 160));
    if (caja.exec() != QDialog::Accepted) return std::nullopt;
    return caja.textValue();
}

std::optional<int> DialogosQt::ElegirColor(int inicial) {
    PunteroEnPausa pausa;
    const QColor c = QColorDialog::getColor(ColorNivo(inicial), Padre());
    if (!c.isValid()) return std::nullopt;
    return NivoDeColor(c);
}

bool DialogosQt::AbrirConSistema(const QString& ruta) {
    // A missing document is a failure the shell would not always report.
    if (!QFileInfo::exists(ruta)) return false;
    return QDesktopServices::openUrl(QUrl::fromLocalFile(ruta));
}

void DialogosQt::CursorOcupado(bool ocupado) {
    if (ocupado == ocupado_) return;
    ocupado_ = ocupado;
    if (ocupado)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        while (QApplication::overrideCursor()) QApplication::restoreOverrideCursor();
}

void DialogosQt::Pitido() { QApplication::beep(); }

PunteroEnPausa::PunteroEnPausa() {
    while (QApplication::overrideCursor()) {
        QApplication::restoreOverrideCursor();
        ++guardados_;
    }
}

PunteroEnPausa::~PunteroEnPausa() {
    for (int i = 0; i < guardados_; ++i) QApplication::setOverrideCursor(Qt::WaitCursor);
}
