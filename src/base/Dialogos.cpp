#include "base/Dialogos.h"

#include "base/Nivo.h"

#include <QRegularExpression>
#include <QStringList>

QStringList FiltroComoPatrones(const QString& filtro) {
    // "Fontaria (*.plm)|*.plm" -> "Fontaria (*.plm) (*.plm)" in the form of
    // the toolkit's name filters; patterns may be separated by ';' or ','.
    QStringList res;
    const QStringList partes = filtro.split(QLatin1Char('|'));
    for (int i = 0; i + 1 < partes.size(); i += 2) {
        QStringList pats;
        for (QString p : partes[i + 1].split(QRegularExpression(QStringLiteral("[;,]")))) {
            p = Trim(p);
            if (!p.isEmpty()) pats << p;
        }
        res << Trim(partes[i]) + QStringLiteral(" (") + pats.join(QLatin1Char(' ')) + QLatin1Char(')');
    }
    return res;
}

void MostrarNumeroRechazado(Dialogos& d, const QString& motivo) {
    d.MostrarMensaje(motivo, QStringLiteral("Error en el Número..."), QStringLiteral("Proyecto de Fontaria"));
}

bool LeerNumeroOAvisar(Dialogos& d, const QString& texto, double& valor) {
    const NumeroLeido r = LeerNumeroTecleado(texto);
    if (r.valido) valor = r.valor;
    else MostrarNumeroRechazado(d, r.motivo);
    return r.valido;
}
