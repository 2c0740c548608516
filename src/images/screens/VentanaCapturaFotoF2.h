#pragma once
// "Capturar Imagenes": the folder tree, the picture files of the chosen
// folder, the preview and the buttons of the capture.  Esc and the close
// box are "Cancelar".

#include "images/CapturaFotoF2.h"

#include <QDialog>

class MarcoImagen;
class NivoToolTip;
class QFileSystemModel;
class QLabel;
class QListView;
class QTreeView;

class VentanaCapturaFotoF2 : public QDialog {
    Q_OBJECT
public:
    VentanaCapturaFotoF2(Sesion& s, Dialogos& d, PantallasFoto& fotos, bool registroConImagen,
                         QWidget* padre = nullptr);

    CapturaFotoF2& Logica() { return logica_; }
    // The tree and the list brought to the logic's folder.
    void MostrarCarpeta();

private:
    void ArchivoElegido(const QModelIndex& i);
    void MostrarImagen();
    CapturaFotoF2 logica_;
    QFileSystemModel* carpetas_;
    QFileSystemModel* archivos_;
    QTreeView* folderView1_;
    QListView* fileView1_;
    MarcoImagen* picture1_;
    QLabel* lblArchivo_;
    NivoToolTip* tip_;
};
