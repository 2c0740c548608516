#include "aqueduct/CasosDemanda.h"

#include "aqueduct/ArchivoAcueducto.h"
#include "aqueduct/ProyectoAcueducto.h"
#include "aqueduct/SolverMalla.h"
#include "base/Dialogos.h"
#include "base/Nivo.h"
#include "shell/Sesion.h"
#include "store/Conexion.h"

#include <utility>

namespace {
const QString EncabezadoCorreccion = QStringLiteral("Cambiar (I)-(J) de los Ramales...");
}

QString TituloDatosAcueducto() { return QStringLiteral("Datos del Proyecto de Acueductos"); }

QStringList FilasCasos(const ProyectoAcueducto& p) {
    return {QStringLiteral("Qm = Consumo Medio"),
            QStringLiteral("Q Máximo = ") + Formato(p.FactorQMax, QStringLiteral("0.00")) + QStringLiteral(" x Qm"),
            QStringLiteral("Q Incendio = ") + Formato(p.FactorIncendio, QStringLiteral("0.00")) +
                QStringLiteral(" Qm +  ") + Formato(p.LitrosIncendio, QStringLiteral("0.00  "))};
}

QString TextoCasoReporte(const ProyectoAcueducto& p) {
    switch (p.CasoDemanda) {
    case 2:
        return QStringLiteral("Caso: Q Máximo = ") + Formato(p.FactorQMax, QStringLiteral("0.00")) +
               QStringLiteral(" Consumo Medio ");
    case 3:
        return QStringLiteral("Caso: Q Incendio = ") + Formato(p.FactorIncendio, QStringLiteral("0.00")) +
               QStringLiteral(" Consumo Medio +  ") + Formato(p.LitrosIncendio, QStringLiteral("0.00 ")) +
               QStringLiteral(" Litros");
    default: return QStringLiteral("Caso: ConsumoMedio");
    }
}

int PasosDelCaso(const ProyectoAcueducto& p) { return p.CasoDemanda == 3 ? 2 : 1; }

void FormarDemandaReal(ProyectoAcueducto& p) {
    const double factor = p.CasoDemanda == 2 ? p.FactorQMax : p.CasoDemanda == 3 ? p.FactorIncendio : 1.0;
    for (int n = 1; n <= p.NumeroNodosACU; ++n) p.DemandaReal[n] = factor * p.ConsumoMedio[n] / 1000.0;
}

int ContarNegativos(const ProyectoAcueducto& p) {
    int n = 0;
    for (int s = 1; s <= p.NumeroTramos; ++s)
        if (p.Caudal.Leer(s) < 0) ++n;
    return n;
}

bool InvertirTramosNegativos(ProyectoAcueducto& p, Sesion& s, QString& error, int* invertidos) {
    error.clear();
    if (invertidos) *invertidos = 0;
    Conexion c;
    if (!AbrirTablasACU(c, s.ArchivoProyectoACU, error)) return false;
    std::vector<int> hechos;
    {
        Transaccion t(c);
        {
            Consulta buscar(c, QStringLiteral("SELECT rowid FROM Tramos WHERE Numero = ? ORDER BY rowid LIMIT 1"));
            Consulta cambiar(c, QStringLiteral("UPDATE Tramos SET Inicio = ?, Final = ? WHERE rowid = ?"));
            for (int t_ = 1; t_ <= p.NumeroTramos; ++t_) {
                if (!(p.Caudal.Leer(t_) < 0)) continue;
                buscar.Enlazar({t_});
                if (!buscar.Siguiente()) continue;  // no row: the section stays as it is
                const Valor fila = buscar.Columna(0);
                if (!cambiar.Ejecutar({p.Final[t_], p.Inicio[t_], fila})) {
                    error = QStringLiteral("No se Pudo Cambiar la Dirección del Ramal %1\n").arg(t_) + c.UltimoError();
                    return false;
                }
                hechos.push_back(t_);
            }
        }
        if (!t.Confirmar()) {
            error = QStringLiteral("No se Pudo Cambiar la Dirección de los Ramales\n") + c.UltimoError();
            return false;
        }
    }
    c.Cerrar();
    for (int t_ : hechos) std::swap(p.Inicio[t_], p.Final[t_]);
    if (invertidos) *invertidos = int(hechos.size());
    AnalizarMalla(p, s);
    return true;
}

Correccion CorregirDireccion(ProyectoAcueducto& p, Sesion& s, Dialogos& d) {
    if (ContarNegativos(p) == 0) {
        d.MostrarMensaje(QStringLiteral("¡No Existe Ningún Caudal Negativo!"), EncabezadoCorreccion,
                         TituloDatosAcueducto());
        return Correccion::SinNegativos;
    }
    const QString pregunta = QStringLiteral(
        "Invertir la Dirección (I)<->(J) en los Ramales de los \n"
        "Caudales Negativos de la Red en el Proyecto!\n"
        "(En los Ramales Negativos el Flujo va en Sentido Contrario)");
    if (d.MostrarMensaje(pregunta, EncabezadoCorreccion, TituloDatosAcueducto(), Botones::SiNo, 0) != Respuesta::Si)
        return Correccion::Rechazada;
    QString error;
    d.CursorOcupado(true);
    const bool ok = InvertirTramosNegativos(p, s, error);
    d.CursorOcupado(false);
    if (!ok) {
        d.MostrarMensaje(error, EncabezadoCorreccion, TituloDatosAcueducto());
        return Correccion::Fallida;
    }
    return Correccion::Hecha;
}
