#include <gtest/gtest.h>

#include <QProcess>

namespace {

struct Outcome {
    int exitCode;
    QString errors;
};

Outcome runChild(const QString &kind)
{
    QProcess child;
    child.setProgram(QStringLiteral(ZAFRO_RUNTIME_ERROR_CHILD));
    child.setArguments({kind});
    child.start();
    child.waitForFinished(30000);
    return {child.exitStatus() == QProcess::NormalExit ? child.exitCode() : -1,
            QString::fromLocal8Bit(child.readAllStandardError())};
}

TEST(RuntimeErrorInAHandler, ShowsThePlatformMessageAndEndsWithANonZeroStatus)
{
    struct Case {
        const char *kind;
        const char *message;
    };
    const Case cases[] = {
        {"timer", "Error '6' en tiempo de ejecución:\n\nDesbordamiento"},
        {"click", "Error '11' en tiempo de ejecución:\n\nDivisión por cero"},
        {"mouse", "Error '13' en tiempo de ejecución:\n\nNo coinciden los tipos"},
    };
    for (const Case &c : cases) {
        const Outcome out = runChild(QLatin1String(c.kind));
        EXPECT_EQ(out.exitCode, 1) << c.kind << "\n" << out.errors.toStdString();
        EXPECT_TRUE(out.errors.contains(QStringLiteral("[box 16 \"Zafro Suite\"] ") +
                                        QString::fromUtf8(c.message)))
            << c.kind << "\n"
            << out.errors.toStdString();
        EXPECT_FALSE(out.errors.contains(QStringLiteral("still running"))) << c.kind;
        EXPECT_FALSE(out.errors.contains(QStringLiteral("Sanitizer"))) << c.kind;
    }
}

} // namespace
