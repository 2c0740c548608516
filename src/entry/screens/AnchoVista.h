#pragma once
// The small grids of the branch editor's screens keep the width of their
// columns: a larger window gives them rows, not empty space to the right.

class QBoxLayout;
class QLayout;
class QWidget;
class VistaGrid;

// The view as wide as its row header, its columns and its scroll bar.
void FijarAnchoAlContenido(VistaGrid* v);
// `contenido` centred across the window, taking its whole height.
void CentrarEnAncho(QWidget* ventana, QLayout* contenido);
