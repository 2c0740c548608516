#pragma once
// Whole-file writes: a target is replaced in one step by a file finished
// beside it, never left half-written.

#include <QString>
#include <functional>

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
