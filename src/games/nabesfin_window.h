#pragma once

#include "shell/form.h"

namespace zafro {

// The window after a game, won (`nabesg`) or lost (`nabesp`), offering another.
class NabesFinWindow : public Form {
    Q_OBJECT
public:
    explicit NabesFinWindow(bool ganada);

    void formLoad() override;
    void command2Click();
    void command7Click();
};

} // namespace zafro
