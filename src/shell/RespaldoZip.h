#pragma once
// Dated .zip backups of the user's project folders under RespaldoZIP/, and
// their restore.  A restore never overwrites a file that is newer on disk
// than its copy in the backup: such files are kept and listed.

#include <QDateTime>
#include <QString>
#include <QStringList>
#include <functional>

struct Sesion;

// The folders a backup holds, relative to DirectorioDatos.
QStringList CarpetasRespaldo();
// "Respaldo_AAAAMMDD_HHMMSS.zip" under RespaldoZIP/.
QString ArchivoRespaldoZip(const Sesion& s, const QDateTime& momento);

// Advance: a fraction from 0 to 1.
using AvanceZip = std::function<void(double)>;

// Writes every file of the backup folders into `destino`, whole or not at
// all; the number of files, or -1 with a Spanish message in `error`.
int EscribirRespaldoZip(const Sesion& s, const QString& destino, const AvanceZip& avance, QString& error);

struct ResultadoRestauracion {
    int restaurados = 0;
    QStringList conservados;  // newer on disk than in the backup, left alone
    QStringList enUso;        // open in the program, left alone
};

// Puts the files of a backup back under DirectorioDatos.  An entry whose
// name would leave that folder is refused with the whole backup.  False with
// a Spanish message when the file is not a backup or a file cannot be
// written; what was restored before the fault stays.
// `enUso` are files the program holds open (the current project): they are
// never replaced under it.
bool RestaurarRespaldoZip(const Sesion& s, const QString& origen, const QStringList& enUso, const AvanceZip& avance,
                          ResultadoRestauracion& r, QString& error);
