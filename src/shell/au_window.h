#pragma once

#include "shell/form.h"

class QCheckBox;
class QLabel;
class QPushButton;

namespace zafro {

// The question on closing, when the user asked for one: end, or go back to the launcher.
class AuWindow : public Form {
    Q_OBJECT
public:
    AuWindow();

    void formLoad() override;
    bool queryUnload(UnloadMode mode) override { return !isProgramReason(mode); }

    void command2Click();
    void command3Click();

private:
    QLabel *label1_;
    QCheckBox *check1_;
    QPushButton *command2_;
    QPushButton *command3_;
};

} // namespace zafro
