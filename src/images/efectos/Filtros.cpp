#include "images/efectos/Efectos.h"
#include "images/efectos/MatPixeles.h"

#include <opencv2/imgproc.hpp>
#include <opencv2/photo.hpp>

#include <algorithm>
#include <cmath>

cv::Mat BgrDe(const Pixeles& p) {
    cv::Mat bgr;
    cv::cvtColor(MatDe(p), bgr, cv::COLOR_BGRA2BGR);
    return bgr;
}

void PonerBgr(Pixeles& destino, const cv::Mat& bgr) {
    PrepararDestino(destino, bgr.cols, bgr.rows);
    cv::Mat d = MatDe(destino);
    cv::cvtColor(bgr, d, cv::COLOR_BGR2BGRA);
}

void PonerGris(Pixeles& destino, const cv::Mat& gris) {
    PrepararDestino(destino, gris.cols, gris.rows);
    cv::Mat d = MatDe(destino);
    cv::cvtColor(gris, d, cv::COLOR_GRAY2BGRA);
}

cv::Mat GrisDe(const Pixeles& p) {
    cv::Mat gris;
    cv::cvtColor(MatDe(p), gris, cv::COLOR_BGRA2GRAY);
    return gris;
}

void GrayscaleCAL(Pixeles& destino, const Pixeles& origen, int W, int H, int modo, double intensidad, int tinte) {
    PrepararDestino(destino, W, H);
    const cv::Mat gris = modo == 1 ? GrisDe(origen) : cv::Mat();
    const double k = std::clamp(intensidad, 0.0, 1.0);
    // Factor of each channel B, G, R: 1 - k + k * tint / 255.
    const double f[3] = {1 - k + k * ((tinte >> 16) & 0xff) / 255.0, 1 - k + k * ((tinte >> 8) & 0xff) / 255.0,
                         1 - k + k * (tinte & 0xff) / 255.0};
    for (int y = 0; y < H; ++y) {
        const uint8_t* o = origen.Fila(y);
        uint8_t* d = destino.Fila(y);
        const uint8_t* g = modo == 1 ? gris.ptr<uint8_t>(y) : nullptr;
        for (int x = 0; x < W; ++x, o += 4, d += 4) {
            int v;
            if (modo == 1) v = g[x];
            else if (modo == 2) v = (std::max({o[0], o[1], o[2]}) + std::min({o[0], o[1], o[2]}) + 1) / 2;
            else v = (o[0] + o[1] + o[2] + 1) / 3;
            for (int c = 0; c < 3; ++c) d[c] = Saturar(v * f[c]);
            d[3] = o[3];
        }
    }
}

void BetterImage(Pixeles& destino, const Pixeles& origen, int W, int H, int diametro, double sigmaColor,
                 double sigmaEspacio) {
    cv::Mat suave;
    cv::bilateralFilter(BgrDe(origen), suave, diametro, sigmaColor, sigmaEspacio);
    PrepararDestino(destino, W, H);
    PonerBgr(destino, suave);
}

void ContourBySobel(Pixeles& destino, const Pixeles& origen, int W, int H) {
    const cv::Mat gris = GrisDe(origen);
    cv::Mat gx, gy, fuerza;
    cv::Sobel(gris, gx, CV_16S, 1, 0);
    cv::Sobel(gris, gy, CV_16S, 0, 1);
    cv::convertScaleAbs(gx, gx);
    cv::convertScaleAbs(gy, gy);
    cv::addWeighted(gx, 0.5, gy, 0.5, 0, fuerza);
    PrepararDestino(destino, W, H);
    PonerGris(destino, fuerza);
}

void ContourImage(Pixeles& destino, const Pixeles& origen, int W, int H) {
    // The strength, spread a little and stretched, so the detail comes back
    // along the whole width of an edge.
    ContourBySobel(destino, origen, W, H);
    cv::Mat d = MatDe(destino);
    cv::GaussianBlur(d, d, cv::Size(0, 0), 1.5);
    d.convertTo(d, -1, 3.0);
}

void ContourApply(Pixeles& destino, const Pixeles& origen, int W, int H, const Pixeles& contorno) {
    for (int y = 0; y < H; ++y) {
        const uint8_t* o = origen.Fila(y);
        const uint8_t* m = contorno.Fila(y);
        uint8_t* d = destino.Fila(y);
        for (int i = 0; i < 4 * W; i += 4) {
            const int peso = m[i];
            for (int c = 0; c < 3; ++c) d[i + c] = uint8_t((d[i + c] * (255 - peso) + o[i + c] * peso + 127) / 255);
        }
    }
}

void FiltroBilateral(Pixeles& destino, const Pixeles& origen, int W, int H) {
    Pixeles contorno;
    BetterImage(destino, origen, W, H);
    ContourImage(contorno, origen, W, H);
    ContourApply(destino, origen, W, H, contorno);
}

void zInitSpatialDomainC(Pixeles& destino, const Pixeles& origen, int W, int H, double sigmaEspacio,
                         double sigmaColor) {
    // Two bilateral passes at half size: flat patches of colour with their
    // borders kept, at a quarter of the cost of the full size.
    cv::Mat mitad, suave;
    cv::resize(BgrDe(origen), mitad, cv::Size(std::max(1, W / 2), std::max(1, H / 2)), 0, 0, cv::INTER_AREA);
    for (int pasada = 0; pasada < 2; ++pasada) {
        cv::bilateralFilter(mitad, suave, 9, sigmaColor, sigmaEspacio);
        std::swap(mitad, suave);
    }
    cv::resize(mitad, suave, cv::Size(W, H), 0, 0, cv::INTER_LINEAR);
    PrepararDestino(destino, W, H);
    PonerBgr(destino, suave);
}

void zInitIntensityDomainC(Pixeles& destino, const Pixeles& origen, int W, int H) {
    cv::Mat lab;
    cv::cvtColor(BgrDe(origen), lab, cv::COLOR_BGR2Lab);
    PrepararDestino(destino, W, H);
    PonerBgr(destino, lab);
}

void KleverHistogramEQUC(Pixeles& destino, const Pixeles& origen, int W, int H) {
    std::vector<cv::Mat> canales;
    cv::split(MatDe(origen), canales);
    cv::equalizeHist(canales[0], canales[0]);
    PrepararDestino(destino, W, H);
    cv::Mat d = MatDe(destino);
    cv::merge(canales, d);
}

void QuantizeLuminanceC(Pixeles& destino, const Pixeles& origen, int W, int H, int niveles) {
    // Soft steps: each value leans to the nearest step through a tanh, so a
    // smooth cheek becomes bands without jagged borders.
    niveles = std::max(2, niveles);
    const double paso = 255.0 / (niveles - 1);
    uint8_t tabla[256];
    for (int v = 0; v < 256; ++v) {
        const double base = std::floor(v / paso) * paso;
        const double resto = v - base - paso / 2;
        tabla[v] = Saturar(base + paso / 2 + paso / 2 * std::tanh(4.0 * resto / paso));
    }
    PrepararDestino(destino, W, H);
    const uint8_t* o = origen.datos.data();
    uint8_t* d = destino.datos.data();
    const size_t n = origen.datos.size();
    for (size_t i = 0; i < n; i += 4) {
        d[i] = tabla[o[i]];
        d[i + 1] = o[i + 1];
        d[i + 2] = o[i + 2];
        d[i + 3] = o[i + 3];
    }
}

void ContourBySobel2(Pixeles& destino, const Pixeles& origen, int W, int H, int umbral) {
    std::vector<cv::Mat> canales;
    cv::split(MatDe(origen), canales);
    cv::Mat lineas;
    cv::threshold(canales[0], lineas, umbral, 255, cv::THRESH_BINARY);
    cv::medianBlur(lineas, lineas, 3);  // lone specks are noise, not lines
    PrepararDestino(destino, W, H);
    PonerGris(destino, lineas);
}

void ContourApplyC(Pixeles& destino, const Pixeles& origen, int W, int H, const Pixeles& lineas) {
    PrepararDestino(destino, W, H);
    for (int y = 0; y < H; ++y) {
        const uint8_t* o = origen.Fila(y);
        const uint8_t* m = lineas.Fila(y);
        uint8_t* d = destino.Fila(y);
        for (int i = 0; i < 4 * W; i += 4) {
            const int queda = 255 - m[i];
            for (int c = 0; c < 3; ++c) d[i + c] = uint8_t((o[i + c] * queda + 127) / 255);
            d[i + 3] = o[i + 3];
        }
    }
}

void DrawCartoonizerP(Pixeles& destino, const Pixeles& origen, int W, int H, int niveles, int umbral) {
    Pixeles suave, lab, lineas;
    zInitSpatialDomainC(suave, origen, W, H);
    zInitIntensityDomainC(lab, suave, W, H);
    KleverHistogramEQUC(destino, lab, W, H);
    QuantizeLuminanceC(lab, destino, W, H, niveles);
    cv::Mat bgr, lab3;
    cv::cvtColor(MatDe(lab), lab3, cv::COLOR_BGRA2BGR);
    cv::cvtColor(lab3, bgr, cv::COLOR_Lab2BGR);
    // The lines come from the smoothed picture: texture leaves none.
    ContourBySobel(lineas, suave, W, H);
    PonerBgr(suave, bgr);
    ContourBySobel2(lab, lineas, W, H, umbral);
    ContourApplyC(destino, suave, W, H, lab);
}

void PencilPlusCALC(Pixeles& destino, const Pixeles& origen, int W, int H, double radio, double sombra) {
    // The colour dodge of the grey by its blurred negative: flat areas go
    // white, edges leave graphite strokes as wide as the blur; a little of
    // the grey is laid back as shading.
    const cv::Mat gris = GrisDe(origen);
    cv::Mat negativo, borroso, trazo;
    cv::bitwise_not(gris, negativo);
    cv::GaussianBlur(negativo, borroso, cv::Size(0, 0), radio);
    cv::bitwise_not(borroso, borroso);
    cv::divide(gris, borroso, trazo, 255.0);
    cv::addWeighted(trazo, 1 - sombra, gris, sombra, 0, trazo);
    PrepararDestino(destino, W, H);
    PonerGris(destino, trazo);
}

void FilmNoirCALC(Pixeles& destino, const Pixeles& origen, int W, int H, double contraste, double vineta) {
    const cv::Mat gris = GrisDe(origen);
    // A hard S-curve around the middle grey.
    uint8_t curva[256];
    for (int v = 0; v < 256; ++v)
        curva[v] = Saturar(127.5 + 127.5 * std::tanh(contraste * (v - 127.5) / 127.5) / std::tanh(contraste));
    PrepararDestino(destino, W, H);
    const double cx = (W - 1) / 2.0, cy = (H - 1) / 2.0;
    const double radio2 = cx * cx + cy * cy + 1e-9;
    for (int y = 0; y < H; ++y) {
        const uint8_t* g = gris.ptr<uint8_t>(y);
        uint8_t* d = destino.Fila(y);
        const double dy2 = (y - cy) * (y - cy);
        for (int x = 0; x < W; ++x, d += 4) {
            const double r2 = ((x - cx) * (x - cx) + dy2) / radio2;
            const uint8_t v = Saturar(curva[g[x]] * (1.0 - vineta * r2 * r2));
            d[0] = d[1] = d[2] = v;
            d[3] = 255;
        }
    }
}

void ModernArtSculture(Pixeles& destino, const Pixeles& origen, int W, int H, double profundidad) {
    // Lit from the top left: with the rows bottom to top, "above" is the
    // next row of the buffer, so the kernel is the usual one upside down.
    const float k = float(profundidad);
    const cv::Mat nucleo = (cv::Mat_<float>(3, 3) << 0, k, k, -k, 0, k, -k, -k, 0) * 0.5f;
    cv::Mat relieve;
    cv::filter2D(GrisDe(origen), relieve, CV_8U, nucleo, cv::Point(-1, -1), 128, cv::BORDER_REPLICATE);
    PrepararDestino(destino, W, H);
    PonerGris(destino, relieve);
}

void ColorAdjustments(Pixeles& destino, const Pixeles& origen, int W, int H, int brillo, int contraste,
                      int saturacion) {
    // Brightness adds up to ±128; contrast scales about the middle grey, 0 to
    // 3 times; saturation moves each channel from the grey 0 to 2 times.
    const double suma = std::clamp(brillo, -100, 100) * 1.28;
    const int c = std::clamp(contraste, -100, 100);
    const double escala = c >= 0 ? 1 + 2.0 * c / 100 : 1 + c / 100.0;
    const int s = std::clamp(saturacion, -100, 100);
    uint8_t tabla[256];
    for (int v = 0; v < 256; ++v) tabla[v] = Saturar((v - 127.5) * escala + 127.5 + suma);
    const int ks = 256 + s * 256 / 100;  // in 1/256
    PrepararDestino(destino, W, H);
    const uint8_t* o = origen.datos.data();
    uint8_t* d = destino.datos.data();
    const size_t n = origen.datos.size();
    for (size_t i = 0; i < n; i += 4) {
        int b = tabla[o[i]], g = tabla[o[i + 1]], r = tabla[o[i + 2]];
        if (s != 0) {
            const int l = Luminancia(r, g, b);
            b = l + ((b - l) * ks >> 8);
            g = l + ((g - l) * ks >> 8);
            r = l + ((r - l) * ks >> 8);
        }
        d[i] = SaturarEntero(b);
        d[i + 1] = SaturarEntero(g);
        d[i + 2] = SaturarEntero(r);
        d[i + 3] = o[i + 3];
    }
}

void SharpenFilter(Pixeles& destino, const Pixeles& origen, int W, int H, int cantidad) {
    // Unsharp mask: the source plus its difference from a blur.
    const double a = std::clamp(cantidad, 0, 100) / 40.0;
    cv::Mat borroso;
    cv::GaussianBlur(MatDe(origen), borroso, cv::Size(0, 0), 1.5);
    PrepararDestino(destino, W, H);
    cv::Mat d = MatDe(destino);
    cv::addWeighted(MatDe(origen), 1 + a, borroso, -a, 0, d);
}

void AjustarColor(Pixeles& destino, const Pixeles& origen, int W, int H, int brillo, int contraste, int saturacion,
                  int afilado) {
    if (brillo == 0 && contraste == 0 && saturacion == 0) destino = origen;
    else ColorAdjustments(destino, origen, W, H, brillo, contraste, saturacion);
    if (afilado > 0) {
        const Pixeles ajustada = destino;
        SharpenFilter(destino, ajustada, W, H, afilado);
    }
}
