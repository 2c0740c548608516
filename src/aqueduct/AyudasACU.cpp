#include "aqueduct/AyudasACU.h"

namespace {
Ayuda A(const char* control, const char* texto, const char* titulo = "") {
    return {QString::fromUtf8(control), QString::fromUtf8(texto), QString::fromUtf8(titulo)};
}
const char* Retorno = " Retorno ";
}  // namespace

QList<Ayuda> AyudasDatosAcueducto() {
    return {A("Abrir", "Abre un proyecto existente. "),
            A("Salvar", "Salva los datos del proyercto. "),
            A("Reportes", "Imprimir los datos del proyecto. "),
            A("Insertar", "Inserta un ramal en la red. "),
            A("Eliminar", "Elimina el ramal seleccionado. "),
            A("Compatibilidad", "Verifica la compatibilidad de los nodos. "),
            A("Longitudes", "Calcular la longitud de los tramos. "),
            A("Retorno", Retorno),
            A("Anterior", " Ir a la pantalla anterior. "),
            A("Siguiente", " Ir a la siguiente pantalla. "),
            A("Fecha", "Fijar una fecha. "),
            A("Hazen-Williams", "Coeficientes de Hazen-Williams. "),
            A("ID_Insertar", "Insertar un Ramal"),
            A("ID_Eliminar", "Eliminar un Ramal")};
}

QList<Ayuda> AyudasAnalisisACU() {
    return {A("LSButton1", "Corrige la dirección ( I )-( J  ) de los ramales negativos. "),
            A("LSButton2", "Edita los ramales de la Red.  "),
            A("LSButton5", "Abre un proyecto existente. "),
            A("LSButton4", "Exportar el análisis de la red a Excel. "),
            A("LSButton8", "Imprime los resultados del análisis. "),
            A("LSButton3", Retorno),
            A("LRamal", "Buscar un ramal. "),
            A("LSButton5", "Abrir un proyecto de acueductos \nexistente. ", "Abrir Proyecto"),
            A("LSButton2", "Editar los ramales de la Red actual. ", "Editar los Ramales"),
            A("LSButton1", "Corrige la dirección (I)-(J ) de los \nramales negativos. ", "Corregir Dirección"),
            A("LSButton4", "Exportar los resultados del análisis \na Excel. ", "Exportar a Excel"),
            A("LSButton8", "Imprime o exporta los resultados \ndel análisis. ", "Imprimir el Análisis")};
}

QList<Ayuda> AyudasLongitudTramosAcu() {
    return {A("Fijar la Longitud", "Fijar la longitud del tramo seleccionado. "),
            A("Limpiar", "Limpiar los Valores de las coordendas. "),
            A("TomarDeLosNodos", "Tomar X, Y y la cota del terreno de los nodos del tramo. "),
            A("Retorno", Retorno)};
}
