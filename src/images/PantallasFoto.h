#pragma once
// The photograph screens that other screens open: the capture from a file,
// the viewer with its area capture, the effects and the export.  The record
// editors and the capture screen reach each other only through this, so the
// desktop shows its Qt screens and the tests answer with a fake.

class QImage;

class PantallasFoto {
public:
    virtual ~PantallasFoto() = default;
    // CapturaFotoF2: true and the chosen picture in `imagen` when it was
    // accepted; `registroConImagen` says the row being edited has one.
    virtual bool CapturarImagen(QImage& imagen, bool registroConImagen) = 0;
    // frmVisualizarImagen on `imagen`: true and the captured area on
    // "Capturar"; false and `imagen` untouched on cancel.
    virtual bool VisualizarImagen(QImage& imagen) = 0;
    // frmEfectoImagenNivo on `imagen`: true and the result on "Fijar el
    // Efecto"; false and `imagen` untouched on cancel.
    virtual bool EfectosImagen(QImage& imagen) = 0;
    // ExportarFoto1: the file dialog and the write.
    virtual void ExportarImagen(const QImage& imagen) = 0;
};
