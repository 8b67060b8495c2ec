#pragma once

#include "shell/form.h"

#include <QHash>

class QLabel;
class QPushButton;
class QTimer;

namespace zafro {

class ClickLabel;
class ToolFrame;

// The launcher: every tool as a coloured label on one shaped window, with the
// buttons of the shell. Its colours are its own, never the skin's.
class IndexWindow : public Form {
    Q_OBJECT
public:
    IndexWindow();

    void formLoad() override;

    void labelClick(const QString &name);     // Labelcom*_Click
    void labelMouseMove(const QString &name); // Labelcom*_MouseMove
    void formMouseMove();                     // the bare surface
    void label4MouseMove();
    void command2Click(); // tool labels back to yellow
    void command3Click(); // the product site, as Command11
    void command4Click();
    void command7Click();
    void command8Click();
    void command11Click();
    void command12Click();
    void command19Click();
    void command14Click(); // the hidden formula bench
    void label1Click();
    void label6Click();
    void timer5Timer();
    void timer6Timer();

    double visitas() const { return visitas_; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    QHash<QString, ClickLabel *> toolLabels_;
    ToolFrame *frame_ = nullptr;
    QTimer *timer5_;
    QTimer *timer6_;
    double hora_ = 0;
    double fecha_ = 0;
    double topopen_ = 0;
    double visitas_ = 0;
};

} // namespace zafro
