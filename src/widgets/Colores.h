#pragma once
// Colours of the program are 0x00BBGGRR numbers (red in the low byte).

#include <QColor>

inline QColor ColorNivo(int bgr) { return QColor(bgr & 0xFF, (bgr >> 8) & 0xFF, (bgr >> 16) & 0xFF); }
inline int NivoDeColor(const QColor& c) { return c.red() | (c.green() << 8) | (c.blue() << 16); }
