#include "catalogue/NewPieza.h"

#include "catalogue/BDPiezas.h"

NewPieza::NewPieza(BDPiezas& bd, Sesion& s, Dialogos& d, PantallasFoto& fotos) : logica_(bd.Logica(), s, d, fotos) {}
