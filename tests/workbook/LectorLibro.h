#pragma once
// A written workbook read back by another reader (openpyxl): sheet names,
// joined ranges, frozen panes and every cell's value, number format, link,
// fill and font colour.

#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVariant>

struct CeldaLeida {
    QVariant valor;     // double or QString; null when empty
    QString formato;    // number format
    QString vinculo;    // the link's place in the workbook
    QString fondo;      // "FFRRGGBB", empty without a fill
    QString letra;      // font colour "FFRRGGBB", empty when automatic
    bool Vacia() const { return valor.isNull(); }
    double Numero() const { return valor.toDouble(); }
    bool EsNumero() const { return valor.typeId() == QMetaType::Double; }
    QString Texto() const { return valor.toString(); }
};

class LibroLeido {
public:
    // False, with a test failure, when the file cannot be read.
    bool Leer(const QString& archivo);
    QStringList hojas;
    QString Inmovilizado(const QString& hoja) const;  // "A12", empty when none
    QStringList Uniones(const QString& hoja) const;
    CeldaLeida Celda(const QString& hoja, const QString& ref) const;
    int UltimaFila(const QString& hoja) const;
    // The cells of a sheet holding `texto`.
    QStringList Buscar(const QString& hoja, const QString& texto) const;

private:
    QJsonObject datos_;
};
