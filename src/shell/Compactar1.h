#pragma once
// Repair and compaction of project and catalogue files.  Each selected file
// is checked, compacted into Temporales/ and put back in place of the
// original only when the compacted copy is whole; the catalogue and the open
// project are closed around the work and reopened after it.

#include <QString>
#include <QStringList>
#include <functional>

class Dialogos;
struct Sesion;

// CompactarBase: a consistent database at `origen` copied compacted to
// `destino`, which must not exist.  False with a Spanish message when the
// source does not open, fails its integrity check or cannot be copied.
bool CompactarBase(const QString& origen, const QString& destino, QString& error);

// The compacted copy's name in `carpeta`: "DBT_" + minute + second + ".mdb",
// with a counter after it when a file compacted in the same second holds
// the name already.
QString NombreCompactado(const QString& carpeta, int minuto, int segundo);

class Compactar1 {
public:
    Compactar1(Sesion& s, Dialogos& d) : s_(s), d_(d) {}

    // The pattern of the file list.
    static QString Patron() { return QStringLiteral("*.plm; BD_*.mdb;*.acu"); }

    // Advance of the work: files done, total, and the label.
    std::function<void(int, int, const QString&)> Avance;

    // Command2: compacts the selected files in order; the number compacted.
    // Stops at the first file that cannot be compacted, which stays as it
    // was, and says which.
    int Aceptar(const QStringList& archivos);

private:
    bool CompactarUno(const QString& archivo, QString& error);
    Sesion& s_;
    Dialogos& d_;
};
