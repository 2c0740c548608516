// The edits of the analysis screen that reach the project file: the assumed
// diameter, the reducing valve, and all the sizes made the theoretical ones.

#include "analysis/AnalisisRed.h"

#include "analysis/EscrituraRamales.h"
#include "analysis/Predimensionado.h"
#include "analysis/Presiones.h"
#include "base/Dialogos.h"
#include "base/Nivo.h"
#include "model/ProyectoEdificio.h"
#include "shell/Sesion.h"
#include "shell/Titulos.h"

void AnalisisRed::EscribirCampoRamal(const char* columna, int ramal, const QString& texto) {
    const long long fila = FilaDeRamal(s_.ConexionProyecto, ramal);
    if (fila < 0) return;
    EscrituraRamales escritura(s_.ConexionProyecto, columna);
    escritura.Escribir(fila, texto);
    escritura.Confirmar();
}

void AnalisisRed::EscribirCampoRamal(const char* columna, int ramal, double valor) {
    const long long fila = FilaDeRamal(s_.ConexionProyecto, ramal);
    if (fila < 0) return;
    EscrituraRamales escritura(s_.ConexionProyecto, columna);
    escritura.Escribir(fila, valor);
    escritura.Confirmar();
}

void AnalisisRed::EditarDiametroAsumido(int fila, const QString& texto) {
    if (fila < 1 || fila > Spread4.Filas() || fila > p_.NumeroRamales) return;
    QString nombre = Trim(texto);
    if (nombre.isEmpty()) return;
    if (nombre.endsWith(MarcaPulgada())) nombre.chop(1);
    p_.Predimensionado[fila] = nombre;
    ConvertirDiametro(p_, fila, true);
    ActualizarVelocidad(p_, fila, true);
    ColoqueDiametroAsumido(fila);
    EscrituraConjunta conjunta(s_.ConexionProyecto);
    EscribirCampoRamal("Predimensionado", fila, p_.Predimensionado[fila]);
    // Flows and the first two tabs stay as they are.
    RehacerPerdidas(conjunta);
}

bool AnalisisRed::EditarValvulaReductora(int fila, const QString& texto) {
    if (fila < 1 || fila > Spread3.Filas()) return false;
    double valor = 0.0;
    if (!Trim(texto).isEmpty() && !LeerNumeroOAvisar(d_, texto, valor)) {
        ColoqueValvula(fila);
        return false;
    }
    if (EditarValvulaReductora(fila, valor)) return true;
    ColoqueValvula(fila);
    return false;
}

void AnalisisRed::NumeroRechazado(const QString& texto) {
    // A number out of the column's bounds stays silent, as the cell always was.
    double valor = 0.0;
    LeerNumeroOAvisar(d_, texto, valor);
}

bool AnalisisRed::EditarValvulaReductora(int fila, double valor) {
    if (fila < 1 || fila > p_.NumeroRamales || !PresionesCalculadas()) return false;
    p_.ValvulaR[fila] = valor;
    RamalEditado = fila;
    CalcularPresiones(p_);
    ColoquePerdidasPresiones();
    EscribirCampoRamal("ValvulaR", fila, valor);
    return true;
}

bool AnalisisRed::LSButton2_Click() {
    if (p_.NumeroRamales < 1 || Spread4.Filas() < p_.NumeroRamales) return false;
    const int r = d_.MostrarMensaje(QStringLiteral("Igualar el Diámetro Asumido en los Ramales al Diámetro de Cálculo?"),
                                    QStringLiteral("Diámetros de los Ramales..."), TituloProyectoFontaria(),
                                    Botones::SiNo, 0);
    if (r != Respuesta::Si) return false;
    const auto filas = LeerColumnaRamales(s_.ConexionProyecto, "Predimensionado");
    EscrituraConjunta conjunta(s_.ConexionProyecto);
    EscrituraRamales escritura(s_.ConexionProyecto, "Predimensionado");
    for (int i = 1; i <= p_.NumeroRamales; ++i) {
        p_.Predimensionado[i] = p_.DiametroCalculoTexto[i];
        p_.DiametroAsumido[i] = p_.DiametroCalculo[i];
        p_.VelocidadAsumida[i] = p_.VelocidadCalculo[i];
        if (size_t(i) <= filas.size() && ComoTexto(filas[size_t(i) - 1].second) != p_.Predimensionado[i])
            escritura.Escribir(filas[size_t(i) - 1].first, p_.Predimensionado[i]);
    }
    escritura.Confirmar();
    ColoquePredimensionado();
    RehacerPerdidas(conjunta);
    return true;
}
