#pragma once

#include "shell/form.h"

class QPlainTextEdit;
class QPushButton;

namespace zafro {

// The rules of Tres en raya, in Spanish only.
class TresenrayaayudaWindow : public Form {
    Q_OBJECT
public:
    TresenrayaayudaWindow();

    void formLoad() override;

private:
    QPlainTextEdit *txtAyuda_;
    QPushButton *cmdRegresar_;
};

} // namespace zafro
