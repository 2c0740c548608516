#pragma once
// The logic of the settings screen: the wallpaper and tool-tip values of
// Tapiz.nivo as the screen edits them, its enabling rule, the colour
// choices, the defaults, and the writing of the file on " Aceptar ".

#include "shell/Tapiz.h"

#include <QList>
#include <QString>

class Dialogos;
struct Sesion;

struct ParColores {
    int fondo;  // 0x00BBGGRR
    int texto;
};

class ConfigurarPrograma {
public:
    explicit ConfigurarPrograma(const Sesion& s);

    const ConfiguracionTapiz& Valores() const { return valores_; }

    // Wallpaper tab.
    // `Abrir`: a new picture resets the placement to 0, 0 and the effect to 0;
    // a cancel keeps everything.
    void Abrir(Dialogos& d);
    void PonerVertical(int v);    // Option1..3: 0 centre, 1 top, 2 bottom
    void PonerHorizontal(int h);  // Option5, Option4, Option6: 0 left, 1 centre, 2 right
    void PonerAjustar(bool si);   // Check1
    void PonerProporcion(bool si);  // Check2
    bool Check2Habilitado() const { return valores_.AjustarTapiz; }

    // Tool-tip tab.
    static QStringList TamanosLetra();  // Combo1: "10".."14"
    void PonerTamanoLetra(int indice);
    void ElegirColorFondo(Dialogos& d);  // OwlButton3
    void ElegirColorTexto(Dialogos& d);  // LColor
    static const QList<ParColores>& ColoresPredefinidos();  // LSLabel3..LSLabel7
    void PonerColoresPredefinidos(int i);
    void PonerCheck3(bool si) { valores_.Check3 = si ? -1 : 0; }
    void PonerCheck4(bool si) { valores_.Check4 = si ? -1 : 0; }
    // OwlButton2: the defaults written for a missing settings file.
    void Restaurar();

    // Command6: the values become the session's and Tapiz.nivo is rewritten
    // with the screen's widths.  False, with the message shown, when the file
    // cannot be written; the session then keeps its values.
    bool Aceptar(Sesion& s, Dialogos& d);

private:
    QString directorioDatos_;
    ConfiguracionTapiz valores_;
};
