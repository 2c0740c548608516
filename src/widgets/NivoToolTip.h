#pragma once
// The program's own tool-tip: a title and a text in the font size and the
// colours of Tapiz.nivo.  Check3 draws it as a rounded balloon; Check4 keeps
// it up while the pointer stays on the control (else it hides after a few
// seconds).  ConfigurarToolTips moves each control's plain tip to it.

#include "shell/Tapiz.h"

#include <QHash>
#include <QPointer>
#include <QTimer>
#include <QWidget>

class QLabel;

class NivoToolTip : public QWidget {
    Q_OBJECT
public:
    explicit NivoToolTip(QWidget* padre = nullptr);

    void Aplicar(const ConfiguracionTapiz& c);
    // Registers a control's tip; an empty text removes it.
    void Registrar(QWidget* control, const QString& texto, const QString& titulo = QString());
    bool Registrado(const QWidget* control) const { return tips_.contains(control); }
    QString Texto(const QWidget* control) const { return tips_.value(control).texto; }
    QString TituloDe(const QWidget* control) const { return tips_.value(control).titulo; }

    // Shows a tip at a global position (also the settings screen's preview).
    void MostrarEn(const QPoint& global, const QString& texto, const QString& titulo = QString());
    int TamanoLetra() const { return tamano_; }
    QColor Fondo() const { return fondo_; }
    QColor ColorTexto() const { return texto_; }
    bool Globo() const { return globo_; }
    bool SiempreVisible() const { return siempre_; }

protected:
    bool eventFilter(QObject* o, QEvent* e) override;
    void paintEvent(QPaintEvent* e) override;

private:
    struct Tip {
        QString texto, titulo;
    };
    QHash<const QWidget*, Tip> tips_;
    QLabel* titulo_;
    QLabel* cuerpo_;
    QTimer ocultar_;
    int tamano_ = 10;
    QColor fondo_, texto_;
    bool globo_ = false, siempre_ = false;
};

// Installs the tips of a screen: the tip control takes the settings, and
// every control with a tip that is not blank and whose name does not begin
// with "Tab0" gives its tip to the tip control and keeps none of its own.
void ConfigurarToolTips(QWidget* pantalla, NivoToolTip* tip, const ConfiguracionTapiz& c);
