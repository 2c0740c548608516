#include "entry/CambiarOpcionDiseno.h"

#include "base/Dialogos.h"
#include "entry/EditorRamales.h"
#include "model/ProyectoEdificio.h"
#include "shell/Sesion.h"
#include "shell/Titulos.h"

#include <algorithm>

namespace {
constexpr int ColumnaMarca = 1;
constexpr int ColumnaOpcion = 4;
constexpr int ColorMarca = 0xC0FFFF;    // a marked row, pale yellow
constexpr int ColorValvula = 0xFFE0C0;  // valve fixtures, pale blue

QString NombreOpcion(int opcion) {
    return opcion == 1 ? QStringLiteral("Piezas de Válvula") : QStringLiteral("Piezas de Tanque");
}
}  // namespace

CambiarOpcionDiseño::CambiarOpcionDiseño(ProyectoEdificio& p, Sesion& s, Dialogos& d, EditorRamales& editor)
    : Spread1(4), p_(p), s_(s), d_(d), editor_(editor) {}

QString CambiarOpcionDiseño::Titulo() { return QStringLiteral("Opción de Diseño en los Ramales"); }

QString CambiarOpcionDiseño::TextoOpcion(int opcion) { return QStringLiteral("Diseñar como ") + NombreOpcion(opcion); }

void CambiarOpcionDiseño::ConfigurarSpread() {
    Spread1.PonerEncabezados(0, QStringLiteral("Ramal"));
    Spread1.PonerEncabezados(ColumnaMarca, QString());
    Spread1.PonerEncabezados(2, QStringLiteral("Nodo ( I )"));
    Spread1.PonerEncabezados(3, QStringLiteral("Nodo ( J )"));
    Spread1.PonerEncabezados(ColumnaOpcion, QStringLiteral("Opción de Diseño"));
    const int anchos[] = {0, 3, 12, 12, 18};
    for (int c = 1; c <= 4; ++c) {
        Spread1.Col(c).tipo = TipoCelda::Texto;
        Spread1.Col(c).ancho = anchos[c];
    }
}

void CambiarOpcionDiseño::Cargar() {
    ConfigurarSpread();
    ColoquePantalla();
}

void CambiarOpcionDiseño::ColoquePantalla() {
    const int n = p_.NumeroRamales;
    Spread1.Vaciar();
    Spread1.PonerFilas(n);
    for (int f = 1; f <= n; ++f) {
        Spread1.PonerEntero(f, 0, f);
        Spread1.PonerTexto(f, 2, p_.NodoI.Leer(f));
        Spread1.PonerTexto(f, 3, p_.Nodoj.Leer(f));
        Marcar(f, false);
        MostrarOpcion(f);
    }
    Spread1.PonerActiva(1, 2);
}

void CambiarOpcionDiseño::MostrarOpcion(int fila) {
    const int opcion = p_.OpcionDiseño.Leer(fila);
    Spread1.PonerTexto(fila, ColumnaOpcion, NombreOpcion(opcion));
    Spread1.PonerColorFondo(fila, ColumnaOpcion, opcion == 1 ? ColorValvula : ColorBlanco);
}

void CambiarOpcionDiseño::CambiarOpcion(int opcion) { Opcion = opcion == 1 ? 1 : 0; }

void CambiarOpcionDiseño::Marcar(int fila, bool marca) {
    Spread1.PonerTexto(fila, ColumnaMarca, marca ? QStringLiteral("1") : QStringLiteral("0"));
    for (int c = ColumnaMarca; c < ColumnaOpcion; ++c) Spread1.PonerColorFondo(fila, c, marca ? ColorMarca : ColorBlanco);
}

bool CambiarOpcionDiseño::Marcado(int fila) const { return Spread1.Texto(fila, ColumnaMarca) == QLatin1String("1"); }

int CambiarOpcionDiseño::Marcados() const {
    int n = 0;
    for (int f = 1; f <= Spread1.Filas(); ++f) n += Marcado(f);
    return n;
}

void CambiarOpcionDiseño::ClickMarca(int fila) {
    if (fila < 1 || fila > Spread1.Filas()) return;
    Marcar(fila, !Marcado(fila));
}

void CambiarOpcionDiseño::MarcarBloque(int fila1, int fila2, int columna1, int columna2) {
    if (columna1 != columna2 || columna1 < 2 || columna1 > ColumnaOpcion || Spread1.Filas() == 0) return;
    const int desde = std::clamp(std::min(fila1, fila2), 1, Spread1.Filas());
    const int hasta = std::clamp(std::max(fila1, fila2), 1, Spread1.Filas());
    for (int f = desde; f <= hasta; ++f) Marcar(f, true);
}

void CambiarOpcionDiseño::MarcarTodo() {
    for (int f = 1; f <= Spread1.Filas(); ++f)
        if (!Spread1.Cel(f, ColumnaMarca).bloqueada) Marcar(f, true);  // a row locked on its own
}

void CambiarOpcionDiseño::QuitarMarca() {
    for (int f = 1; f <= Spread1.Filas(); ++f) Marcar(f, false);
}

bool CambiarOpcionDiseño::Fijar() {
    const int marcados = Marcados();
    if (marcados == 0) {
        d_.MostrarMensaje(QStringLiteral("No ha Seleccionado Ramales..."), QStringLiteral("Opción de Diseño..."),
                          TituloProyectoFontaria());
        return false;
    }
    const QString pregunta = QStringLiteral("¿Fijar la Opción de ") + NombreOpcion(Opcion) + QStringLiteral("\na los ") +
                             QString::number(marcados) + QStringLiteral(" Ramales seleccionados?");
    if (d_.MostrarMensaje(pregunta, QStringLiteral("Opcion de Diseño en Ramales..."), TituloProyectoFontaria(),
                          Botones::SiNo, 1) != Respuesta::Si)
        return false;
    for (int f = 1; f <= Spread1.Filas() && f <= p_.OpcionDiseño.Ubound(); ++f) {
        if (!Marcado(f)) continue;
        p_.OpcionDiseño[f] = uint8_t(Opcion);
        MostrarOpcion(f);
    }
    s_.ProyectoModificado = true;
    ColoquePantalla();
    editor_.ColoqueRamales();
    return true;
}
