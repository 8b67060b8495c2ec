#include "games/nabes_state.h"

#include "runtime/convert.h"
#include "runtime/numtext.h"

#include <tuple>

namespace zafro::nabes {

namespace {

Picture picture(int left, int top, int width, int height, bool visible, const char *tag = "")
{
    return Picture{left, top, width, height, visible, QString::fromLatin1(tag)};
}

bool entre(double x, double desde, double hasta)
{
    return x >= desde && x <= hasta;
}

} // namespace

double valorTag(const QString &tag)
{
    return CDbl(tag);
}

void restarTag(QString &tag, double cantidad)
{
    tag = CStr(CDbl(tag) - cantidad);
}

NabesState::NabesState()
    : nave1(picture(3480, 4200, 720, 720, true, "1000")),
      boss(picture(12480, 4440, 720, 720, true, "5000")),
      shield(picture(3240, 3960, 1200, 1200, false, "1500")),
      flama1(picture(3180, 4200, 300, 720, true)), flama2(picture(3030, 4200, 480, 720, false)),
      a(picture(3480, 4200, 360, 90, false)), b(picture(3480, 4530, 360, 90, false)),
      explosion(picture(2980, 3700, 1500, 1500, false)),
      explosion1(picture(12477, 4440, 360, 360, false)),
      explosion2(picture(12477, 4800, 360, 360, false)),
      explosion3(picture(11980, 3940, 1720, 1720, false)),
      estela1(picture(12840, 4520, 720, 560, false)), estela2(picture(-1100, 4440, 360, 120, true)),
      estela3(picture(-1100, 4540, 600, 240, true)), rayo(picture(11040, 4320, 1680, 720, false)),
      danger(picture(6750, 240, 900, 780, true))
{}

const std::array<NabesState::Named, 16> &NabesState::pictureNames()
{
    static const std::array<Named, 16> names{{
        {"nave1", &NabesState::nave1},
        {"boss", &NabesState::boss},
        {"shield", &NabesState::shield},
        {"flama1", &NabesState::flama1},
        {"flama2", &NabesState::flama2},
        {"a", &NabesState::a},
        {"b", &NabesState::b},
        {"explosion", &NabesState::explosion},
        {"explosion1", &NabesState::explosion1},
        {"explosion2", &NabesState::explosion2},
        {"explosion3", &NabesState::explosion3},
        {"estela1", &NabesState::estela1},
        {"estela2", &NabesState::estela2},
        {"estela3", &NabesState::estela3},
        {"rayo", &NabesState::rayo},
        {"danger", &NabesState::danger},
    }};
    return names;
}

void NabesState::formLoad()
{
    // kept: 230 behind the ship here, 250 at every key
    flama1.left = nave1.left - 230;
    flama1.top = nave1.top;
}

bool NabesState::impacto(const Picture &disparo, int alto)
{
    return disparo.left >= boss.left && disparo.top >= boss.top && boss.top + alto >= disparo.top;
}

void NabesState::fueraDeLaVentana(Picture &p)
{
    // kept: only the first test that holds runs on one event
    if (p.top > kAlto - 1000)
        p.top -= 1000;
    else if (p.top < 0)
        p.top = 0;
    else if (p.left > kAncho - 1000)
        p.left -= 1000;
    else if (p.left < 0)
        p.left = 0;
}

void NabesState::escudoArriba()
{
    shield.top = nave1.top - 240;
    shield.left = nave1.left - 240;
    // kept: below zero it no longer comes up, but one already up stays up
    if (valorTag(shield.tag) >= 0) {
        restarTag(shield.tag, 1);
        shield.visible = true;
    }
}

bool NabesState::keyDown(int keyCode, int shift)
{
    if (boss.top - 700 <= nave1.top && boss.top + 700 >= nave1.top &&
        boss.left + 700 >= nave1.left && boss.left - 600 <= nave1.left) {
        explosion3.left = nave1.left - 500;
        explosion3.top = nave1.top - 700;
        explosion3.visible = true;
    }

    // kept: the flame is placed before the ship moves, so it trails a step behind
    flama1.left = nave1.left - 250;
    flama1.top = nave1.top;
    flama1.visible = true;

    if (keyCode == TeclaEspacio) {
        flama1.visible = false;
        flama2.visible = true;
        nave1.left += 197;
        flama2.left = nave1.left - 450;
        flama2.top = nave1.top;
    } else {
        flama2.visible = false;
        // kept: faster forwards than backwards
        if (keyCode == TeclaIzquierda)
            nave1.left -= 150;
        else if (keyCode == TeclaDerecha)
            nave1.left += 250;
        else if (keyCode == TeclaArriba)
            nave1.top -= 200;
        else if (keyCode == TeclaAbajo)
            nave1.top += 200;

        if (keyCode == TeclaA) {
            a.left = nave1.left;
            a.top = nave1.top;
            a.visible = true;
            b.left = nave1.left;
            b.top = nave1.top + 330;
            b.visible = true;
            // The whole flight inside the one event: only where it ends matters.
            while (a.left < kAncho) {
                a.left += 200;
                b.left += 200;
            }
            for (auto [disparo, alto, marca] :
                 {std::tuple{&a, 350, &explosion1}, std::tuple{&b, 370, &explosion2}}) {
                if (impacto(*disparo, alto)) {
                    // kept: the counter shows the life from before the hit
                    label1 = boss.tag;
                    restarTag(boss.tag, 20);
                    marca->top = disparo->top;
                    marca->left = boss.left - 3;
                    marca->visible = true;
                } else {
                    marca->visible = false;
                }
            }
        }
    }

    if (valorTag(nave1.tag) <= 0 || explosion3.visible) {
        explosion.left = nave1.left - 500;
        explosion.top = nave1.top - 500;
        explosion.visible = true;
        if (keyCode == TeclaH) {
            boss.tag = QStringLiteral("0");
            explosion3.left = boss.left - 500;
            explosion3.top = boss.top - 500;
            explosion3.visible = true;
            timers.timer2 = true;
            return true;
        }
        timers.timer1 = true;
    } else {
        explosion.visible = false;
        if (valorTag(boss.tag) <= 0) {
            explosion3.left = boss.left - 500;
            explosion3.top = boss.top - 500;
            explosion3.visible = true;
            timers.timer2 = true;
        } else {
            explosion3.visible = false;
        }
        fueraDeLaVentana(boss);
        fueraDeLaVentana(nave1);
        label2 = shield.tag;

        const double t = valorTag(boss.tag);
        if ((t > 500 && t <= 1000) || (t > 3000 && t <= 4000)) {
            timers.adelante = true;
        } else {
            estela1.visible = false;
            timers.adelante = false;
        }
        timers.balas = t > 3500 && t <= 3700;

        if (shift == 0)
            shield.visible = false;
        else
            escudoArriba();
    }

    const double t = valorTag(boss.tag);
    if (entre(t, 1500, 2000) || entre(t, 0, 500)) {
        danger.visible = true;
        timers.rayo1 = true;
    } else {
        danger.visible = false;
        rayo.visible = false;
        timers.rayo1 = false;
    }
    return false;
}

void NabesState::keyUp(int shift)
{
    if (shift != 0)
        escudoArriba();
    else
        shield.visible = false;
}

bool NabesState::barridoParado() const
{
    // kept: the enemy holds still during its charge, its big shots and every ray
    return timers.adelante || timers.misiles || timers.espera || timers.rayo1 || timers.balas;
}

void NabesState::disparoEstela2(int alcance)
{
    if (!entre(boss.top, nave1.top, nave1.top + alcance))
        return;
    estela2.top = nave1.top;
    estela2.left = boss.left;
    while (estela2.left > -1000)
        estela2.left -= 100;
    if (entre(estela2.top, nave1.top, nave1.top + 720) && estela2.left <= nave1.left + 720) {
        if (!shield.visible) {
            restarTag(nave1.tag, 5);
            label3 = nave1.tag;
        } else {
            restarTag(shield.tag, 5);
            label2 = shield.tag;
        }
    }
}

void NabesState::disparar1Timer()
{
    if (barridoParado())
        return;
    if (!(boss.top < kAlto - 1000)) {
        timers.disparar2 = true;
        timers.disparar1 = false;
        return;
    }
    boss.top += 100;
    disparoEstela2(720);
}

void NabesState::disparar2Timer()
{
    if (barridoParado())
        return;
    if (boss.top < -1 || !(boss.top < kAlto)) {
        timers.disparar1 = true;
        timers.disparar2 = false;
        return;
    }
    boss.top -= 100;
    // kept: 700 on the way up against 720 on the way down
    disparoEstela2(700);
}

void NabesState::balasTimer()
{
    if (!entre(boss.top, nave1.top, nave1.top + 720))
        return;
    estela3.top = boss.top + 100;
    estela3.left = boss.left;
    while (estela3.left > -1000)
        estela3.left -= 10;
    if (entre(estela3.top, nave1.top, nave1.top + 720) && estela3.left <= nave1.left + 720) {
        if (!shield.visible) {
            restarTag(nave1.tag, 50);
            label3 = nave1.tag;
        } else {
            restarTag(shield.tag, 20);
            label2 = shield.tag;
        }
    }
}

void NabesState::adelanteTimer()
{
    if (boss.left >= 0 && boss.left < kAncho - 501) {
        boss.left -= 70;
        estela1.visible = true;
    } else {
        boss.left = kAncho - 600;
        boss.top = nave1.top;
    }
    estela1.left = boss.left + 360;
    estela1.top = boss.top + 80;
}

void NabesState::esperaTimer()
{
    timers.rayo1 = true;
    timers.espera = false;
}

void NabesState::rayo1Timer()
{
    if (rayo.left <= 0) {
        danger.visible = true;
        rayo.visible = false;
        rayo.width = 720;
        rayo.left = boss.left + 860;
        rayo.top = boss.top;
        return;
    }
    rayo.visible = true;
    rayo.left = boss.left - rayo.width;
    rayo.width += 700;
    if (entre(rayo.top, nave1.top, nave1.top + 700) && rayo.left <= nave1.left + 700 &&
        !shield.visible) {
        restarTag(nave1.tag, 15);
        label3 = nave1.tag;
    } else {
        // kept: the shield pays even when the ray is nowhere near, and its counter
        // waits for the next key
        restarTag(shield.tag, 2);
    }
}

} // namespace zafro::nabes
