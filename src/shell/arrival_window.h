#pragma once

#include "shell/form.h"

class QAction;
class QMenu;
class QTimer;

namespace zafro {

class ClickLabel;

// The popup: a small window with the product and its version that wanders to and
// fro across the whole screen. Its left edge is kept in twips, 20 to a step.
class ArrivalWindow : public Form {
    Q_OBJECT
public:
    ArrivalWindow();

    void formLoad() override;

    void command1Click(); // "->"
    void command2Click(); // "<-"
    void command3Click(); // the menu's "Cerrar"
    void rightPress(QPoint globalPos);

    int leftTwips() const { return leftTwips_; }
    void setLeftTwips(int twips);
    void followLeftEdge(); // the window to its left edge's pixel
    QString limite() const { return limite_; }
    QMenu *am1() const { return am1_; }

protected:
    void mousePressEvent(QMouseEvent *event) override;

private:
    ClickLabel *label1_;
    QMenu *am1_;
    QAction *am2_;
    QTimer *timer1_;
    QTimer *timer2_;
    QTimer *frame_;
    QString limite_;
    QString posicion_;
    int leftTwips_ = 0;
};

} // namespace zafro
