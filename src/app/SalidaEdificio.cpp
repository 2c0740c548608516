#include "app/SalidaEdificio.h"

#include "analysis/CargaProyecto.h"
#include "base/ErrorEjecucion.h"
#include "base/Grid.h"

QString ArgumentosVerbo::Valor(const QString& nombre) const {
    for (const auto& [n, v] : valores)
        if (n == nombre) return v;
    return QString();
}

ArgumentosVerbo LeerArgumentos(const QStringList& args, const QStringList& conValor, const QStringList& banderas) {
    ArgumentosVerbo a;
    for (int i = 2; i < args.size(); ++i) {
        const QString& arg = args[i];
        if (!arg.startsWith(QLatin1String("--"))) {
            if (!a.archivo.isEmpty()) {
                a.error = QStringLiteral("Sobra el argumento: ") + arg;
                return a;
            }
            a.archivo = arg;
            continue;
        }
        const QString nombre = arg.mid(2);
        if (banderas.contains(nombre)) {
            a.banderas << nombre;
        } else if (conValor.contains(nombre)) {
            if (i + 1 >= args.size()) {
                a.error = QStringLiteral("Falta el valor de ") + arg;
                return a;
            }
            a.valores.append({nombre, args[++i]});
        } else {
            a.error = QStringLiteral("Opción desconocida: ") + arg;
            return a;
        }
    }
    return a;
}

int FallaDeUso(const ArgumentosVerbo& a, const char* uso) {
    return Fallar(a.error.isEmpty() ? QString::fromUtf8(uso) : a.error + QLatin1Char('\n') + QString::fromUtf8(uso));
}

ContextoVerbo::ContextoVerbo(bool json) {
    PrepararSesion(s);
    d.silencioso = json;
}

bool ContextoVerbo::Cargar(const QString& archivo) {
    QString error;
    if (CargarProyectoEdificio(p, s, archivo, error)) return true;
    Fallar(error);
    return false;
}

int FallaDeCalculo(const ErrorEjecucion& e, bool json) {
    if (json) {
        QJsonObject error;
        error[QStringLiteral("numero")] = e.numero();
        error[QStringLiteral("descripcion")] = e.descripcion();
        if (!e.detalle().isEmpty()) error[QStringLiteral("detalle")] = e.detalle();
        if (!e.lugar().isEmpty()) error[QStringLiteral("lugar")] = e.lugar();
        QJsonObject o;
        o[QStringLiteral("error")] = error;
        ImprimirJson(o);
        return Salida::ErrorCalculo;
    }
    return Fallar(QString::fromUtf8(e.what()), Salida::ErrorCalculo);
}

QJsonArray FilasComoJson(const Grid& g, const QStringList& claves) {
    QJsonArray filas;
    for (int f = 1; f <= g.Filas(); ++f) {
        QJsonObject o;
        for (int c = 1; c <= std::min<int>(g.Columnas(), int(claves.size())); ++c)
            o[claves[c - 1]] = g.EsNumero(f, c) ? QJsonValue(g.Valor(f, c)) : QJsonValue(g.Texto(f, c));
        filas.append(o);
    }
    return filas;
}
