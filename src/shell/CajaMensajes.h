#pragma once
// The rules of the program's message box: the buttons of each form with
// their results, the default button, what Esc does, the empty-title rule and
// the sizing in twips (15 to a pixel at 96 dots per inch).

#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

struct BotonMensaje {
    QString texto;
    int resultado = 0;
};

// Button1, Button2, Button3 of a form (0 "Aceptar", 1 Yes/No, 2 Yes/No/Cancel),
// only the visible ones, left to right.
QList<BotonMensaje> BotonesDeMensaje(int botones);
// The index (0 = Button1) of the focused button.
int BotonPorDefecto(int botones, int defecto);
// The result of Esc, or none when Esc does nothing (Yes/No).
std::optional<int> ResultadoEscape(int botones);
// Yes/No boxes have no close command.
inline bool SinCerrar(int botones) { return botones == 1; }
// "Nivo-Caja de Mensajes" when the title trims to empty.
QString TituloMensaje(const QString& titulo);

constexpr int TwipsPorPixel = 15;
constexpr int AnchoMaximoEtiqueta = 10500;

struct MedidasMensaje {
    int anchoEtiqueta = 0, altoEtiqueta = 0;  // the body's label
    int anchoVentana = 0, altoVentana = 0;
    bool ajustado = false;                    // the text wraps at the limit
};

// `medir(anchoMaximo)` gives the body's width and height in twips, wrapped
// at anchoMaximo (0: not wrapped).  The label's left and top are those of the
// screen's layout.
MedidasMensaje MedirMensaje(const std::function<std::pair<int, int>(int)>& medir, int izquierdaEtiqueta,
                            int arribaEtiqueta, int botones);
