#pragma once
// The export buttons of the picture tabs: the save dialog, then the file.

#include <QString>

class Dibujo;
class Dialogos;

// Asks where to save `d` as `formato` ("png", "svg" or "pdf"), under the
// dialog title `titulo`, starting in `carpeta`; the extension is added when
// the name has none.  A failure is shown.  The path written, or empty on a
// cancel or a failure.
QString ExportarConDialogo(const Dibujo& d, Dialogos& dialogos, const QString& titulo, const QString& formato,
                           const QString& carpeta);
