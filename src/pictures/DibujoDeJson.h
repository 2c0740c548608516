#pragma once
// A picture from the JSON form that the command line hands the drawer and
// the report tables keep: a schematic ("tipo": "esquema") or a plan
// ("tipo": "plano"), coloured by unit loss when "color" is "perdida"; in
// black and white when "blancoNegro" is true.

#include <QJsonObject>
#include <QString>
#include <memory>

class Dibujo;

// Null, with the reason in Spanish, when the object is neither.
std::unique_ptr<Dibujo> DibujoDeJson(const QJsonObject& o, QString& error);
