#pragma once
// The photograph effects of the effects screen, each a function of its own
// over the pixel buffer: destination, source, width, height, then the
// effect's own parameters.  The destination takes the source's size; the
// source is never changed.  Colours are 0x00BBGGRR numbers.

#include "images/Pixeles.h"

// Grey scale.  `modo` 0 the mean of the three channels, 1 the luminance
// weights 0.299, 0.587, 0.114, 2 the lightness (max + min) / 2.  `tinte`
// of the grey is mixed in by `intensidad` (0 none, 1 whole): white leaves
// the grey as it is.
void GrayscaleCAL(Pixeles& destino, const Pixeles& origen, int W, int H, int modo, double intensidad, int tinte);

// "Bilateral Filtro": BetterImage smooths with the bilateral filter;
// ContourImage gives the strength of the contours (0..255 in every
// channel); ContourApply brings the source's detail back along them into the
// smoothed picture held in `destino`.
void BetterImage(Pixeles& destino, const Pixeles& origen, int W, int H, int diametro = 9, double sigmaColor = 40,
                 double sigmaEspacio = 9);
void ContourImage(Pixeles& destino, const Pixeles& origen, int W, int H);
void ContourApply(Pixeles& destino, const Pixeles& origen, int W, int H, const Pixeles& contorno);
// The three in turn.
void FiltroBilateral(Pixeles& destino, const Pixeles& origen, int W, int H);

// "Cartonize", step by step, and DrawCartoonizerP which runs them all.
// zInitSpatialDomainC: edge-preserving smoothing (bilateral: spatial reach
// in pixels, colour reach in levels).  zInitIntensityDomainC: the picture in CIE L*a*b*
// (L in channel 0, a and b in 1 and 2).  KleverHistogramEQUC: L equalised.
// QuantizeLuminanceC: L in `niveles` soft steps.  ContourBySobel: Sobel
// gradient strength of the grey.  ContourBySobel2: that strength made lines
// (255) where it passes `umbral`.  ContourApplyC: the lines drawn in black.
void zInitSpatialDomainC(Pixeles& destino, const Pixeles& origen, int W, int H, double sigmaEspacio = 7,
                         double sigmaColor = 30);
void zInitIntensityDomainC(Pixeles& destino, const Pixeles& origen, int W, int H);
void KleverHistogramEQUC(Pixeles& destino, const Pixeles& origen, int W, int H);
void QuantizeLuminanceC(Pixeles& destino, const Pixeles& origen, int W, int H, int niveles = 8);
void ContourBySobel(Pixeles& destino, const Pixeles& origen, int W, int H);
void ContourBySobel2(Pixeles& destino, const Pixeles& origen, int W, int H, int umbral = 80);
void ContourApplyC(Pixeles& destino, const Pixeles& origen, int W, int H, const Pixeles& lineas);
void DrawCartoonizerP(Pixeles& destino, const Pixeles& origen, int W, int H, int niveles = 8, int umbral = 100);

// "Pencil Drawing": a grey pencil sketch; `radio` the width of the strokes
// in pixels, `sombra` 0..1 the share of the grey laid back as shading.
void PencilPlusCALC(Pixeles& destino, const Pixeles& origen, int W, int H, double radio = 8, double sombra = 0.15);
// "Film Noir": grey with hard contrast and a dark vignette.
void FilmNoirCALC(Pixeles& destino, const Pixeles& origen, int W, int H, double contraste = 1.8,
                  double vineta = 0.55);
// "Imagen en 3D": a relief lit from the top left.
void ModernArtSculture(Pixeles& destino, const Pixeles& origen, int W, int H, double profundidad = 2.0);

// The sliders.  Brightness, contrast and saturation each -100..100 (0
// leaves the picture), sharpening 0..100.
void ColorAdjustments(Pixeles& destino, const Pixeles& origen, int W, int H, int brillo, int contraste,
                      int saturacion);
void SharpenFilter(Pixeles& destino, const Pixeles& origen, int W, int H, int cantidad);
void AjustarColor(Pixeles& destino, const Pixeles& origen, int W, int H, int brillo, int contraste, int saturacion,
                  int afilado);
