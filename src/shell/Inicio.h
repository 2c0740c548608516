#pragma once
// The start of a session: program folder, separators, the user's folder
// tree, the fresh work databases, the samples, the catalogue connection and
// the settings file.

#include <QString>
#include <QStringList>

struct Sesion;

// Runs the whole start on the session.  `rutaPrograma` is the folder that
// holds Imagen/ (the executable's folder when empty).  Every folder and file
// step runs with errors ignored, as a start must not stop.
void Iniciar(Sesion& s, const QString& rutaPrograma = QString());

// The pieces of the start, for the screens and the tests.
// The session's number marks, from the system locale; the command line
// learns them as the desktop does.
void SeparadorPrograma(Sesion& s);
QString DirectorioDatosPorDefecto();
void VerifiqueDirectorios(Sesion& s);
void VerificaTapizNivo(const Sesion& s);
void CopiarBasesTrabajo(const Sesion& s);
void LeerConfiguracion(Sesion& s);

// The copies made only when the target is missing: (source under Imagen/,
// target under DirectorioDatos), in order.
struct CopiaInicial {
    QString origen;
    QString destino;
};
const QList<CopiaInicial>& CopiasSiFaltan();
// The work databases replaced at every start, in order.
const QList<CopiaInicial>& CopiasCadaInicio();

// The folder of the running executable, read from the running image, so
// that it is known with or without an application object.
QString CarpetaPrograma();

// The full name of the login user where the system knows it, else empty.
QString NombreUsuarioSistema();
