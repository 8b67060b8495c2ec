#pragma once

#include <QApplication>

namespace zafro {

// The suite's application object. Run-time errors that escape an event handler are
// caught here, at the top of event dispatch, and end the program in order; once
// the program has ended, no further timer or input event reaches a window.
class Application : public QApplication {
public:
    Application(int &argc, char **argv);

    bool notify(QObject *receiver, QEvent *event) override;

    // Hides every window and leaves the event loop with the given status.
    void endProgram(int status);
    bool ending() const { return ending_; }
    int endStatus() const { return endStatus_; }

    static Application *instance();

private:
    bool ending_ = false;
    int endStatus_ = 0;
};

} // namespace zafro
