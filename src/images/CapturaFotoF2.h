#pragma once
// "Capturar Imagenes": a picture taken from a file, previewed, retouched in
// the effects screen or cut in the viewer, and handed to the record being
// edited.  The folder of the accepted file is remembered in CaminoImagen.nivo.

#include <QImage>
#include <QString>

struct Sesion;
class Dialogos;
class PantallasFoto;

class CapturaFotoF2 {
public:
    CapturaFotoF2(Sesion& s, Dialogos& d, PantallasFoto& fotos, bool registroConImagen);

    static QString Titulo();  // "Capturar Imagenes"
    static QString TipEscritorio();
    static QString TipDocumentos();
    static QString TipMiPC();
    static QString TipExplorador();
    static QString TipUltimo();
    static QString TipRestablecer();
    static QString TipEfectos();
    static QString TipCopiar();
    static QString TipCapturar();
    static QString TipCancelar();
    // The file list's name filters: every raster format the toolkit reads.
    static QStringList FiltrosImagen();

    // The folder shown; the screen's tree and list follow it.
    QString Carpeta() const { return carpeta_; }
    void IrACarpeta(const QString& carpeta);
    // ButtonD2, ButtonD3, ButtonD4: desktop, documents, and the root of the
    // file system (where "Mi PC" shows the drives).
    void IrAEscritorio();
    void IrADocumentos();
    void IrAMiPC();
    // ButtonD5: the folder opened with the system's file manager.
    void AbrirExplorador();
    // ButtonD6: the folder of CaminoImagen.nivo; a message when there is
    // none or it is gone.  True when it moved.
    bool IrAUltimaCarpeta();

    // A file chosen in the list: previewed when it is a picture the program
    // takes, else a message and an empty preview.  True when previewed.
    bool SeleccionarArchivo(const QString& ruta);
    QString Archivo() const { return archivo_; }
    // Picture1: what accepting takes.
    const QImage& Imagen() const { return imagen_; }

    // Button1: the picture read again from its file, dropping retouches.
    void Restablecer();
    // Button2, Button3: the effects screen and the viewer on the picture.
    void Efectos();
    void Visualizar();

    // Command2: true when the picture was taken (the screen closes).
    bool Aceptar();

private:
    bool HayImagen();
    void MostrarMotivo(const QString& motivo);
    Sesion& s_;
    Dialogos& d_;
    PantallasFoto& fotos_;
    bool registroConImagen_;
    QString carpeta_;
    QString archivo_;
    QImage imagen_;
};
