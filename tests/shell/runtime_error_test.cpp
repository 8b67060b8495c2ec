#include <gtest/gtest.h>

#include <QProcess>

namespace {

TEST(RuntimeErrorInAHandler, ShowsThePlatformMessageAndEndsWithANonZeroStatus)
{
    const struct {
        const char *kind, *message;
    } rows[] = {
        {"timer", "Error '6' en tiempo de ejecución:\n\nDesbordamiento"},
        {"click", "Error '11' en tiempo de ejecución:\n\nDivisión por cero"},
        {"mouse", "Error '13' en tiempo de ejecución:\n\nNo coinciden los tipos"},
    };
    for (const auto &row : rows) {
        QProcess child;
        child.start(ZAFRO_RUNTIME_ERROR_CHILD, {row.kind});
        child.waitForFinished(30000);
        const QString errors = QString::fromLocal8Bit(child.readAllStandardError());
        SCOPED_TRACE(row.kind + ("\n" + errors.toStdString()));
        EXPECT_EQ(child.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(child.exitCode(), 1);
        EXPECT_TRUE(errors.contains(QString("[box 16 \"Zafro Suite\"] ") + row.message));
        EXPECT_FALSE(errors.contains("still running"));
        EXPECT_FALSE(errors.contains("Sanitizer"));
    }
}

} // namespace
