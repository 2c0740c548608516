#pragma once
// Whole-file writes: a target is replaced in one step by a file finished
// beside it, never left half-written.

#include <QByteArray>
#include <QString>
#include <functional>

// Paths as the system hands them over.  A name whose bytes are not UTF-8 (a
// "Diseño.plm" in Latin-1 from an old archive) keeps each such byte as a
// character U+DC80..U+DCFF, so that the same file is reached again: every
// open of a file goes through RutaNativa.
QString RutaDesdeNativa(const QByteArray& bytes);
QByteArray RutaNativa(const QString& ruta);

// Reads a regular file whole: false, with a Spanish message, when the path
// is missing, is not a regular file (a pipe would wait for ever, a device
// never ends) or holds more than `maximo` bytes.
bool LeerArchivoRegular(const QString& ruta, qint64 maximo, QByteArray& datos, QString& error);

// Whether a write may put a new file in place of `destino`: nothing there, or
// an ordinary file that can be written and is not `origen`, the file the new
// one is made from.  A symbolic link, a device or a pipe, a read-only file
// (by its mode, which holds even for the superuser) and the input itself are
// refused with a Spanish message.
bool DestinoReemplazable(const QString& destino, const QString& origen, QString& error);

// Whether the file at `ruta` may not be written: by its mode, which holds
// even for the superuser, or by the system's own check.
bool ArchivoSoloLectura(const QString& ruta);

// Copies a file over another through a temporary name in the target's folder
// and a rename, so the target is never left half-written.
bool CopiarArchivo(const QString& origen, const QString& destino, QString* error = nullptr);
// Puts a finished file in place of another in one step (a rename).
bool ReemplazarArchivo(const QString& nuevo, const QString& destino);
// Makes `destino` from a blank template: the template is copied under a
// temporary name beside the target, `escribir` fills that copy, and only a
// copy it filled whole replaces the target.  A failure leaves no file behind
// and an existing target untouched.
bool EscribirDesdePlantilla(const QString& plantilla, const QString& destino, QString& error,
                            const std::function<bool(const QString& temporal, QString& error)>& escribir);
