#pragma once
// A small project of branches and a branch editor that answers from it, for
// the screens the editor opens.

#include "base/Nivo.h"
#include "entry/EditorRamales.h"
#include "model/ProyectoEdificio.h"

#include <QStringList>
#include <utility>
#include <vector>

// Branches given as (I, J) pairs, all with length 0.
inline void PonerRamales(ProyectoEdificio& p, const std::vector<std::pair<const char*, const char*>>& ramales) {
    const int n = int(ramales.size());
    p.NumeroRamales = n;
    p.DimensionarRamales(n);
    for (int i = 1; i <= n; ++i) {
        p.NodoI[i] = QString::fromUtf8(ramales[size_t(i - 1)].first);
        p.Nodoj[i] = QString::fromUtf8(ramales[size_t(i - 1)].second);
    }
}

// The editor's grid is the model: its length column shows longitudReal with
// two decimals; each call is recorded.
class EditorDePrueba : public EditorRamales {
public:
    explicit EditorDePrueba(ProyectoEdificio& p) : p_(p) {}
    int fila = 1, columna = 1;
    int recargas = 0;
    QStringList llamadas;

    void IrARamal(int ramal, int col) override {
        fila = ramal;
        columna = col;
        llamadas << QStringLiteral("IrARamal %1 %2").arg(ramal).arg(col);
    }
    QString TextoRamal(int ramal, int col) const override {
        if (col == 1) return p_.NodoI[ramal];
        if (col == 2) return p_.Nodoj[ramal];
        return Formato(p_.longitudReal[ramal], QStringLiteral("#,##0.00"));
    }
    void FijarLongitud(int ramal, double longitud) override {
        p_.longitudReal[ramal] = longitud;
        llamadas << QStringLiteral("FijarLongitud %1").arg(ramal);
    }
    void ColoqueRamales() override { ++recargas; }

private:
    ProyectoEdificio& p_;
};
