#pragma once

#include "shell/form.h"

class QLabel;
class QPushButton;

namespace zafro {

// The welcome of a first run: writes the first-run defaults and leads to the skins.
class NuevosWindow : public Form {
    Q_OBJECT
public:
    NuevosWindow();

    void formLoad() override;
    bool queryUnload(UnloadMode mode) override { return !isProgramReason(mode); }

    void command1Click();

private:
    QLabel *label1_;
    QLabel *label2_;
    QPushButton *command1_;
};

} // namespace zafro
