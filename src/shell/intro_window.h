#pragma once

#include "shell/form.h"

class QLabel;
class QTimer;

namespace zafro {

class ClickLabel;

// The splash: status texts on a timer, twice as slow on a first run, then the
// launcher or the welcome window.
class IntroWindow : public Form {
    Q_OBJECT
public:
    IntroWindow();

    void formLoad() override;

    void timer2Timer();
    void image1Click();
    void command1Click();

    QString contador() const { return contador_; }
    QString paso() const { return paso_; }

private:
    ClickLabel *image1_;
    QLabel *label4_;
    QLabel *label5_;
    QLabel *label6_;
    QLabel *label7_;
    QTimer *timer2_;
    QString contador_;
    QString visitas_;
    QString paso_;
};

} // namespace zafro
