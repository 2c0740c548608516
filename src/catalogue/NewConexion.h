#pragma once
// "Crear o Modificar Conexiones": one fitting of the catalogue, its key,
// name, equivalent length ("Automático" for an automatic row) and
// photograph.  A row below key 12 keeps all its columns but the picture.

#include "catalogue/EditorCatalogo.h"

class BDConexiones;

class NewConexion {
public:
    NewConexion(BDConexiones& bd, Sesion& s, Dialogos& d, PantallasFoto& fotos);
    EditorCatalogo& Logica() { return logica_; }

private:
    EditorCatalogo logica_;
};
