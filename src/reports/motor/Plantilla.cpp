#include "reports/motor/Plantilla.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace {

// Table and field names go into SQL text: letters, digits and '_' only
// (accented letters too: "OpcionDiseño").
bool NombreValido(const QString& n) {
    static const QRegularExpression re(QStringLiteral("^[\\p{L}_][\\p{L}\\p{N}_]*$"));
    return re.match(n).hasMatch();
}

Alineacion LeerAlineacion(const QString& t) {
    if (t == QLatin1String("derecha")) return Alineacion::Derecha;
    if (t == QLatin1String("centro")) return Alineacion::Centro;
    return Alineacion::Izquierda;
}

QMap<int, QString> Textos(const QJsonObject& o) {
    QMap<int, QString> t;
    const QJsonObject textos = o.value(QLatin1String("textos")).toObject();
    for (auto i = textos.begin(); i != textos.end(); ++i) t.insert(i.key().toInt(), i.value().toString());
    return t;
}

SeccionPlantilla LeerSeccion(const QJsonObject& o) {
    SeccionPlantilla s;
    const QString tipo = o.value(QLatin1String("tipo")).toString(QStringLiteral("detalle"));
    s.tipo = tipo == QLatin1String("campos")    ? SeccionPlantilla::Tipo::Campos
             : tipo == QLatin1String("portada") ? SeccionPlantilla::Tipo::Portada
             : tipo == QLatin1String("dibujo")  ? SeccionPlantilla::Tipo::Dibujo
                                                : SeccionPlantilla::Tipo::Detalle;
    s.titulo = o.value(QLatin1String("titulo")).toString();
    s.tabla = o.value(QLatin1String("tabla")).toString();
    s.orden = o.value(QLatin1String("orden")).toString();
    s.unir = o.value(QLatin1String("unir")).toString();
    s.unirPor = o.value(QLatin1String("unirPor")).toString();
    s.separarCuando = o.value(QLatin1String("separarCuando")).toString();
    s.agruparPor = o.value(QLatin1String("agruparPor")).toString();
    s.altoImagen = o.value(QLatin1String("altoImagen")).toDouble(0.0);
    s.altoFila = o.value(QLatin1String("altoFila")).toDouble(0.0);
    s.rejilla = o.value(QLatin1String("rejilla")).toBool(false);
    s.dibujo = o.value(QLatin1String("dibujo")).toString();
    s.alto = o.value(QLatin1String("alto")).toDouble(0.0);
    s.etiquetaTotales = o.value(QLatin1String("etiquetaTotales")).toString(s.etiquetaTotales);
    for (const QJsonValue& v : o.value(QLatin1String("totales")).toArray()) s.totales << v.toString();
    for (const QJsonValue& v : o.value(QLatin1String("columnas")).toArray()) {
        const QJsonObject c = v.toObject();
        ColumnaPlantilla col;
        col.campo = c.value(QLatin1String("campo")).toString();
        col.titulo = c.value(QLatin1String("titulo")).toString();
        col.ancho = c.value(QLatin1String("ancho")).toDouble(1.0);
        col.formato = c.value(QLatin1String("formato")).toString();
        col.imagen = c.value(QLatin1String("imagen")).toBool(false);
        col.textos = Textos(c);
        col.sentido = c.value(QLatin1String("sentido")).toString();
        col.contrario = c.value(QLatin1String("contrario")).toString(col.campo);
        col.absoluto = c.value(QLatin1String("absoluto")).toBool(false);
        col.alineacion = LeerAlineacion(c.value(QLatin1String("alineacion"))
                                            .toString(col.formato.isEmpty() ? QStringLiteral("izquierda")
                                                                            : QStringLiteral("derecha")));
        s.columnas.push_back(col);
    }
    for (const QJsonValue& v : o.value(QLatin1String("campos")).toArray()) {
        const QJsonObject c = v.toObject();
        s.campos.push_back({c.value(QLatin1String("etiqueta")).toString(), c.value(QLatin1String("campo")).toString(),
                            c.value(QLatin1String("formato")).toString(), c.value(QLatin1String("unidad")).toString(),
                            Textos(c)});
    }
    return s;
}

// The names a section puts into SQL.
bool NombresValidos(const SeccionPlantilla& s) {
    QStringList nombres{s.tabla};
    for (const QString& o : s.orden.split(QLatin1Char(','), Qt::SkipEmptyParts)) nombres << o.trimmed();
    if (!s.unir.isEmpty() || !s.unirPor.isEmpty()) nombres << s.unir << s.unirPor;
    if (!s.agruparPor.isEmpty()) nombres << s.agruparPor;
    for (const ColumnaPlantilla& c : s.columnas) {
        nombres << c.campo;
        if (!c.sentido.isEmpty()) nombres << c.sentido << c.contrario;
    }
    for (const CampoPlantilla& c : s.campos) nombres << c.campo;
    for (const QString& n : nombres)
        if (!NombreValido(n)) return false;
    return true;
}

}  // namespace

QStringList Plantilla::Tablas() const {
    QStringList t;
    for (const SeccionPlantilla& s : secciones)
        if (!t.contains(s.tabla)) t << s.tabla;
    return t;
}

QString RutaPlantilla(const QString& rutaPrograma, const QString& nombre, bool acueducto) {
    return rutaPrograma + (acueducto ? QStringLiteral("/ReportesACU/") : QStringLiteral("/Reportes/")) + nombre +
           QStringLiteral(".json");
}

bool LeerPlantilla(const QString& ruta, Plantilla& p, QString& error) {
    const QString nombre = QFileInfo(ruta).completeBaseName();
    QFile f(ruta);
    if (!f.open(QIODevice::ReadOnly)) {
        error = QStringLiteral("No se encontró la plantilla del reporte «%1»:\n%2").arg(nombre, ruta);
        return false;
    }
    QJsonParseError e;
    const QJsonDocument doc = QJsonDocument::fromJson(f.readAll(), &e);
    const QJsonObject o = doc.object();
    p = Plantilla{};
    p.nombre = nombre;
    p.titulo = o.value(QLatin1String("titulo")).toString();
    p.horizontal = o.value(QLatin1String("orientacion")).toString() == QLatin1String("horizontal");
    p.orientacionDelDibujo = o.value(QLatin1String("orientacion")).toString() == QLatin1String("dibujo");
    p.encabezado = o.value(QLatin1String("encabezado")).toBool(true);
    p.pie = o.value(QLatin1String("pie")).toBool(true);
    for (const QJsonValue& v : o.value(QLatin1String("secciones")).toArray()) p.secciones.push_back(LeerSeccion(v.toObject()));
    const QJsonObject g = o.value(QLatin1String("generales")).toObject();
    p.tablaGenerales = g.value(QLatin1String("tabla")).toString(p.tablaGenerales);
    const QJsonObject campos = g.value(QLatin1String("campos")).toObject();
    for (auto it = campos.begin(); it != campos.end(); ++it) p.camposGenerales.insert(it.key(), it.value().toString());
    const QJsonObject textos = g.value(QLatin1String("textos")).toObject();
    for (auto it = textos.begin(); it != textos.end(); ++it) p.textosGenerales.insert(it.key(), it.value().toString());
    bool valida = e.error == QJsonParseError::NoError && doc.isObject() && !p.secciones.empty() &&
                  NombreValido(p.tablaGenerales);
    for (const QString& campo : std::as_const(p.camposGenerales)) valida = valida && NombreValido(campo);
    for (const SeccionPlantilla& s : p.secciones)
        valida = valida && NombresValidos(s) && (s.tipo != SeccionPlantilla::Tipo::Dibujo || !s.dibujo.isEmpty());
    if (!valida) {
        error = QStringLiteral("El archivo «%1» no es una plantilla de reporte válida.").arg(ruta);
        return false;
    }
    return true;
}
