#include "aqueduct/ImportarInp.h"

#include "aqueduct/ArchivoAcueducto.h"
#include "aqueduct/ExportarInp.h"
#include "aqueduct/NumeracionNodos.h"
#include "aqueduct/ProyectoAcueducto.h"
#include "base/ErrorEjecucion.h"
#include "base/Nivo.h"
#include "shell/Sesion.h"
#include "store/Archivos.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QStringDecoder>
#include <cmath>
#include <functional>
#include <map>

namespace {

struct Linea {
    int n = 0;
    QStringList campos;
    QStringList fontaria;  // "Campo=valor" of a ";Fontaria" comment
    QString texto;         // the data part as written (titles)
};

struct Seccion {
    int linea = 0;
    std::vector<Linea> lineas;
};

// Litres per second of one flow unit, and whether the unit is a US one.
struct Unidad {
    const char* nombre;
    double litros;
    bool us;
};
const Unidad Unidades[] = {
    {"CFS", 28.316846592, true},
    {"GPM", 3.785411784 / 60.0, true},
    {"MGD", 3785411.784 / 86400.0, true},
    {"IMGD", 4546090.0 / 86400.0, true},
    {"AFD", 1233481.83754752 / 86400.0, true},
    {"LPS", 1.0, false},
    {"LPM", 1.0 / 60.0, false},
    {"MLD", 1.0e6 / 86400.0, false},
    {"CMH", 1000.0 / 3600.0, false},
    {"CMD", 1000.0 / 86400.0, false},
};
constexpr double Pie = 0.3048;
constexpr double Pulgada = 25.4;

// Options that change nothing in a single-period Hazen-Williams solve.
const QStringList OpcionesSinEfecto = {
    QStringLiteral("TRIALS"),     QStringLiteral("ACCURACY"),  QStringLiteral("UNBALANCED"), QStringLiteral("CHECKFREQ"),
    QStringLiteral("MAXCHECK"),   QStringLiteral("DAMPLIMIT"), QStringLiteral("TOLERANCE"),  QStringLiteral("HYDRAULICS"),
    QStringLiteral("MAP"),        QStringLiteral("FLOWCHANGE"), QStringLiteral("HEADERROR"), QStringLiteral("QUALITY"),
    QStringLiteral("DIFFUSIVITY"), QStringLiteral("VISCOSITY"), QStringLiteral("SPECIFIC"),  QStringLiteral("PATTERN"),
    QStringLiteral("EMITTER"),    QStringLiteral("BACKFLOW"),
};

QString Falla(int linea, const QString& texto) { return QStringLiteral("Línea %1: ").arg(linea) + texto; }

// The text of a file: UTF-8, or Latin-1 when it is not valid UTF-8 (files
// written on older systems).
QString TextoDeArchivo(const QByteArray& datos) {
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString t = utf8(datos);
    return utf8.hasError() ? QString::fromLatin1(datos) : t;
}

class Lector {
public:
    Lector(RedInp& red, QString& error) : red_(red), error_(error) {}
    bool Leer(const QString& texto);

private:
    bool Partir(const QString& texto);
    bool Campos(const Linea& l, int minimo, const char* que);
    bool Numero(const Linea& l, int k, const char* que, double& v);
    bool Opciones();
    bool NodoNuevo(const Linea& l, RedInp::TipoNodo tipo);
    bool Nodos();
    bool Curvas();
    bool EnlaceNuevo(const Linea& l, int minimo, const char* que);
    bool NodoConocido(const Linea& l, int k);
    bool Tuberias();
    bool Bombas();
    bool Valvulas();
    bool Coordenadas();
    bool Demandas();
    bool Estados();
    void Otras();
    const Seccion* Sec(const char* nombre) const {
        const auto i = secciones_.find(QString::fromLatin1(nombre));
        return i == secciones_.end() ? nullptr : &i->second;
    }

    RedInp& red_;
    QString& error_;
    std::map<QString, Seccion> secciones_;
    int ultimaLinea_ = 0;
    double caudal_ = 1.0;  // l/s of one flow unit
    double largo_ = 1.0;   // m of one length unit
    double diametro_ = 1.0;  // mm of one diameter unit
    QHash<QString, int> nodos_;    // id -> index in red_.nodos
    QHash<QString, int> enlaces_;  // id -> line where defined
    QHash<QString, int> tuberias_;  // id -> index in red_.tuberias
    QHash<QString, std::vector<std::pair<double, double>>> curvas_;  // flow l/s, head m
};

bool Lector::Partir(const QString& texto) {
    QStringList lineas = texto.split(QLatin1Char('\n'));
    if (lineas.size() > 1 && lineas.back().isEmpty()) lineas.removeLast();  // the final line feed
    QString actual;
    for (int k = 0; k < lineas.size(); ++k) {
        const int n = k + 1;
        QString datos = lineas[k];
        datos.remove(QLatin1Char('\r'));
        QString comentario;
        if (const int pc = int(datos.indexOf(QLatin1Char(';'))); pc >= 0) {
            comentario = datos.mid(pc + 1).trimmed();
            datos = datos.left(pc);
        }
        datos = datos.trimmed();
        ultimaLinea_ = n;
        QStringList fontaria;
        if (comentario.startsWith(QLatin1String("Fontaria "))) {
            // Fields separated by blanks; "Nombre=" takes the rest, blanks and all.
            const QString resto = comentario.mid(9).trimmed();
            const int pn = int(resto.indexOf(QLatin1String("Nombre=")));
            const QString numeros = pn >= 0 ? resto.left(pn) : resto;
            if (actual == QLatin1String("TITLE"))
                fontaria << resto;
            else {
                fontaria = numeros.split(QLatin1Char(' '), Qt::SkipEmptyParts);
                if (pn >= 0) fontaria << resto.mid(pn);
            }
        }
        if (datos.isEmpty()) {
            if (!fontaria.isEmpty() && actual == QLatin1String("TITLE")) red_.generales << fontaria;
            continue;
        }
        if (datos.startsWith(QLatin1Char('['))) {
            const int cierre = int(datos.indexOf(QLatin1Char(']')));
            if (cierre < 0) {
                error_ = Falla(n, QStringLiteral("falta el corchete de cierre del nombre de la sección: ") + datos);
                return false;
            }
            actual = datos.mid(1, cierre - 1).trimmed().toUpper();
            if (actual == QLatin1String("END")) return true;
            Seccion& s = secciones_[actual];
            if (s.linea == 0) s.linea = n;
            continue;
        }
        if (actual.isEmpty()) {
            error_ = Falla(n, QStringLiteral("hay datos antes de la primera sección: ") + datos);
            return false;
        }
        Linea l;
        l.n = n;
        l.texto = datos;
        l.campos = datos.split(QRegularExpression(QStringLiteral("\\s+")), Qt::SkipEmptyParts);
        l.fontaria = fontaria;
        secciones_[actual].lineas.push_back(std::move(l));
    }
    return true;
}

bool Lector::Campos(const Linea& l, int minimo, const char* que) {
    if (l.campos.size() >= minimo) return true;
    error_ = Falla(l.n, QStringLiteral("faltan datos en [%1]: se esperan al menos %2 valores y hay %3.")
                            .arg(QLatin1String(que))
                            .arg(minimo)
                            .arg(l.campos.size()));
    return false;
}

bool Lector::Numero(const Linea& l, int k, const char* que, double& v) {
    bool ok = false;
    // The format writes numbers in plain C form, whatever the locale.
    v = l.campos.value(k).toDouble(&ok);
    if (ok && std::isfinite(v)) return true;
    error_ = Falla(l.n, QStringLiteral("«%1» no es un número (%2 de «%3»).")
                            .arg(l.campos.value(k), QString::fromUtf8(que), l.campos.value(0)));
    return false;
}

bool Lector::Opciones() {
    QString unidades = QStringLiteral("GPM");
    int lineaUnidades = 0;
    double multiplicador = 1.0;
    if (const Seccion* s = Sec("OPTIONS")) {
        for (const Linea& l : s->lineas) {
            const QString clave = l.campos[0].toUpper();
            const QString valor = l.campos.value(1).toUpper();
            if (clave == QLatin1String("UNITS")) {
                unidades = valor;
                lineaUnidades = l.n;
            } else if (clave == QLatin1String("HEADLOSS")) {
                if (valor != QLatin1String("H-W") && valor != QLatin1String("D-W") && valor != QLatin1String("C-M")) {
                    error_ = Falla(l.n, QStringLiteral("fórmula de pérdidas desconocida: «%1» (H-W, D-W o C-M).")
                                            .arg(l.campos.value(1)));
                    return false;
                }
                red_.formula = valor;
            } else if (clave == QLatin1String("DEMAND") && valor == QLatin1String("MULTIPLIER")) {
                if (!Campos(l, 3, "OPTIONS") || !Numero(l, 2, "multiplicador de demanda", multiplicador)) return false;
                if (multiplicador != 1.0)
                    red_.avisos << QStringLiteral("Las demandas se multiplicaron por %1 (DEMAND MULTIPLIER).")
                                       .arg(Formato(multiplicador, QStringLiteral("0.000")));
            } else if (!OpcionesSinEfecto.contains(clave) &&
                       !(clave == QLatin1String("DEMAND") && l.campos.value(2).toUpper() == QLatin1String("DDA"))) {
                red_.omitidos << QStringLiteral("Opción sin efecto en el modelo: ") + l.texto;
            }
        }
    }
    for (const Unidad& u : Unidades)
        if (unidades == QLatin1String(u.nombre)) {
            red_.unidades = unidades;
            red_.us = u.us;
            caudal_ = u.litros * multiplicador;
            largo_ = u.us ? Pie : 1.0;
            diametro_ = u.us ? Pulgada : 1.0;
            if (u.us)
                red_.avisos << QStringLiteral("Unidades %1 convertidas: caudales a l/s, longitudes y cotas de pies a "
                                              "metros; los diámetros quedan en pulgadas.")
                                   .arg(unidades);
            return true;
        }
    error_ = Falla(lineaUnidades, QStringLiteral("unidades de caudal desconocidas: «%1».").arg(unidades));
    return false;
}

bool Lector::NodoNuevo(const Linea& l, RedInp::TipoNodo tipo) {
    const QString& id = l.campos[0];
    if (const auto i = nodos_.find(id); i != nodos_.end()) {
        error_ = Falla(l.n, QStringLiteral("el nodo «%1» ya fue definido en la línea %2.")
                                .arg(id)
                                .arg(red_.nodos[size_t(*i)].linea));
        return false;
    }
    RedInp::Nodo n;
    n.id = id;
    n.tipo = tipo;
    n.linea = l.n;
    n.extras = l.fontaria;
    nodos_.insert(id, int(red_.nodos.size()));
    red_.nodos.push_back(n);
    return true;
}

bool Lector::Nodos() {
    if (const Seccion* s = Sec("JUNCTIONS"))
        for (const Linea& l : s->lineas) {
            double cota = 0, demanda = 0;
            if (!Campos(l, 2, "JUNCTIONS") || !NodoNuevo(l, RedInp::TipoNodo::Union) ||
                !Numero(l, 1, "cota", cota) || (l.campos.size() > 2 && !Numero(l, 2, "demanda", demanda)))
                return false;
            red_.nodos.back().cota = cota * largo_;
            red_.nodos.back().demanda = demanda * caudal_;
            if (l.campos.size() > 3)
                red_.omitidos << QStringLiteral("Patrón «%1» de la demanda del nodo «%2» (se toma la demanda base).")
                                     .arg(l.campos[3], l.campos[0]);
        }
    if (const Seccion* s = Sec("RESERVOIRS"))
        for (const Linea& l : s->lineas) {
            double carga = 0;
            if (!Campos(l, 2, "RESERVOIRS") || !NodoNuevo(l, RedInp::TipoNodo::Embalse) ||
                !Numero(l, 1, "carga", carga))
                return false;
            red_.nodos.back().cota = carga * largo_;
            if (l.campos.size() > 2)
                red_.omitidos << QStringLiteral("Patrón «%1» de la carga del embalse «%2».").arg(l.campos[2], l.campos[0]);
        }
    if (const Seccion* s = Sec("TANKS"))
        for (const Linea& l : s->lineas) {
            double cota = 0, nivel = 0;
            if (!Campos(l, 3, "TANKS") || !NodoNuevo(l, RedInp::TipoNodo::Tanque) || !Numero(l, 1, "cota", cota) ||
                !Numero(l, 2, "nivel inicial", nivel))
                return false;
            red_.nodos.back().cota = cota * largo_;
            red_.nodos.back().nivel = nivel * largo_;
            red_.avisos << QStringLiteral("El tanque «%1» se toma como nivel fijo a su nivel inicial (sin volumen ni "
                                          "niveles mínimo y máximo).")
                               .arg(l.campos[0]);
        }
    return true;
}

bool Lector::Curvas() {
    if (const Seccion* s = Sec("CURVES"))
        for (const Linea& l : s->lineas) {
            double x = 0, y = 0;
            if (!Campos(l, 3, "CURVES") || !Numero(l, 1, "abscisa de la curva", x) ||
                !Numero(l, 2, "ordenada de la curva", y))
                return false;
            curvas_[l.campos[0]].emplace_back(x * caudal_, y * largo_);
        }
    if (!curvas_.isEmpty()) {
        QStringList ids = curvas_.keys();
        ids.sort();
        red_.omitidos << QStringLiteral("Curvas: ") + ids.join(QStringLiteral(", ")) +
                             QStringLiteral(" (sólo se usa la altura de diseño de una bomba tomada como nivel fijo).");
    }
    return true;
}

bool Lector::EnlaceNuevo(const Linea& l, int minimo, const char* que) {
    if (!Campos(l, minimo, que)) return false;
    const QString& id = l.campos[0];
    if (const auto i = enlaces_.find(id); i != enlaces_.end()) {
        error_ = Falla(l.n, QStringLiteral("el enlace «%1» ya fue definido en la línea %2.").arg(id).arg(*i));
        return false;
    }
    enlaces_.insert(id, l.n);
    return NodoConocido(l, 1) && NodoConocido(l, 2);
}

bool Lector::NodoConocido(const Linea& l, int k) {
    if (nodos_.contains(l.campos.value(k))) return true;
    error_ = Falla(l.n, QStringLiteral("el nodo «%1» no está definido en [JUNCTIONS], [RESERVOIRS] ni [TANKS].")
                            .arg(l.campos.value(k)));
    return false;
}

bool Lector::Tuberias() {
    const Seccion* s = Sec("PIPES");
    for (const Linea& l : s->lineas) {
        RedInp::Tuberia t;
        if (!EnlaceNuevo(l, 6, "PIPES") || !Numero(l, 3, "longitud", t.longitud) ||
            !Numero(l, 4, "diámetro", t.diametro) || !Numero(l, 5, "rugosidad", t.rugosidad))
            return false;
        if (!(t.longitud > 0) || !(t.diametro > 0) || !(t.rugosidad > 0)) {
            error_ = Falla(l.n, QStringLiteral("la longitud, el diámetro y la rugosidad de la tubería «%1» deben ser "
                                               "mayores que 0.")
                                    .arg(l.campos[0]));
            return false;
        }
        t.id = l.campos[0];
        t.i = l.campos[1];
        t.j = l.campos[2];
        t.linea = l.n;
        t.longitud *= largo_;
        t.diametro *= diametro_;
        t.estado = QStringLiteral("OPEN");
        t.extras = l.fontaria;
        int k = 6;
        const QStringList estados{QStringLiteral("OPEN"), QStringLiteral("CLOSED"), QStringLiteral("CV")};
        if (k < l.campos.size() && !estados.contains(l.campos[k].toUpper())) {
            if (!Numero(l, k, "coeficiente de pérdida menor", t.perdidaMenor)) return false;
            ++k;
        }
        if (k < l.campos.size()) {
            t.estado = l.campos[k].toUpper();
            if (!estados.contains(t.estado)) {
                error_ = Falla(l.n, QStringLiteral("estado desconocido de la tubería «%1»: «%2» (OPEN, CLOSED o CV).")
                                        .arg(t.id, l.campos[k]));
                return false;
            }
        }
        tuberias_.insert(t.id, int(red_.tuberias.size()));
        red_.tuberias.push_back(t);
    }
    return true;
}

bool Lector::Bombas() {
    if (const Seccion* s = Sec("PUMPS"))
        for (const Linea& l : s->lineas) {
            if (!EnlaceNuevo(l, 3, "PUMPS")) return false;
            RedInp::Bomba b;
            b.id = l.campos[0];
            b.i = l.campos[1];
            b.j = l.campos[2];
            b.linea = l.n;
            QString curva;
            double velocidad = 1.0;
            for (int k = 3; k + 1 < l.campos.size(); k += 2) {
                const QString clave = l.campos[k].toUpper();
                if (clave == QLatin1String("HEAD"))
                    curva = l.campos[k + 1];
                else if (clave == QLatin1String("SPEED") && !Numero(l, k + 1, "velocidad", velocidad))
                    return false;
            }
            if (!curva.isEmpty()) {
                const auto c = curvas_.find(curva);
                if (c == curvas_.end()) {
                    error_ = Falla(l.n, QStringLiteral("la curva «%1» de la bomba «%2» no está definida en [CURVES].")
                                            .arg(curva, b.id));
                    return false;
                }
                // The design point: the only point of a one-point curve, the
                // middle one otherwise; a speed scales the head by its square.
                b.alturaDiseno = (*c)[(c->size() - 1) / 2].second * velocidad * velocidad;
            } else {
                b.motivo = QStringLiteral("no tiene curva de altura");
            }
            red_.bombas.push_back(b);
        }
    return true;
}

bool Lector::Valvulas() {
    if (const Seccion* s = Sec("VALVES"))
        for (const Linea& l : s->lineas) {
            if (!EnlaceNuevo(l, 6, "VALVES")) return false;
            red_.omitidos << QStringLiteral("Válvula «%1» (%2) entre «%3» y «%4».")
                                 .arg(l.campos[0], l.campos[4].toUpper(), l.campos[1], l.campos[2]);
        }
    return true;
}

bool Lector::Coordenadas() {
    double escala = 1.0;
    bool grados = false;
    if (const Seccion* s = Sec("BACKDROP"))
        for (const Linea& l : s->lineas)
            if (l.campos[0].toUpper() == QLatin1String("UNITS")) {
                const QString u = l.campos.value(1).toUpper();
                if (u == QLatin1String("FEET")) escala = Pie;
                grados = u == QLatin1String("DEGREES");
            }
    const Seccion* s = Sec("COORDINATES");
    if (!s) return true;
    for (const Linea& l : s->lineas) {
        double x = 0, y = 0;
        if (!Campos(l, 3, "COORDINATES") || !NodoConocido(l, 0) || !Numero(l, 1, "X", x) || !Numero(l, 2, "Y", y))
            return false;
        if (grados) continue;
        RedInp::Nodo& n = red_.nodos[size_t(nodos_.value(l.campos[0]))];
        n.x = x * escala;
        n.y = y * escala;
    }
    if (grados)
        red_.omitidos << QStringLiteral("Coordenadas en grados: el modelo las tiene en metros y no se tomaron.");
    else if (escala == Pie)
        red_.avisos << QStringLiteral("Coordenadas convertidas de pies a metros.");
    return true;
}

bool Lector::Demandas() {
    const Seccion* s = Sec("DEMANDS");
    if (!s) return true;
    // Demands listed here replace the junction's base demand and add up.
    QHash<QString, double> suma;
    QStringList varias;
    for (const Linea& l : s->lineas) {
        double d = 0;
        if (!Campos(l, 2, "DEMANDS") || !NodoConocido(l, 0) || !Numero(l, 1, "demanda", d)) return false;
        const RedInp::Nodo& n = red_.nodos[size_t(nodos_.value(l.campos[0]))];
        if (n.tipo != RedInp::TipoNodo::Union) {
            error_ = Falla(l.n, QStringLiteral("«%1» no es un nodo de consumo.").arg(l.campos[0]));
            return false;
        }
        if (suma.contains(n.id) && !varias.contains(n.id)) varias << n.id;
        suma[n.id] += d * caudal_;
        if (l.campos.size() > 2)
            red_.omitidos << QStringLiteral("Patrón «%1» de una demanda del nodo «%2» (se toma la demanda base).")
                                 .arg(l.campos[2], n.id);
    }
    for (auto i = suma.cbegin(); i != suma.cend(); ++i) red_.nodos[size_t(nodos_.value(i.key()))].demanda = i.value();
    if (!varias.isEmpty())
        red_.avisos << QStringLiteral("Demandas de varias categorías sumadas en: ") + varias.join(QStringLiteral(", "));
    return true;
}

bool Lector::Estados() {
    const Seccion* s = Sec("STATUS");
    if (!s) return true;
    for (const Linea& l : s->lineas) {
        if (!Campos(l, 2, "STATUS")) return false;
        if (!enlaces_.contains(l.campos[0])) {
            error_ = Falla(l.n, QStringLiteral("el enlace «%1» no está definido.").arg(l.campos[0]));
            return false;
        }
        const QString estado = l.campos[1].toUpper();
        if (const auto t = tuberias_.find(l.campos[0]); t != tuberias_.end() && (estado == QLatin1String("CLOSED") ||
                                                                                 estado == QLatin1String("OPEN")))
            red_.tuberias[size_t(*t)].estado = estado;
        else if (t == tuberias_.end())
            red_.omitidos << QStringLiteral("Estado inicial «%1» del enlace «%2».").arg(l.campos[1], l.campos[0]);
    }
    return true;
}

// Sections the model has nothing for: named, counted, never silent.
void Lector::Otras() {
    const QStringList leidas{QStringLiteral("TITLE"),       QStringLiteral("JUNCTIONS"), QStringLiteral("RESERVOIRS"),
                             QStringLiteral("TANKS"),       QStringLiteral("PIPES"),     QStringLiteral("PUMPS"),
                             QStringLiteral("VALVES"),      QStringLiteral("CURVES"),    QStringLiteral("COORDINATES"),
                             QStringLiteral("OPTIONS"),     QStringLiteral("DEMANDS"),   QStringLiteral("STATUS")};
    for (const auto& [nombre, s] : secciones_) {
        if (leidas.contains(nombre) || s.lineas.empty()) continue;
        if (nombre == QLatin1String("PATTERNS")) {
            QStringList ids;
            for (const Linea& l : s.lineas)
                if (!ids.contains(l.campos[0])) ids << l.campos[0];
            red_.omitidos << QStringLiteral("Patrones de tiempo: ") + ids.join(QStringLiteral(", ")) +
                                 QStringLiteral(" (la red se importa para un solo período).");
        } else if (nombre == QLatin1String("CONTROLS")) {
            red_.omitidos << QStringLiteral("Controles: %1.").arg(s.lineas.size());
        } else if (nombre == QLatin1String("RULES")) {
            int reglas = 0;
            for (const Linea& l : s.lineas) reglas += l.campos[0].toUpper() == QLatin1String("RULE");
            red_.omitidos << QStringLiteral("Reglas de operación: %1.").arg(reglas);
        } else if (nombre == QLatin1String("EMITTERS")) {
            QStringList ids;
            for (const Linea& l : s.lineas) ids << l.campos[0];
            red_.omitidos << QStringLiteral("Emisores en los nodos: ") + ids.join(QStringLiteral(", ")) + QLatin1Char('.');
        } else if (nombre == QLatin1String("TIMES")) {
            for (const Linea& l : s.lineas)
                if (l.campos[0].toUpper() == QLatin1String("DURATION") &&
                    !QRegularExpression(QStringLiteral("^0*(\\.0*)?(:0*)*$")).match(l.campos.value(1)).hasMatch())
                    red_.omitidos << QStringLiteral("Simulación de %1 horas: se importa un solo período.")
                                         .arg(l.campos.value(1));
        } else if (nombre == QLatin1String("REPORT") || nombre == QLatin1String("BACKDROP")) {
            // Report layout and map backdrop: nothing of the network.
        } else {
            red_.omitidos << QStringLiteral("Sección [%1]: %2 líneas.").arg(nombre).arg(s.lineas.size());
        }
    }
}

bool Lector::Leer(const QString& texto) {
    if (!Partir(texto)) return false;
    for (const char* requerida : {"JUNCTIONS", "PIPES"})
        if (!Sec(requerida)) {
            error_ = Falla(ultimaLinea_, QStringLiteral("el archivo termina sin la sección [%1].")
                                             .arg(QLatin1String(requerida)));
            return false;
        }
    if (Sec("PIPES")->lineas.empty()) {
        error_ = Falla(Sec("PIPES")->linea, QStringLiteral("la sección [PIPES] no tiene tuberías."));
        return false;
    }
    if (const Seccion* t = Sec("TITLE"); t && !t->lineas.empty()) red_.titulo = t->lineas.front().texto;
    return Opciones() && Nodos() && Curvas() && Tuberias() && Bombas() && Valvulas() && Coordenadas() &&
           Demandas() && Estados() && (Otras(), true);
}

// "Campo=valor" of a list, or nothing.
std::optional<QString> Extra(const QStringList& extras, const QString& campo) {
    for (const QString& e : extras)
        if (e.startsWith(campo + QLatin1Char('='))) return e.mid(campo.size() + 1);
    return std::nullopt;
}

std::optional<double> ExtraNumero(const QStringList& extras, const QString& campo) {
    double v = 0;
    if (const auto t = Extra(extras, campo); t && LeerNumeroGuardado(*t, v)) return v;
    return std::nullopt;
}

template <typename T>
void Entero(const QStringList& g, const char* campo, T& destino, int minimo, int maximo) {
    if (const auto v = ExtraNumero(g, QString::fromLatin1(campo)); v && *v >= minimo && *v <= maximo)
        destino = T(int(*v));
}

// The general data the export wrote as comments of the title.
void Generales(const QStringList& g, ProyectoAcueducto& p) {
    auto texto = [&](const char* campo, QString& destino) {
        if (const auto v = Extra(g, QString::fromLatin1(campo))) destino = *v;
    };
    auto doble = [&](const char* campo, double& destino) {
        if (const auto v = ExtraNumero(g, QString::fromLatin1(campo))) destino = *v;
    };
    texto("Proyecto", p.Proyecto);
    texto("Ubicacion", p.Ubicacion);
    texto("Calculista", p.Calculista);
    if (const auto f = Extra(g, QStringLiteral("Fecha")); f && LeerFecha(*f).isValid()) p.Fecha = LeerFecha(*f);
    texto("Comentario", p.Comentario);
    Entero(g, "OpcionConsumo", p.OpcionConsumo, 1, 2);
    Entero(g, "OpcionDiametro", p.OpcionDiametro, 1, 3);
    int c = p.C;
    Entero(g, "C", c, 0, 32767);
    p.C = c;
    Entero(g, "CasoPorcentaje", p.CasoPorcentaje, 1, 2);
    doble("DeltaPorcentaje", p.DeltaPorcentaje);
    doble("FactorQMax", p.FactorQMax);
    doble("FactorIncendio", p.FactorIncendio);
    doble("LitrosIncendio", p.LitrosIncendio);
}

double DiametroEnUnidad(double mm, int opcion) {
    if (opcion == 1) return mm / 1000.0;
    if (opcion == 3) return mm / Pulgada;
    return mm;
}

QString NumeroInforme(double v) { return Formato(v, QStringLiteral("0.00")); }

}  // namespace

bool RedInp::HayBombasDesdeEmbalse() const {
    for (const Bomba& b : bombas)
        for (const Nodo& n : nodos)
            if (n.id == b.i && n.tipo == TipoNodo::Embalse) return true;
    return false;
}

bool LeerTextoInp(const QString& texto, RedInp& red, QString& error) {
    red = RedInp();
    error.clear();
    return Lector(red, error).Leer(texto);
}

bool LeerInp(const QString& archivo, RedInp& red, QString& error) {
    QFile f(archivo);
    if (!f.open(QIODevice::ReadOnly)) {
        error = QStringLiteral("No se puede leer el archivo ") + archivo + QStringLiteral(": ") + f.errorString();
        return false;
    }
    return LeerTextoInp(TextoDeArchivo(f.readAll()), red, error);
}

bool ConvertirInp(const RedInp& red, const OpcionesInp& o, ProyectoAcueducto& p, const Sesion& s,
                  QStringList& informe, QString& error) {
    informe.clear();
    error.clear();
    QStringList omitidos = red.omitidos, avisos = red.avisos;
    // What the model's defaults would change in the solve: no added length,
    // demands typed on nodes, diameters in the file's unit.
    p.Proyecto = red.titulo.left(140);
    p.OpcionConsumo = 2;
    p.OpcionDiametro = red.us ? 3 : 2;
    p.CasoPorcentaje = 2;
    p.DeltaPorcentaje = 0.0;
    Generales(red.generales, p);
    const bool otraFormula = red.RugosidadNoHazenWilliams();
    if (otraFormula && !o.cPorDefecto) {
        error = QStringLiteral("La red usa la fórmula de pérdidas %1 (%2); el modelo sólo tiene Hazen-Williams.\n"
                               "Para importarla, acepte tomar el coeficiente C = %3 en todas las tuberías.")
                    .arg(red.formula,
                         red.formula == QLatin1String("D-W") ? QStringLiteral("Darcy-Weisbach")
                                                             : QStringLiteral("Chezy-Manning"))
                    .arg(int(p.C));
        return false;
    }
    if (otraFormula)
        omitidos << QStringLiteral("Rugosidades %1 de todas las tuberías: se tomó C = %2.").arg(red.formula).arg(int(p.C));

    // Node names of the model: at most 20 characters, unique.
    QStringList ids, nombresPedidos;
    for (const RedInp::Nodo& n : red.nodos) {
        ids << n.id;
        nombresPedidos << Extra(n.extras, QStringLiteral("Nombre")).value_or(n.id);
    }
    QStringList cambios;
    const QStringList nombres = NombresValidos(nombresPedidos, LargoNombreNodo, false, QStringLiteral("Nodo"), cambios);
    for (int k = 0; k < nombres.size(); ++k)
        if (nombres[k] != nombresPedidos[k])
            avisos << QStringLiteral("Nombre del nodo «%1» cambiado a «%2» (el modelo admite %3 caracteres sin "
                                     "repetir).")
                          .arg(nombresPedidos[k], nombres[k])
                          .arg(LargoNombreNodo);
    auto nombre = [&](const QString& id) { return nombres[int(ids.indexOf(id))]; };
    auto nodo = [&](const QString& id) -> const RedInp::Nodo& { return red.nodos[size_t(ids.indexOf(id))]; };

    // Pumps: a fixed head at the discharge, when agreed and possible.
    QHash<QString, double> cargaBomba;
    for (const RedInp::Bomba& b : red.bombas) {
        const RedInp::Nodo& succion = nodo(b.i);
        const RedInp::Nodo& descarga = nodo(b.j);
        QString motivo = b.motivo;
        if (succion.tipo != RedInp::TipoNodo::Embalse)
            motivo = QStringLiteral("no toma de un embalse");
        else if (descarga.tipo != RedInp::TipoNodo::Union)
            motivo = QStringLiteral("descarga en un embalse o tanque");
        else if (!o.bombaComoCarga && motivo.isEmpty())
            motivo = QStringLiteral("no se aceptó tomarla como nivel fijo");
        if (motivo.isEmpty()) {
            const double carga = succion.cota + *b.alturaDiseno;
            cargaBomba[b.j] = std::max(cargaBomba.value(b.j, 0.0), carga);
            avisos << QStringLiteral("Bomba «%1»: nivel fijo de %2 m en el nodo «%3» (embalse «%4» %5 m + altura de "
                                     "diseño %6 m).")
                          .arg(b.id, NumeroInforme(carga), nombre(b.j), b.i, NumeroInforme(succion.cota),
                               NumeroInforme(*b.alturaDiseno));
        } else {
            omitidos << QStringLiteral("Bomba «%1» entre «%2» y «%3» (%4).").arg(b.id, b.i, b.j, motivo);
        }
    }

    // Sections from the open pipes, in file order.
    std::vector<const RedInp::Tuberia*> tuberias;
    QStringList redondeados;
    for (const RedInp::Tuberia& t : red.tuberias) {
        if (t.estado == QLatin1String("CLOSED")) {
            omitidos << QStringLiteral("Tubería cerrada «%1» entre «%2» y «%3».").arg(t.id, t.i, t.j);
            continue;
        }
        if (t.estado == QLatin1String("CV"))
            omitidos << QStringLiteral("Válvula de retención de la tubería «%1» (queda como tubería abierta).").arg(t.id);
        if (t.perdidaMenor != 0)
            omitidos << QStringLiteral("Pérdida menor %1 de la tubería «%2».").arg(NumeroInforme(t.perdidaMenor), t.id);
        if (!otraFormula && (t.rugosidad != std::round(t.rugosidad) || t.rugosidad > 32767)) {
            if (t.rugosidad > 32767) {
                error = Falla(t.linea, QStringLiteral("el coeficiente C de la tubería «%1» pasa de 32767.").arg(t.id));
                return false;
            }
            redondeados << QStringLiteral("«%1» (%2 → %3)")
                               .arg(t.id, NumeroInforme(t.rugosidad))
                               .arg(RoundNivo(t.rugosidad, 0));
        }
        tuberias.push_back(&t);
    }
    if (!redondeados.isEmpty())
        avisos << QStringLiteral("Coeficientes C redondeados al entero más cercano (las mitades hacia arriba): ") +
                      redondeados.join(QStringLiteral(", "));
    if (tuberias.size() > 32767) {
        error = QStringLiteral("La red tiene más de 32767 tuberías abiertas.");
        return false;
    }
    p.NumeroTramos = int(tuberias.size());
    p.DimensionarTramos(p.NumeroTramos);
    for (int k = 1; k <= p.NumeroTramos; ++k) {
        const RedInp::Tuberia& t = *tuberias[size_t(k) - 1];
        p.Inicio[k] = nombre(t.i);
        p.Final[k] = nombre(t.j);
        p.Longitud[k] = ExtraNumero(t.extras, QStringLiteral("Longitud")).value_or(t.longitud);
        p.Diametro[k] = DiametroEnUnidad(t.diametro, p.OpcionDiametro);
        p.CoeficienteC[k] = otraFormula ? int(p.C) : int(RoundNivo(t.rugosidad, 0));
        p.Demanda[k] = ExtraNumero(t.extras, QStringLiteral("Demanda")).value_or(0.0);
    }
    try {
        NumerarNodos(p, s);
    } catch (const ErrorEjecucion&) {
        error = QStringLiteral("Las tuberías forman más piezas separadas de las que admite el modelo (más nodos "
                               "distintos que tuberías + 10).");
        return false;
    }

    // Node data by name onto the numbering.
    const Arreglo<QString> numerados = p.Nodos;
    p.DimensionarNodos(p.NumeroNodosACU);
    QHash<QString, int> numero;
    for (int n = 1; n <= p.NumeroNodosACU; ++n) {
        p.Nodos[n] = numerados[n];
        numero.insert(p.Nodos[n], n);
    }
    QStringList sueltos;
    for (size_t k = 0; k < red.nodos.size(); ++k) {
        const RedInp::Nodo& x = red.nodos[k];
        const int n = numero.value(nombres[int(k)], 0);
        if (n == 0) {
            sueltos << x.id;
            continue;
        }
        p.X[n] = x.x;
        p.Y[n] = x.y;
        switch (x.tipo) {
        case RedInp::TipoNodo::Union:
            p.CotaTerreno[n] = x.cota;
            p.ConsumoMedio[n] = x.demanda;
            p.CotaBombaEstanque[n] = cargaBomba.value(x.id, 0.0);
            break;
        case RedInp::TipoNodo::Embalse:
            p.CotaTerreno[n] = x.cota;
            p.CotaBombaEstanque[n] = x.cota;
            if (!(x.cota > 0))
                avisos << QStringLiteral("El embalse «%1» tiene carga %2 m: el modelo sólo toma como nivel fijo un "
                                         "nivel mayor que 0.")
                              .arg(x.id, NumeroInforme(x.cota));
            break;
        case RedInp::TipoNodo::Tanque:
            p.CotaTerreno[n] = x.cota;
            p.CotaBombaEstanque[n] = x.cota + x.nivel;
            break;
        }
        if (const auto v = ExtraNumero(x.extras, QStringLiteral("CotaTerreno"))) p.CotaTerreno[n] = *v;
        if (const auto v = ExtraNumero(x.extras, QStringLiteral("ConsumoMedio"))) p.ConsumoMedio[n] = *v;
        if (const auto v = ExtraNumero(x.extras, QStringLiteral("CotaBombaEstanque"))) p.CotaBombaEstanque[n] = *v;
        if (const auto v = ExtraNumero(x.extras, QStringLiteral("X"))) p.X[n] = *v;
        if (const auto v = ExtraNumero(x.extras, QStringLiteral("Y"))) p.Y[n] = *v;
    }
    if (!sueltos.isEmpty())
        omitidos << QStringLiteral("Nodos que ninguna tubería abierta une a la red: ") +
                        sueltos.join(QStringLiteral(", ")) + QLatin1Char('.');
    if (p.OpcionConsumo == 1) AcumularConsumos(p);

    if (!omitidos.isEmpty())
        informe << QStringLiteral("Elementos que el modelo de acueductos no puede tener (no se importaron):")
                << omitidos;
    if (!avisos.isEmpty()) {
        if (!informe.isEmpty()) informe << QString();
        informe << QStringLiteral("Conversiones hechas:") << avisos;
    }
    return true;
}

bool GuardarRedImportada(ProyectoAcueducto& p, const QString& destino, Sesion& s, QString& error) {
    const QString abierto = s.ArchivoProyectoACU;
    const bool ok = EscribirDesdePlantilla(s.RutaImagen(QStringLiteral("Malla.nivo")), destino, error,
                                           [&](const QString& temporal, QString& e) {
                                               s.ArchivoProyectoACU = temporal;
                                               return SalvarProyectoACU(p, s, e);
                                           });
    s.ArchivoProyectoACU = abierto;
    return ok;
}

bool ImportarInp(const QString& inp, const QString& destino, const OpcionesInp& o, Sesion& s,
                 QStringList& informe, QString& error) {
    if (!DestinoReemplazable(destino, inp, error)) return false;
    RedInp red;
    if (!LeerInp(inp, red, error)) return false;
    ProyectoAcueducto p;
    ValoresInicialesACU(p, s);
    if (!ConvertirInp(red, o, p, s, informe, error)) return false;
    return GuardarRedImportada(p, destino, s, error);
}

QString TextoInforme(const QStringList& informe) {
    if (informe.isEmpty()) return QStringLiteral("La red se importó completa.");
    QStringList lineas;
    for (const QString& l : informe)
        lineas << (l.isEmpty() || l.endsWith(QLatin1Char(':')) ? l : QStringLiteral("  - ") + l);
    return lineas.join(QLatin1Char('\n'));
}
