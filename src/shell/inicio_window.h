#pragma once

#include "shell/form.h"

class QTimer;

namespace zafro {

// The dispatcher: never seen, it stores the version, picks the next window and
// unloads itself at the first tick of its timer.
class InicioWindow : public Form {
    Q_OBJECT
public:
    InicioWindow();

    void formLoad() override;
    bool showAfterLoad() const override { return false; }

    void timer1Timer();

private:
    QTimer *timer1_;
};

} // namespace zafro
