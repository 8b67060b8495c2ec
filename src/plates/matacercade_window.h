#pragma once

// `matacercade`, the about window of the plates window: its version, the date of
// its data, a legal note and the maker's address.

#include "shell/form.h"

class QLabel;
class QPushButton;

namespace zafro {

class ClickLabel;

class MatacercadeWindow : public Form {
    Q_OBJECT
public:
    MatacercadeWindow();

    void formLoad() override;

    void command1Click();
    void label6Click();
    void label6MouseMove();
    void label4MouseMove();
    void formMouseMove();

protected:
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    void resaltarLabel6(bool encima);

    QLabel *label1_;
    QLabel *label2_;
    QLabel *label3_;
    ClickLabel *label4_;
    ClickLabel *label6_;
    QPushButton *command1_;
};

} // namespace zafro
