#pragma once
// The settings file Tapiz.nivo: fixed records of 128 bytes, one value at the
// start of each record (counted text, 16-bit and 32-bit little-endian
// integers, bytes), holding the wallpaper and tool-tip settings.

#include <QString>
#include <cstdint>

constexpr int LongitudRegistroTapiz = 128;
constexpr int ColorFondoTipDefecto = 0xD6F4FF;  // 0x00BBGGRR
constexpr int ColorFondoTipCero = 0xEAFFFF;     // what a stored 0 reads as

struct ConfiguracionTapiz {
    QString RutaTapiz;              // record 1
    int16_t PosicionVertical = 0;   // record 2: 0 centre, 1 top, 2 bottom
    int16_t PosicionHorizontal = 0; // record 3: 0 left, 1 centre, 2 right
    bool AjustarTapiz = false;      // record 4
    uint8_t EfectoTapiz = 0;        // record 5: 0..27
    bool ProporcionTapiz = false;   // record 6
    uint8_t TamanoLetraTip = 0;     // record 7: index 0..4 of the sizes 10..14
    int32_t ColorFondoTip = ColorFondoTipDefecto;  // record 8
    int32_t ColorTextoTip = 0;      // record 9
    int16_t Check3 = 0;             // record 10
    int16_t Check4 = 0;             // record 11
};

// The defaults written when the file is missing or its picture is gone.
ConfiguracionTapiz TapizPorDefecto(const QString& directorioDatos);

// Reads the eleven records (a short or missing file reads as zeros) and
// applies the clamps of records 5 and 7.  The colour rule (0 reads as
// 0xEAFFFF) is applied by the start-up after the wallpaper check.
ConfiguracionTapiz LeerTapiz(const QString& ruta, bool* existe = nullptr);

// Rewrites the file with the default branch's widths: record 1 counted text,
// records 2 to 7 and 9 to 11 as 16-bit numbers, record 8 as 32 bits.
bool EscribirTapizPorDefecto(const QString& ruta, const ConfiguracionTapiz& c);

// Rewrites records 1 to 11 with the settings screen's widths: 2, 3, 5 and 7
// as bytes, 4, 6, 10 and 11 as 16-bit numbers, 8 and 9 as 32 bits.  Bytes of
// a record beyond its value keep what the file held.
bool EscribirTapizConfiguracion(const QString& ruta, const ConfiguracionTapiz& c);

// Font size of the tips from record 7.
inline int TamanoLetraTip(const ConfiguracionTapiz& c) { return 10 + c.TamanoLetraTip; }
