#pragma once

#include "games/nabes_state.h"
#include "shell/form.h"

#include <QPixmap>

#include <array>

class QLabel;
class QTimer;

namespace zafro {

// La conquista de Jupiter: the ship flies on the keys, the enemy on the timers.
// Every handler runs on the state and then copies it onto the pictures.
class NabesWindow : public Form {
    Q_OBJECT
public:
    NabesWindow();

    void formLoad() override;
    void formUnload() override;

    void formKeyDown(int keyCode, int shift);
    void formKeyUp(int keyCode, int shift);
    void esperaTimer();
    void disparar1Timer();
    void disparar2Timer();
    void rayo1Timer();
    void adelanteTimer();
    void balasTimer();
    void timer1Timer();
    void timer2Timer();

    const nabes::NabesState &state() const { return state_; }

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void mirror();
    void mirrorTimer(QTimer *timer, bool enabled);

    QPixmap estrellas_;
    nabes::NabesState state_;
    std::array<QLabel *, 16> pictures_{};
    std::array<nabes::Picture, 16> shown_{};
    QLabel *label1_;
    QLabel *label2_;
    QLabel *label3_;
    QTimer *espera_;
    QTimer *disparar1_;
    QTimer *disparar2_;
    QTimer *rayo1_;
    QTimer *adelante_;
    QTimer *balas_;
    QTimer *misiles_;
    QTimer *timer1_;
    QTimer *timer2_;
};

} // namespace zafro
