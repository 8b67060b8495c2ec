// A tiny suite that meets a run-time error inside an event handler of the kind
// named on its command line, with the real application object and services; the
// message box is answered on standard error so that nothing waits for a user.

#include "platform/qt_services.h"
#include "runtime/runtime_error.h"
#include "shell/application.h"
#include "shell/form.h"
#include "shell/forms.h"

#include <QMouseEvent>
#include <QPushButton>
#include <QTimer>
#include <cstdio>

namespace {

class PrintingDialogs : public zafro::Dialogs {
public:
    int msgBox(const QString &text, int style, const QString &title) override
    {
        std::fprintf(stderr, "[box %d \"%s\"] %s\n", style, qPrintable(title), qPrintable(text));
        return 1;
    }
    QString inputBox(const QString &, const QString &, const QString &) override { return {}; }
};

class Faulty : public zafro::Form {
public:
    explicit Faulty(const QString &kind) : kind_(kind) {}

    void formLoad() override
    {
        if (kind_ == "timer") {
            auto *timer = new QTimer(this);
            connect(timer, &QTimer::timeout, this, [] { throw zafro::RuntimeError::overflow(); });
            timer->start(1);
        } else if (kind_ == "click") {
            auto *button = new QPushButton("Command1", this);
            connect(button, &QPushButton::clicked, this,
                    [] { throw zafro::RuntimeError::divisionByZero(); });
            QTimer::singleShot(1, button, &QPushButton::click);
        } else {
            QTimer::singleShot(1, this, [this] {
                QMouseEvent press(QEvent::MouseButtonPress, QPointF(5, 5), QPointF(5, 5),
                                  Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
                QCoreApplication::sendEvent(this, &press);
            });
        }
    }

protected:
    void mousePressEvent(QMouseEvent *) override { throw zafro::RuntimeError::typeMismatch(); }

private:
    QString kind_;
};

} // namespace

int main(int argc, char **argv)
{
    zafro::Application app(argc, argv);
    zafro::installQtServices();
    static PrintingDialogs dialogs;
    zafro::services().dialogs = &dialogs;
    const QString kind = QString::fromLocal8Bit(argc > 1 ? argv[1] : "timer");
    zafro::forms().registerForm("faulty", [kind] { return new Faulty(kind); });
    zafro::forms().show("faulty");
    // Should the error not end the program, say so instead of hanging.
    QTimer::singleShot(5000, [] {
        std::fprintf(stderr, "still running\n");
        QCoreApplication::exit(99);
    });
    return zafro::Application::exec();
}
