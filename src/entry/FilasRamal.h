#pragma once
// What the fixture and fitting screens of a branch share: the narrow grid of
// branches (Spread1) beside the grid of the selected branch's rows
// (Spread2), reserving rows (at most 20), the four moves, deleting rows,
// walking the branches with the branch editor following, and the
// photographs of the project's image table (ImgPiezas or ImgConexiones).
// Each screen keeps its own rules, keys and messages and uses this part.

#include "base/Arreglo.h"
#include "base/Grid.h"
#include "catalogue/Catalogo.h"
#include "store/Registros.h"

#include <QImage>
#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

struct ProyectoEdificio;
struct Sesion;
class Dialogos;
class EditorRamales;

// How a screen of branch rows looks: title, captions and tool-tips, in the
// screen's own words.  The Qt screen is built from it.
struct AspectoFilas {
    struct Rapido {
        int clave;
        QString nombre;  // the fixture or fitting the button posts
        QString tip;
    };
    struct Boton {
        QString texto, tip;
    };
    QString titulo;
    std::vector<Rapido> rapidos;
    Boton eliminar, eliminarTodas, baseDatos, imagen, reporte, buscar, baja, sube;
    QString menuBaseDatos, menuEliminar;
};

// The four arrows and "Retorno", with the same tips on both screens.
struct TipsFlechas {
    static QString Primera() { return QStringLiteral(" Mover Primera Posición "); }
    static QString Arriba() { return QStringLiteral(" Mover Arriba "); }
    static QString Abajo() { return QStringLiteral(" Mover Abajo "); }
    static QString Ultima() { return QStringLiteral(" Mover Ultima Posición "); }
    static QString Retorno() { return QStringLiteral(" Retorno "); }
};

// Row grid columns.
enum ColumnaFila { FClave = 1, FImagen = 2, FDescripcion = 3, FValor = 4, FCantidad = 5 };

// Most rows a branch takes on these screens (the model keeps 30 slots).
constexpr int MaximoFilasRamal = 20;

class FilasRamal {
public:
    // "Piezas"/"Conexiones" and the menu entry open the catalogue screens.
    static constexpr bool BaseDeDatosDisponible = true;

    // `cuenta` is NPiezas or NConexiones of the model.
    FilasRamal(Grid& spread1, Grid& spread2, ProyectoEdificio& p, Sesion& s, Dialogos& d, EditorRamales& editor,
               Arreglo<int>& cuenta, TablaImagenes tabla);

    // The screen's own steps that the shared ones end with.
    std::function<void()> salvarRamal;
    std::function<void(int ramal)> coloquePantalla;

    // "NIVO-FONTARIA 2024   PROYECTO: [NAME.PLM ]".
    QString Caption() const;
    // Load, once the screen has read its catalogue: image table (the
    // automatic mirror first, leaving the project unchanged), both grids with
    // the headers of the count (branch grid) and of column 4, the branch
    // list, the "a branch screen is open" flag, the rows of RamalActual.
    void Cargar(const QStringList& encabezadoCuenta, const QStringList& encabezadoValor);
    // ColoquePantalla's frame: the row grid gets the branch's count of rows;
    // a position whose key is below 1 is blanked, the others are written by
    // `poner` (key, picture, name and quantity through PonerFila).
    void ColoqueFilas(int ramal, const Arreglo2<int>& claves, const std::function<void(int fila, int clave)>& poner);
    // SalvarRamal's frame: the image table read again, the count stored, and
    // for each position of the branch `guardar` with the row's key (0 for an
    // empty or a cut position); a row with a key has its picture written back.
    void SalvarFilas(const std::function<void(int ramal, int fila, int clave)>& guardar);
    // Column 1 typed: the key, after the shared steps (0 clears the row,
    // too big is refused, a key not in `catalogo` gets `noExiste` and a blank
    // cell).  0 when the screen has nothing more to do; the return of
    // EditarFilas in `tomado`.
    int ClaveTecleada(int fila, const QString& texto, Registros& catalogo, const QString& campo,
                      const std::function<void(int clave)>& noExiste, bool& tomado);
    // The name asked for a special key, trimmed and in capitals; false on
    // an empty answer or a cancel.
    bool PedirNombre(const QString& texto, const QString& titulo, const QString& inicial, QString& nombre);
    // A row grid edit: column 1 to `teclear`, the rest as EditarOtraColumna.
    bool EditarFilas(int fila, int columna, const QString& texto,
                     const std::function<bool(int fila, const QString& texto)>& teclear);
    // Closing: the record sets closed, the flag cleared.
    void Cerrar(Registros& catalogo);
    void LleneRamales();

    int Ramal() const;
    bool HayRamal() const;
    // "Ramal n" and the nodes of the branch shown.
    QString EtiquetaRamal() const;
    QString NodoI() const;
    QString NodoJ() const;
    // Shows a count in column 3 of the branch grid, blank when 0.
    void MostrarCuenta(int ramal);

    // A count typed into the branch grid: 21 or more is 20, a negative or a
    // non-number is refused (false).  The row grid gets that many rows and
    // the branch is stored.
    bool ReservarFilas(int fila, int columna, const QString& texto);

    // A branch made current: RamalActual, the editor's cursor on its column
    // 3, the rows shown, the cursor on row 1.  "Baja" and "Sube" stop at
    // the ends.
    void CambiarRamal(int ramal);
    void Baja();
    void Sube();

    // The four moves of the active row, each stored.
    void MoverPrimera();
    void MoverArriba();
    void MoverAbajo();
    void MoverUltima();
    // "Eliminar": asks `pregunta` of the active row when it holds a key,
    // then deletes it.  "Eliminar T.": asks, then empties the branch.
    void Eliminar(const std::function<QString(int fila)>& pregunta, const QString& encabezado);
    void EliminarTodas(const QString& pregunta, const QString& encabezado);
    // "Imagen": asks, then mirrors the catalogue's pictures and shows them.
    void ActualizarImagenes(const QString& pregunta, const QString& encabezado);
    // A Yes/No question of these screens.
    bool Preguntar(const QString& pregunta, const QString& encabezado);
    // SalvarRamal and the project marked as changed.
    void Guardar();

    // The photograph of a key in the image table, or an empty picture.
    QImage ImagenClave(int clave);
    // The photograph of a row's key (the floating preview).
    QImage ImagenFila(int fila);
    // The row's picture kept in the image table under its key (a null
    // picture clears it).  Writes only when it differs.
    void GuardarImagenClave(int clave, const QImage& imagen);
    // The image table read again, for a SalvarRamal.
    void ReabrirImagenes();

    // A 16-bit whole number typed into the row grid (key or quantity).  A
    // non-number is 0 when `noNumeroEsCero`, else refused; one beyond the
    // 16-bit range is refused with `nombre` in the message.
    bool LeerEntero16(const QString& texto, const QString& nombre, bool noNumeroEsCero, int& valor);
    // A number (units or length) typed into the row grid; refused with its
    // reason when it is none.
    bool LeerDoble(const QString& texto, double& valor);
    // Units, lengths and quantities are not negative; false with a message.
    bool NoNegativo(double valor, const QString& texto);
    // The whole value of a row's key cell; 0 when empty or not a number.
    int ClaveFila(int fila) const;
    // A cell's number, from its value or its text.
    double NumeroCelda(int fila, int columna) const;
    void LimpiarFila(int fila);
    // A catalogue record set positioned on a key ("ClavePieza=" and k...),
    // searched from its first row; false when the key is not there.
    static bool BuscarEnCatalogo(Registros& rs, const QString& campo, int clave);
    // Key, picture, name and quantity of a row; the fourth column is the
    // screen's.
    void PonerFila(int fila, int clave, const QString& nombre, const QImage& imagen, int cantidad);
    // An edit of the name, units/length or quantity: on a reserved empty
    // row the text is dropped; a number refused leaves the row as stored.
    // False when nothing was taken.
    bool EditarOtraColumna(int fila, int columna, const QString& texto);
    // Before a row is written over: the question when it holds a key.
    bool PuedeReemplazar(int fila, const QString& pregunta, const QString& encabezado);
    // After a quick button or a capture: one row down, stored.
    void BajarYGuardar();
    // The row's picture written back to the image table under its key.
    void GuardarImagenFila(int fila);
    // Moves the cursor one row down unless on the last.
    void Bajar();
    int Filas() const { return spread2_.Filas(); }
    int FilaActiva() const;

    Registros& Imagenes() { return imagenes_; }

private:
    void ConfigurarRamales(const QStringList& encabezado);
    void ConfigurarFilas(const QStringList& encabezado);
    void IrARamal(int ramal);
    void Intercambiar(int f1, int f2);
    void Llevar(int desde, int hasta);

    Grid& spread1_;
    Grid& spread2_;
    ProyectoEdificio& p_;
    Sesion& s_;
    Dialogos& d_;
    EditorRamales& editor_;
    Arreglo<int>& cuenta_;
    TablaImagenes tabla_;
    Registros imagenes_;
};
