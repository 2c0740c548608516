#pragma once
// "Exportar Imagen de los Insumos": the picture, the JPEG/bitmap option, the
// export through the file dialog and the button that opens the folder.

#include "images/ExportarFoto1.h"

#include <QDialog>

class NivoToolTip;

class VentanaExportarFoto1 : public QDialog {
    Q_OBJECT
public:
    VentanaExportarFoto1(Sesion& s, Dialogos& d, const QImage& imagen, QWidget* padre = nullptr);

    ExportarFoto1& Logica() { return logica_; }

private:
    ExportarFoto1 logica_;
    NivoToolTip* tip_;
};
