#include "runtime/runtime_error.h"

#include "platform/services.h"

#include <cstdio>

namespace zafro {

RuntimeError::RuntimeError(qint32 number, QString description)
    : number_(number), description_(std::move(description)),
      what_(runtimeErrorMessage(*this).toUtf8())
{}

RuntimeError RuntimeError::invalidProcedureCall()
{
    return {5, QStringLiteral("Llamada a procedimiento o argumento no válidos")};
}
RuntimeError RuntimeError::overflow()
{
    return {6, QStringLiteral("Desbordamiento")};
}
RuntimeError RuntimeError::subscriptOutOfRange()
{
    return {9, QStringLiteral("Subíndice fuera del intervalo")};
}
RuntimeError RuntimeError::divisionByZero()
{
    return {11, QStringLiteral("División por cero")};
}
RuntimeError RuntimeError::typeMismatch()
{
    return {13, QStringLiteral("No coinciden los tipos")};
}
RuntimeError RuntimeError::outOfStackSpace()
{
    return {28, QStringLiteral("Espacio de pila insuficiente")};
}

QString runtimeErrorMessage(const RuntimeError &error)
{
    return QStringLiteral("Error '%1' en tiempo de ejecución:\n\n%2")
        .arg(error.number())
        .arg(error.description());
}

void reportRuntimeError(const RuntimeError &error)
{
    const QString text = runtimeErrorMessage(error);
    // There is no log; standard error is the one trace left after the box.
    std::fprintf(stderr, "%s\n", text.toLocal8Bit().constData());
    std::fflush(stderr);
    Services &s = services();
    if (s.dialogs)
        s.dialogs->msgBox(text, 16, kRuntimeErrorTitle);
    if (s.desktop)
        s.desktop->endProgram(1);
}

} // namespace zafro
