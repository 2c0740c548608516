#include "model/LectorJson.h"

#include "store/Archivos.h"

#include <algorithm>

QString TextoErrorJson(const QJsonParseError& e, qsizetype longitud) {
    QString que;
    switch (e.error) {
    case QJsonParseError::NoError: return QStringLiteral("la raíz no es un objeto");
    case QJsonParseError::UnterminatedObject: que = QStringLiteral("un objeto sin cerrar"); break;
    case QJsonParseError::MissingNameSeparator: que = QStringLiteral("falta \":\" tras un nombre"); break;
    case QJsonParseError::UnterminatedArray: que = QStringLiteral("una lista sin cerrar"); break;
    case QJsonParseError::MissingValueSeparator: que = QStringLiteral("falta \",\" entre dos valores"); break;
    case QJsonParseError::IllegalValue: que = QStringLiteral("un valor no válido"); break;
    case QJsonParseError::TerminationByNumber: que = QStringLiteral("el texto acaba dentro de un número"); break;
    case QJsonParseError::IllegalNumber: que = QStringLiteral("un número no válido"); break;
    case QJsonParseError::IllegalEscapeSequence: que = QStringLiteral("una secuencia de escape no válida"); break;
    case QJsonParseError::IllegalUTF8String: que = QStringLiteral("un texto que no es UTF-8"); break;
    case QJsonParseError::UnterminatedString: que = QStringLiteral("un texto sin cerrar"); break;
    case QJsonParseError::MissingObject: que = QStringLiteral("se esperaba un objeto"); break;
    case QJsonParseError::DeepNesting: que = QStringLiteral("demasiados niveles anidados"); break;
    case QJsonParseError::DocumentTooLarge: que = QStringLiteral("un documento demasiado grande"); break;
    case QJsonParseError::GarbageAtEnd: que = QStringLiteral("texto sobrante tras el final"); break;
    }
    // The parser may point one past the end of a cut text.
    return que + QStringLiteral(", en la posición %1").arg(std::min<qsizetype>(e.offset, longitud));
}

bool LeerObjetoJson(const QString& ruta, QJsonObject& objeto, QString& error) {
    // Far above the largest project (32,766 branches with thirty rows of
    // fixtures and fittings each), and a bound on what is held in memory.
    constexpr qint64 Maximo = qint64(512) * 1024 * 1024;
    QByteArray texto;
    if (!LeerArchivoRegular(ruta, Maximo, texto, error)) return false;
    QJsonParseError pe;
    const QJsonDocument doc = QJsonDocument::fromJson(texto, &pe);
    if (doc.isNull() || !doc.isObject()) {
        error = QStringLiteral("El archivo no es un proyecto en JSON válido: %1 (%2)")
                    .arg(ruta, TextoErrorJson(pe, texto.size()));
        return false;
    }
    objeto = doc.object();
    return true;
}
