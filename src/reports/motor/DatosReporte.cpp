#include "reports/motor/DatosReporte.h"

#include "pictures/Dibujo.h"
#include "pictures/DibujoDeJson.h"
#include "pictures/ExportarDibujo.h"
#include "shell/Titulos.h"
#include "store/Conexion.h"

#include <QBuffer>
#include <QJsonDocument>
#include <cmath>

namespace {

bool LeerTabla(Conexion& c, const QString& tabla, const QString& orden, TablaReporte& t, QString& error) {
    if (!c.ExisteTabla(tabla)) {
        error = QStringLiteral("La base de datos del reporte no tiene la tabla «%1».").arg(tabla);
        return false;
    }
    t.columnas = c.ColumnasDe(tabla);
    QString sql = QStringLiteral("SELECT * FROM %1").arg(tabla);
    if (!orden.isEmpty()) sql += QStringLiteral(" ORDER BY %1").arg(orden);
    Consulta q(c, sql);
    if (!q.Valida()) {
        error = QStringLiteral("No se pudo leer la tabla «%1»: %2").arg(tabla, c.UltimoError());
        return false;
    }
    while (q.Siguiente()) {
        std::vector<Valor> fila;
        for (int i = 0; i < t.columnas.size(); ++i) fila.push_back(q.Columna(i));
        t.filas.push_back(std::move(fila));
    }
    return true;
}

// Completes each row of `t` with the fields of the first row of `u` whose
// `por` is equal; a row with no partner gets blanks (a blank picture).
bool Unir(TablaReporte& t, const TablaReporte& u, const SeccionPlantilla& s, QString& error) {
    const QString& por = s.unirPor;
    const int it = t.Indice(por), iu = u.Indice(por);
    if (it < 0 || iu < 0) {
        error = QStringLiteral("Las tablas «%1» y «%2» no comparten el campo «%3».").arg(s.tabla, s.unir, por);
        return false;
    }
    QHash<QString, size_t> filaDe;
    for (size_t f = u.filas.size(); f-- > 0;) filaDe.insert(ComoTexto(u.filas[f][size_t(iu)]), f);
    std::vector<int> nuevas;
    for (int k = 0; k < u.columnas.size(); ++k)
        if (t.Indice(u.columnas[k]) < 0) nuevas.push_back(k);
    for (int k : nuevas) t.columnas << u.columnas[k];
    for (std::vector<Valor>& fila : t.filas) {
        const auto f = filaDe.constFind(ComoTexto(fila[size_t(it)]));
        for (int k : nuevas) fila.push_back(f == filaDe.cend() ? Valor() : u.filas[*f][size_t(k)]);
    }
    return true;
}

bool TieneCampo(const TablaReporte& t, const QString& tabla, const QString& campo, QString& error) {
    if (t.Indice(campo) >= 0) return true;
    error = QStringLiteral("La tabla «%1» no tiene el campo «%2».").arg(tabla, campo);
    return false;
}

// The picture of a picture band, from the row of its table named after it.
bool CargarDibujo(const SeccionPlantilla& s, const TablaReporte& t, DatosReporte& datos, QString& error) {
    if (datos.dibujos.contains(s.dibujo)) return true;
    if (!TieneCampo(t, s.tabla, QStringLiteral("Nombre"), error) || !TieneCampo(t, s.tabla, QStringLiteral("Datos"), error))
        return false;
    for (int f = 0; f < int(t.filas.size()); ++f) {
        if (ComoTexto(t.Dato(f, QStringLiteral("Nombre"))) != s.dibujo) continue;
        QJsonParseError e;
        const QJsonDocument doc = QJsonDocument::fromJson(ComoTexto(t.Dato(f, QStringLiteral("Datos"))).toUtf8(), &e);
        QString motivo = e.errorString();
        std::unique_ptr<Dibujo> d = e.error == QJsonParseError::NoError ? DibujoDeJson(doc.object(), motivo) : nullptr;
        if (!d) {
            error = QStringLiteral("No se puede dibujar «%1» de la tabla «%2»: %3").arg(s.dibujo, s.tabla, motivo);
            return false;
        }
        d->PonerBlancoNegro(!datos.FormatoColor());
        datos.dibujos.insert(s.dibujo, std::shared_ptr<const Dibujo>(std::move(d)));
        return true;
    }
    error = QStringLiteral("La tabla «%1» no tiene el dibujo «%2».").arg(s.tabla, s.dibujo);
    return false;
}

}  // namespace

int TablaReporte::Indice(const QString& campo) const {
    for (int i = 0; i < columnas.size(); ++i)
        if (columnas[i].compare(campo, Qt::CaseInsensitive) == 0) return i;
    return -1;
}

Valor TablaReporte::Dato(int fila, const QString& campo) const {
    const int i = Indice(campo);
    if (fila < 0 || size_t(fila) >= filas.size() || i < 0) return Valor();
    return filas[size_t(fila)][size_t(i)];
}

Valor TablaReporte::Celda(int fila, const ColumnaPlantilla& c) const {
    const bool contra = !c.sentido.isEmpty() && ComoDoble(Dato(fila, c.sentido)) < 0.0;
    Valor v = Dato(fila, contra ? c.contrario : c.campo);
    if (c.absoluto && !v.isNull()) v = std::abs(ComoDoble(v));
    return v;
}

QString DatosReporte::General(const QString& campo) const {
    if (const auto t = textosGenerales.constFind(campo); t != textosGenerales.cend()) return *t;
    const QString fuente = camposGenerales.value(campo, campo);
    // A copy of a project keeps no version: the program that prints it is
    // the one the foot names.
    if (campo == QLatin1String("Version") && generales.Indice(fuente) < 0) return EtiquetaVersion();
    return ComoTexto(generales.Dato(0, fuente));
}

QByteArray DatosReporte::PngDibujo(const QString& nombre) const {
    const auto d = dibujos.value(nombre);
    if (!d) return QByteArray();
    QByteArray png;
    QBuffer b(&png);
    b.open(QIODevice::WriteOnly);
    ImagenDibujo(*d, 1800).save(&b, "PNG");
    return png;
}

bool DatosReporte::FormatoColor() const {
    return ComoLogico(generales.Dato(0, camposGenerales.value(QStringLiteral("FormatoColor"), QStringLiteral("FormatoColor"))));
}

const TablaReporte& DatosReporte::Tabla(const QString& nombre) const {
    static const TablaReporte vacia;
    const auto it = tablas.constFind(nombre);
    return it == tablas.cend() ? vacia : *it;
}

bool AbreGrupo(const SeccionPlantilla& s, const TablaReporte& t, int fila) {
    if (fila == 0) return false;
    if (!s.separarCuando.isEmpty() && !ComoTexto(t.Dato(fila, s.separarCuando)).trimmed().isEmpty()) return true;
    return !s.agruparPor.isEmpty() && ComoTexto(t.Dato(fila, s.agruparPor)) != ComoTexto(t.Dato(fila - 1, s.agruparPor));
}

bool RepiteGrupo(const SeccionPlantilla& s, const TablaReporte& t, int fila, const ColumnaPlantilla& c) {
    return fila > 0 && !s.agruparPor.isEmpty() && c.campo.compare(s.agruparPor, Qt::CaseInsensitive) == 0 &&
           ComoTexto(t.Dato(fila, s.agruparPor)) == ComoTexto(t.Dato(fila - 1, s.agruparPor));
}

bool CargarDatosReporte(const QString& rutaBase, const Plantilla& p, DatosReporte& datos, QString& error,
                        const QString& rutaGenerales) {
    datos = DatosReporte{};
    Conexion c;
    if (!c.Abrir(rutaBase)) {
        error = c.UltimoError();
        return false;
    }
    if (rutaGenerales.isEmpty()) {
        if (!LeerTabla(c, p.tablaGenerales, QString(), datos.generales, error)) return false;
    } else {
        Conexion g;
        if (!g.Abrir(rutaGenerales)) {
            error = g.UltimoError();
            return false;
        }
        if (!LeerTabla(g, p.tablaGenerales, QString(), datos.generales, error)) return false;
    }
    datos.tablaGenerales = p.tablaGenerales;
    datos.camposGenerales = p.camposGenerales;
    datos.textosGenerales = p.textosGenerales;
    for (const QString& campo : std::as_const(p.camposGenerales))
        if (!TieneCampo(datos.generales, p.tablaGenerales, campo, error)) return false;
    for (const SeccionPlantilla& s : p.secciones) {
        if (datos.tablas.contains(s.tabla)) {
            if (s.tipo == SeccionPlantilla::Tipo::Dibujo && !CargarDibujo(s, datos.tablas[s.tabla], datos, error))
                return false;
            continue;
        }
        TablaReporte t;
        if (!LeerTabla(c, s.tabla, s.orden, t, error)) return false;
        if (!s.unir.isEmpty()) {
            TablaReporte u;
            if (!LeerTabla(c, s.unir, QString(), u, error) || !Unir(t, u, s, error)) return false;
        }
        for (const ColumnaPlantilla& col : s.columnas)
            for (const QString& campo : {col.campo, col.sentido, col.contrario})
                if (!campo.isEmpty() && !TieneCampo(t, s.tabla, campo, error)) return false;
        for (const CampoPlantilla& campo : s.campos)
            if (!TieneCampo(t, s.tabla, campo.campo, error)) return false;
        if (s.tipo == SeccionPlantilla::Tipo::Dibujo && !CargarDibujo(s, t, datos, error)) return false;
        datos.tablas.insert(s.tabla, std::move(t));
    }
    return true;
}
