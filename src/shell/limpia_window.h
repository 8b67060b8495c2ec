#pragma once

#include "shell/form.h"

class QPushButton;

namespace zafro {

// The uninstaller: removes the suite's own settings and ends. Its texts are fixed,
// Spanish and English side by side, since it must work with no language loaded.
class LimpiaWindow : public Form {
    Q_OBJECT
public:
    LimpiaWindow();

    void command1Click(); // clean
    void command2Click(); // back

private:
    QPushButton *command1_;
    QPushButton *command2_;
};

} // namespace zafro
