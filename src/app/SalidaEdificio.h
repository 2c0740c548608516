#pragma once
// Shared pieces of the building verbs (analizar, tanque, computos): the
// options of a verb, the load of the project and the report of a run-time
// fault of a calculation.

#include "app/LineaComandos.h"
#include "model/ProyectoEdificio.h"
#include "shell/Sesion.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

class ErrorEjecucion;
class Grid;

// The arguments after the verb: one optional file and "--name value" pairs or
// lone flags ("--json").
struct ArgumentosVerbo {
    QString archivo;
    QStringList banderas;             // lone flags, without "--"
    QList<QPair<QString, QString>> valores;  // "--name value"
    QString error;                    // a Spanish message when the arguments are wrong
    bool Tiene(const QString& bandera) const { return banderas.contains(bandera); }
    // The value of an option, or a null string.
    QString Valor(const QString& nombre) const;
};
// `conValor` names the options that take a value.
ArgumentosVerbo LeerArgumentos(const QStringList& args, const QStringList& conValor, const QStringList& banderas);

// The usage or the argument fault on stderr; returns Salida::Falla.
int FallaDeUso(const ArgumentosVerbo& a, const char* uso);

// What a building verb works on: the session, the console's dialogs (quiet
// under --json, whose object carries the message) and the project model.
struct ContextoVerbo {
    explicit ContextoVerbo(bool json);
    // Loads the project as the commands do; on failure, or when the file is
    // read-only (every building verb writes the assumed sizes into it),
    // prints the message and returns false.
    bool Cargar(const QString& archivo);
    Sesion s;
    DialogosConsola d;
    ProyectoEdificio p;
};

// A run-time fault: {"error": {"numero": N, "descripcion": "..."}} with
// --json, else "Error N: descripción" on stderr; returns Salida::ErrorCalculo.
int FallaDeCalculo(const ErrorEjecucion& e, bool json);

// The rows of a grid as an array of objects, one key per column name.
QJsonArray FilasComoJson(const Grid& g, const QStringList& claves);
