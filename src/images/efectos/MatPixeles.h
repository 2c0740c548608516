#pragma once
// OpenCV's view of a pixel buffer, without a copy: H rows of W BGRA pixels.
// The rows are bottom to top; a filter that has a direction says so.

#include "images/Pixeles.h"

#include <opencv2/core.hpp>

inline cv::Mat MatDe(Pixeles& p) { return cv::Mat(p.H, p.W, CV_8UC4, p.datos.data()); }
inline cv::Mat MatDe(const Pixeles& p) {
    return cv::Mat(p.H, p.W, CV_8UC4, const_cast<uint8_t*>(p.datos.data()));
}
// The destination sized as the source, its reserved channel as the source's.
inline void PrepararDestino(Pixeles& destino, int W, int H) {
    if (destino.W != W || destino.H != H || destino.datos.size() != size_t(4) * W * H) destino = Pixeles(W, H);
}
// Three-channel copies for the filters that take no fourth channel, and back.
cv::Mat BgrDe(const Pixeles& p);
void PonerBgr(Pixeles& destino, const cv::Mat& bgr);
void PonerGris(Pixeles& destino, const cv::Mat& gris);
cv::Mat GrisDe(const Pixeles& p);
// Luminance 0..255 of a pixel, weights 0.299, 0.587, 0.114, rounded.
inline int Luminancia(int r, int g, int b) { return (299 * r + 587 * g + 114 * b + 500) / 1000; }
inline uint8_t Saturar(double v) { return v <= 0 ? 0 : v >= 255 ? 255 : uint8_t(v + 0.5); }
inline uint8_t SaturarEntero(int v) { return v <= 0 ? 0 : v >= 255 ? 255 : uint8_t(v); }
