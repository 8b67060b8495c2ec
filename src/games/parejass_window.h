#pragma once

#include "games/parejas.h"
#include "shell/form.h"

#include <QVector>

class QLabel;
class QPushButton;

namespace zafro {

class ClickLabel;

// The memory game: turn two cards, keep them when they match.
class ParejassWindow : public Form {
    Q_OBJECT
public:
    ParejassWindow();

    void formLoad() override;

    void formActivate();
    void nuevoClick();
    void ocultarImagenClick(int i);
    void salirClick();

    qint16 intentos() const { return intentos_; }
    const std::array<short, kCartas> &cartas() const { return cartas_; }

protected:
    bool event(QEvent *event) override;

private:
    std::array<short, kCartas> cartas_{};
    std::array<short, 3> elegidas_{};
    qint16 estado_ = 1;
    qint16 intentos_ = 0;
    qint16 pendientes_ = 0;
    QString sonidoAcierto_; // nothing ever fills the two sounds
    QString sonidoFallo_;

    QVector<ClickLabel *> ocultarImagen_;
    QVector<QLabel *> igCambia_;
    QLabel *imgBack_;
    QLabel *juegos_;
    QLabel *label1_;
    QPushButton *nuevo_;
    QPushButton *salir_;
};

} // namespace zafro
