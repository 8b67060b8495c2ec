#pragma once

#include "shell/form.h"

class QLabel;

namespace zafro {

// The small notice shown while the rates are being stored.
class DivisasActualizandoWindow : public Form {
    Q_OBJECT
public:
    DivisasActualizandoWindow();

    void formLoad() override;

private:
    QLabel *label1_;
};

} // namespace zafro
