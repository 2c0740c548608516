#include "model/ProyectoEdificio.h"

#include "base/Nivo.h"
#include "shell/Sesion.h"

void ProyectoEdificio::DimensionarRamales(int ramales) {
    NodoI.Redim(ramales + 1);
    Nodoj.Redim(ramales + 1);
    longitudReal.Redim(ramales);
    OpcionDiseño.Redim(ramales);
    ValvulaR.Redim(ramales);
    RamalComentario.Redim(ramales);
    Predimensionado.Redim(ramales);
    Reduccion.Redim(ramales);
    NPiezas.Redim(ramales);
    NConexiones.Redim(ramales);
    PiezaClave.Redim(ramales, FilasPorRamal);
    PiezaNombre.Redim(ramales, FilasPorRamal);
    PiezaUnidades.Redim(ramales, FilasPorRamal);
    PiezaCantidad.Redim(ramales, FilasPorRamal);
    ConexionClave.Redim(ramales, FilasPorRamal);
    ConexionNombre.Redim(ramales, FilasPorRamal);
    ConexionLongitud.Redim(ramales, FilasPorRamal);
    ConexionCantidad.Redim(ramales, FilasPorRamal);
    ConexionAutomatica.Redim(ramales, FilasPorRamal);
}

void ProyectoEdificio::DimensionarNodos(int nodos) {
    NodoNombre.Redim(nodos);
    CotaPiso.Redim(nodos);
    CotaRelativa.Redim(nodos);
}

void ValoresIniciales(ProyectoEdificio& p, Sesion& s) {
    const QString cliente = p.Cliente;
    p = ProyectoEdificio();
    p.Cliente = cliente;
    p.Calculista = s.NombreUsuario;
    p.Fecha = Hoy();
    s.ConexionProyecto.Cerrar();
}

const DiametroComercial* TablaDiametros() {
    static const DiametroComercial tabla[NumeroDiametros] = {
        {"1/2", 0.5, 1.58},     {"3/4", 0.75, 2.093},  {"1", 1.0, 2.664},     {"1 1/4", 1.25, 3.505},
        {"1 1/2", 1.5, 4.089},  {"2", 2.0, 5.25},      {"2 1/2", 2.5, 6.271}, {"3", 3.0, 7.793},
        {"4", 4.0, 10.226},     {"5", 5.0, 12.8},      {"6", 6.0, 15.405},    {"8", 8.0, 20.272},
        {"10", 10.0, 25.451},   {"12", 12.0, 30.58},
    };
    return tabla;
}

bool DiametroNombre(double numero, QString& nombre) {
    for (int i = 0; i < NumeroDiametros; ++i)
        if (TablaDiametros()[i].numero == numero) {
            nombre = QString::fromLatin1(TablaDiametros()[i].nombre);
            return true;
        }
    return false;
}

bool DiametroNumero(const QString& nombre, double& numero) {
    for (int i = 0; i < NumeroDiametros; ++i)
        if (nombre == QLatin1String(TablaDiametros()[i].nombre)) {
            numero = TablaDiametros()[i].numero;
            return true;
        }
    return false;
}

bool DiametroInterior(double numero, double& interiorCm) {
    for (int i = 0; i < NumeroDiametros; ++i)
        if (TablaDiametros()[i].numero == numero) {
            interiorCm = TablaDiametros()[i].interior;
            return true;
        }
    return false;
}
