#pragma once
// "Reparar y Compactar Archivos de Obras o Base Datos": a folder tree, the
// folder's project and catalogue files to pick, and the advance of the work.

#include "shell/Compactar1.h"

#include <QDialog>

class Dialogos;
class QFileSystemModel;
class QLabel;
class QListView;
class QProgressBar;
class QTreeView;
struct Sesion;

class VentanaCompactar1 : public QDialog {
    Q_OBJECT
public:
    VentanaCompactar1(Sesion& s, Dialogos& d, QWidget* padre = nullptr);
    // The chosen files, full paths, in the list's order.
    QStringList Seleccionados() const;

private:
    void Aceptar();
    void MostrarCarpeta(const QString& carpeta);

    Compactar1 logica_;
    QFileSystemModel* carpetas_;
    QFileSystemModel* archivos_;
    QTreeView* folderView1_;
    QListView* fileView1_;
    QProgressBar* progressBar1_;
    QLabel* lsLabel1_;
};
