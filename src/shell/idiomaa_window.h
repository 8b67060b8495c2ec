#pragma once

#include "shell/form.h"

class QTimer;

namespace zafro {

class ClickLabel;

// The language choice: fixed texts in both languages, since none is known yet.
// A flag stores its code and restarts the chain half a second later.
class IdiomaaWindow : public Form {
    Q_OBJECT
public:
    IdiomaaWindow();

    bool queryUnload(UnloadMode mode) override { return !isProgramReason(mode); }

    void image1Click();
    void image2Click();
    void image4Click();
    void timer1Timer();

private:
    void elegir(const QString &codigo, const QString &mensaje);

    QTimer *timer1_;
};

} // namespace zafro
