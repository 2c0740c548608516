#pragma once
// "Exportar Imagen": a photograph written to a JPEG or bitmap file under the
// data folder's Fotos, chosen in the file dialog.

#include <QImage>
#include <QString>

struct Sesion;
class Dialogos;

class ExportarFoto1 {
public:
    ExportarFoto1(Sesion& s, Dialogos& d, const QImage& imagen);

    static QString Titulo();  // "Exportar Imagen de los Insumos"
    static QString TipAbrirCarpeta();
    // The JPEG quality of an exported photograph.
    static constexpr int CalidadJpg = 95;

    const QImage& Imagen() const { return imagen_; }
    // LSCheck1: JPEG when on, else bitmap.
    bool Jpg() const { return jpg_; }
    void PonerJpg(bool jpg) { jpg_ = jpg; }
    // DirectorioDatos + "/Fotos", made when missing.
    QString Carpeta() const;

    // Command2: the file dialog and the write.  True when a file was written.
    bool Exportar();
    // LSButton1: the folder opened with the system's file manager.
    void AbrirCarpeta();

private:
    bool Escribir(const QString& ruta, QString& error) const;
    Sesion& s_;
    Dialogos& d_;
    QImage imagen_;
    bool jpg_ = true;
};
