#include "catalogue/NewConexion.h"

#include "catalogue/BDConexiones.h"

NewConexion::NewConexion(BDConexiones& bd, Sesion& s, Dialogos& d, PantallasFoto& fotos)
    : logica_(bd.Logica(), s, d, fotos) {}
