#pragma once

#include "shell/form.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace zafro {

class ToolFrame;

// A number written out in words as it is typed: English with the English interface,
// Spanish with any other, Valencian included after a notice.
class NumletrasWindow : public Form {
    Q_OBJECT
public:
    NumletrasWindow();

    void formLoad() override;

    void numeroChange();
    void formClick();

protected:
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    ToolFrame *frame_ = nullptr;
    QLabel *label1_;
    QLineEdit *numero_;
    QLabel *letras_;
    QPushButton *command3_;
    QPushButton *command2_;
};

} // namespace zafro
