#pragma once

#include <QString>

#include <exception>

namespace zafro {

// What the original program meets as a run-time error of its platform: an
// overflow of checked arithmetic, a division by zero, a strict conversion of bad
// text... The application catches it at the top of event dispatch, shows the
// platform-style message and ends the program; it is never undefined behaviour.
class RuntimeError : public std::exception {
public:
    RuntimeError(qint32 number, QString description);

    qint32 number() const { return number_; }
    const QString &description() const { return description_; }
    const char *what() const noexcept override { return what_.constData(); }

    static RuntimeError invalidProcedureCall(); // 5
    static RuntimeError overflow();             // 6
    static RuntimeError subscriptOutOfRange();  // 9
    static RuntimeError divisionByZero();       // 11
    static RuntimeError typeMismatch();         // 13
    static RuntimeError outOfStackSpace();      // 28

private:
    qint32 number_;
    QString description_;
    QByteArray what_;
};

// "Error '6' en tiempo de ejecución:" and the description, as the platform shows it.
QString runtimeErrorMessage(const RuntimeError &error);
inline const QString kRuntimeErrorTitle = QStringLiteral("Zafro Suite");

// Shows the message through the dialogs service and ends the program with a
// non-zero status through the desktop service.
void reportRuntimeError(const RuntimeError &error);

} // namespace zafro
