#pragma once

#include "shell/form.h"

class QLineEdit;

namespace zafro {

// The secret zone behind the launcher's hidden spots: a deformed outline, two
// messages that let everybody in anyway, and two values of other software.
class ConfiguracionWindow : public Form {
    Q_OBJECT
public:
    ConfiguracionWindow();

    void formLoad() override;

    void label4Click();     // the browser's start page
    void label5Click();     // the messenger's warning
    void command1Click() {} // "Buscaminas !!": nothing behind it
    void command3Click();   // "Volver!!"

private:
    QLineEdit *text1_;
    QLineEdit *text3_;
};

} // namespace zafro
