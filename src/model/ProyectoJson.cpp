#include "model/ProyectoJson.h"

#include "base/Nivo.h"
#include "model/ArchivoEdificio.h"
#include "model/LectorJson.h"
#include "model/ProyectoEdificio.h"
#include "shell/Sesion.h"
#include "store/Archivos.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <tuple>

namespace {

using Lector = LectorJson;

QJsonObject Generales(const ProyectoEdificio& p) {
    QJsonObject g;
    g[QStringLiteral("Proyecto")] = p.Proyecto;
    g[QStringLiteral("Ubicacion")] = p.Ubicacion;
    g[QStringLiteral("Calculista")] = p.Calculista;
    g[QStringLiteral("Cliente")] = p.Cliente;
    g[QStringLiteral("Fecha")] = FechaTexto(p.Fecha);
    g[QStringLiteral("Comentario")] = p.Comentario;
    g[QStringLiteral("OpcionUsoPiezas")] = p.OpcionUsoPiezas;
    g[QStringLiteral("OpcionPresionInicial")] = p.OpcionPresionInicial;
    g[QStringLiteral("Valor1")] = p.Valor1;
    g[QStringLiteral("Valor2")] = p.Valor2;
    g[QStringLiteral("Valor3")] = p.Valor3;
    g[QStringLiteral("Velocidad")] = p.Velocidad;
    g[QStringLiteral("OpcionDiametro")] = p.OpcionDiametro;
    g[QStringLiteral("DiametroMinimo")] = p.DiametroMinimo;
    g[QStringLiteral("OpcionPerdidas")] = p.OpcionPerdidas;
    g[QStringLiteral("CoeficienteC")] = p.CoeficienteC;
    g[QStringLiteral("OpcionPresionM")] = p.OpcionPresionM;
    g[QStringLiteral("PresionM")] = p.PresionM;
    return g;
}

QJsonObject Ramal(const ProyectoEdificio& p, int i) {
    QJsonObject r;
    r[QStringLiteral("Numero")] = i;
    r[QStringLiteral("NodoI")] = p.NodoI[i];
    r[QStringLiteral("Nodoj")] = p.Nodoj[i];
    r[QStringLiteral("longitudReal")] = p.longitudReal[i];
    r[QStringLiteral("OpcionDiseño")] = p.OpcionDiseño[i];
    r[QStringLiteral("ValvulaR")] = p.ValvulaR[i];
    r[QStringLiteral("Comentario")] = p.RamalComentario[i];
    r[QStringLiteral("Predimensionado")] = p.Predimensionado[i];
    r[QStringLiteral("Reduccion")] = p.Reduccion[i];
    r[QStringLiteral("NPiezas")] = p.NPiezas[i];
    r[QStringLiteral("NConexiones")] = p.NConexiones[i];
    QJsonArray piezas, conexiones;
    for (int k = 1; k <= std::min(p.NPiezas[i], FilasPorRamal); ++k) {
        QJsonObject f;
        f[QStringLiteral("Clave")] = p.PiezaClave(i, k);
        f[QStringLiteral("Pieza")] = p.PiezaNombre(i, k);
        f[QStringLiteral("UnidadesGasto")] = p.PiezaUnidades(i, k);
        f[QStringLiteral("Cantidad")] = p.PiezaCantidad(i, k);
        piezas.append(f);
    }
    for (int k = 1; k <= std::min(p.NConexiones[i], FilasPorRamal); ++k) {
        QJsonObject f;
        f[QStringLiteral("Clave")] = p.ConexionClave(i, k);
        f[QStringLiteral("Conexion")] = p.ConexionNombre(i, k);
        f[QStringLiteral("LongitudEquivalente")] = p.ConexionLongitud(i, k);
        f[QStringLiteral("Cantidad")] = p.ConexionCantidad(i, k);
        f[QStringLiteral("OpcionAutomatico")] = p.ConexionAutomatica(i, k);
        conexiones.append(f);
    }
    r[QStringLiteral("Piezas")] = piezas;
    r[QStringLiteral("Conexiones")] = conexiones;
    return r;
}

bool LeerRamal(const QJsonObject& o, int i, ProyectoEdificio& p, QString& error) {
    const QString donde = QStringLiteral("en el ramal %1").arg(i);
    Lector l(o, donde, error);
    l.Texto("NodoI", p.NodoI[i]);
    l.Texto("Nodoj", p.Nodoj[i]);
    l.Doble("longitudReal", p.longitudReal[i]);
    l.Entero("OpcionDiseño", p.OpcionDiseño[i], 0, 255);
    l.Doble("ValvulaR", p.ValvulaR[i]);
    l.Texto("Comentario", p.RamalComentario[i]);
    l.Texto("Predimensionado", p.Predimensionado[i]);
    l.Texto("Reduccion", p.Reduccion[i]);
    const QJsonArray piezas = l.Lista("Piezas");
    const QJsonArray conexiones = l.Lista("Conexiones");
    if (!l.Bien()) return false;
    if (piezas.size() > FilasPorRamal || conexiones.size() > FilasPorRamal) {
        error = QStringLiteral("El ramal %1 tiene más de %2 filas de piezas o de conexiones.").arg(i).arg(FilasPorRamal);
        return false;
    }
    // The counts, when given, must agree with the lists: a save writes as
    // many rows as the count says.
    p.NPiezas[i] = int(piezas.size());
    p.NConexiones[i] = int(conexiones.size());
    for (const auto& [clave, lista, n] : {std::tuple{"NPiezas", "Piezas", &p.NPiezas[i]},
                                          std::tuple{"NConexiones", "Conexiones", &p.NConexiones[i]}}) {
        int dicho = *n;
        l.Entero(clave, dicho, 0, FilasPorRamal);
        if (!l.Bien()) return false;
        if (dicho != *n) {
            error = QStringLiteral("El ramal %1 dice %2 = %3, pero su lista \"%4\" tiene %5 filas.")
                        .arg(i)
                        .arg(QString::fromLatin1(clave))
                        .arg(dicho)
                        .arg(QString::fromLatin1(lista))
                        .arg(*n);
            return false;
        }
    }
    for (int k = 1; k <= piezas.size(); ++k) {
        const QJsonObject f = piezas[k - 1].toObject();
        Lector lf(f, donde + QStringLiteral(", pieza %1,").arg(k), error);
        lf.Entero("Clave", p.PiezaClave(i, k), -32768, 32767);
        lf.Texto("Pieza", p.PiezaNombre(i, k));
        lf.Doble("UnidadesGasto", p.PiezaUnidades(i, k));
        lf.Entero("Cantidad", p.PiezaCantidad(i, k), -32768, 32767);
    }
    for (int k = 1; k <= conexiones.size(); ++k) {
        const QJsonObject f = conexiones[k - 1].toObject();
        Lector lf(f, donde + QStringLiteral(", conexión %1,").arg(k), error);
        lf.Entero("Clave", p.ConexionClave(i, k), -32768, 32767);
        lf.Texto("Conexion", p.ConexionNombre(i, k));
        lf.Doble("LongitudEquivalente", p.ConexionLongitud(i, k));
        lf.Entero("Cantidad", p.ConexionCantidad(i, k), -32768, 32767);
        lf.Logico("OpcionAutomatico", p.ConexionAutomatica(i, k));
    }
    return error.isEmpty();
}

}  // namespace

QJsonObject ProyectoComoJson(const ProyectoEdificio& p) {
    QJsonObject o;
    o[QStringLiteral("DatosGenerales")] = Generales(p);
    QJsonArray ramales, nodos;
    for (int i = 1; i <= p.NumeroRamales; ++i) ramales.append(Ramal(p, i));
    for (int i = 1; i <= p.NumeroNodos; ++i) {
        QJsonObject n;
        n[QStringLiteral("Numero")] = i;
        n[QStringLiteral("Nodo")] = p.NodoNombre.Leer(i);
        n[QStringLiteral("CotaPiso")] = p.CotaPiso.Leer(i);
        n[QStringLiteral("CotaRelativa")] = p.CotaRelativa.Leer(i);
        nodos.append(n);
    }
    o[QStringLiteral("NumeroRamales")] = int(p.NumeroRamales);
    o[QStringLiteral("NumeroNodos")] = int(p.NumeroNodos);
    o[QStringLiteral("Ramales")] = ramales;
    o[QStringLiteral("Nodos")] = nodos;
    return o;
}

bool ProyectoDesdeJson(const QJsonObject& o, ProyectoEdificio& p, QString& error) {
    error.clear();
    const QJsonObject g = o.value(QStringLiteral("DatosGenerales")).toObject();
    Lector l(g, QStringLiteral("en los datos generales"), error);
    l.Texto("Proyecto", p.Proyecto);
    l.Texto("Ubicacion", p.Ubicacion);
    l.Texto("Calculista", p.Calculista);
    l.Texto("Cliente", p.Cliente);
    l.Fecha("Fecha", p.Fecha);
    l.Texto("Comentario", p.Comentario);
    l.Entero("OpcionUsoPiezas", p.OpcionUsoPiezas, 0, 3);
    l.Entero("OpcionPresionInicial", p.OpcionPresionInicial, 0, 2);
    l.Doble("Valor1", p.Valor1);
    l.Doble("Valor2", p.Valor2);
    l.Doble("Valor3", p.Valor3);
    l.Doble("Velocidad", p.Velocidad);
    l.Entero("OpcionDiametro", p.OpcionDiametro, 0, 2);
    l.Logico("DiametroMinimo", p.DiametroMinimo);
    l.Entero("OpcionPerdidas", p.OpcionPerdidas, 0, 2);
    l.Doble("CoeficienteC", p.CoeficienteC);
    l.Logico("OpcionPresionM", p.OpcionPresionM);
    l.Doble("PresionM", p.PresionM);
    if (!l.Bien()) return false;

    // One node more than branches: the counters are 16-bit.
    const QJsonArray ramales = o.value(QStringLiteral("Ramales")).toArray();
    const QJsonArray nodos = o.value(QStringLiteral("Nodos")).toArray();
    if (!ObjetosDeLista(ramales, 32766, "ramal", "ramales", error)) return false;
    if (!ObjetosDeLista(nodos, 32767, "nodo", "nodos", error)) return false;
    p.NumeroRamales = int(ramales.size());
    p.DimensionarRamales(p.NumeroRamales);
    for (int i = 1; i <= p.NumeroRamales; ++i)
        if (!LeerRamal(ramales[i - 1].toObject(), i, p, error)) return false;

    // Levels by position; the names are rebuilt from the branches at the save.
    const int n = std::max<int>(int(nodos.size()), p.NumeroRamales + 1);
    p.NumeroNodos = n;
    p.DimensionarNodos(n);
    for (int i = 1; i <= nodos.size(); ++i) {
        Lector ln(nodos[i - 1].toObject(), QStringLiteral("en el nodo %1").arg(i), error);
        ln.Texto("Nodo", p.NodoNombre[i]);
        ln.Doble("CotaPiso", p.CotaPiso[i]);
        if (!ln.Bien()) return false;
    }
    return true;
}

bool ExportarProyecto(const QString& archivo, Sesion& s, QJsonObject& salida, QString& error) {
    ProyectoEdificio p;
    if (!CargarProyectoEdificio(p, s, archivo, error)) return false;
    s.ConexionProyecto.Cerrar();
    salida = ProyectoComoJson(p);
    return true;
}

bool ImportarProyecto(const QString& json, const QString& destino, Sesion& s, QString& error) {
    if (!DestinoReemplazable(destino, json, error)) return false;
    QJsonObject o;
    if (!LeerObjetoJson(json, o, error)) return false;
    ProyectoEdificio p;
    ValoresIniciales(p, s);
    if (!ProyectoDesdeJson(o, p, error)) return false;
    if (p.NumeroRamales < 1) {
        error = MensajeProyectoSinRamales();
        return false;
    }
    return EscribirDesdePlantilla(s.RutaImagen(QStringLiteral("Proyecto.nivo")), destino, error,
                                  [&](const QString& temporal, QString& e) {
                                      s.ArchivoProyecto = temporal;
                                      bool ok = false;
                                      try {
                                          ok = SalvarProyecto(p, s, e);
                                      } catch (const ErrorEjecucion& x) {
                                          e = QString::fromUtf8(x.what());
                                      }
                                      s.ConexionProyecto.Cerrar();
                                      s.ArchivoProyecto = destino;
                                      return ok;
                                  });
}
