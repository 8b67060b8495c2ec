#include "fakes.h"
#include "plates/matriculas_window.h"
#include "shell/forms.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

namespace zafro {
namespace {

using test::fakes;

// Panes by the first letter of their controls: "b" 1971-2000, "c" before 1971.
class ProvincialPanesTest : public ::testing::Test {
protected:
    // By itself, so that its own menu chooses the language: Spanish at first.
    void open()
    {
        forms().unload(QStringLiteral("matriculasselect"));
        window = qobject_cast<MatriculasWindow *>(forms().show(QStringLiteral("matriculasselect")));
        ASSERT_NE(window, nullptr);
        fakes().dialogs.messages.clear();
    }
    template <typename T = QWidget> T *get(const QString &p, const QString &name) const
    {
        T *found = window->findChild<T *>(p + name);
        EXPECT_NE(found, nullptr) << qPrintable(p + name);
        return found;
    }
    QString text(const QString &p, const char *name) const
    {
        return get(p, QLatin1String(name))->property("text").toString();
    }
    // Shows the pane, fills it (province -1 chooses nothing) and calculates, by a
    // click or by Enter in the box named.
    void calcular(const QString &p, int provincia, const QString &cifras, const QString &letras,
                  const QString &por = QStringLiteral("click"))
    {
        QTest::mouseClick(get({}, p == u"b" ? "Command4" : "Command1"), Qt::LeftButton);
        if (provincia >= 0)
            get<QComboBox>(p, "Combo1")->setCurrentIndex(provincia);
        get<QLineEdit>(p, "Text1")->setText(cifras);
        if (p == u"b")
            get<QLineEdit>(p, "Text5")->setText(letras);
        get<QLabel>(p, "Label5")->setText(QStringLiteral("x"));
        if (por == u"click")
            QTest::mouseClick(get(p, p == u"b" ? "Command2" : "Command1"), Qt::LeftButton);
        else
            QTest::keyClick(get({}, por), Qt::Key_Return);
    }

    MatriculasWindow *window = nullptr;
};

TEST_F(ProvincialPanesTest, ChoiceAndCalculateWriteTheDateOrTheReasonWhyNot)
{
    QFile file(QStringLiteral(ZAFRO_PLATES_TEST_DATA "/provincial_cases.txt"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    int filas = 0;
    for (const QString &linea : QString::fromUtf8(file.readAll()).split(u'\n')) {
        QStringList f = linea.split(u'|');
        if (linea.startsWith(u'#') || f.size() != 12)
            continue;
        for (QString &campo : f)
            campo = campo.trimmed();
        SCOPED_TRACE(f[0].toStdString());
        open();
        calcular(f[1], f[2].toInt(), f[4], f[5], f[11]);
        EXPECT_EQ(text(f[1], "Text7"), f[3]);
        EXPECT_EQ(text(f[1], "Label2"), f[2] == u"-1" ? QStringLiteral("52") : f[2]);
        EXPECT_EQ(text(f[1], "Label5"), f[6]);
        EXPECT_EQ(text(f[1], "Text1"), f[10]);
        EXPECT_EQ(fakes().dialogs.messages.size(), f[7].toInt());
        for (const auto &m : fakes().dialogs.messages) {
            EXPECT_TRUE(f[8].isEmpty() || m.text == f[8]);
            EXPECT_EQ(m.title, f[9]);
        }
        EXPECT_EQ(window->indice(), QStringLiteral("-1"));
        ++filas;
    }
    EXPECT_EQ(filas, 32);
}

TEST_F(ProvincialPanesTest, StartingTextsLeaveOnFocusAndComeBackWhenEmpty)
{
    open();
    for (const auto &[caja, inicial] :
         {std::pair{"bText1", "1234"}, {"bText5", "AA"}, {"cText1", "123456"}}) {
        auto *box = get<QLineEdit>({}, caja);
        QFocusEvent in(QEvent::FocusIn), out(QEvent::FocusOut);
        QCoreApplication::sendEvent(box, &in);
        EXPECT_TRUE(box->text().isEmpty()) << caja;
        QCoreApplication::sendEvent(box, &out);
        EXPECT_EQ(box->text(), QLatin1String(inicial)) << caja;
    }
}

TEST_F(ProvincialPanesTest, ALanguageChangeEmptiesBothResultsAndTheNextIsInTheNewLanguage)
{
    open();
    calcular("b", 0, "0500", "A");
    calcular("c", 28, "2406", {});
    get<QLabel>("a", "Label5")->setText(QStringLiteral("keep"));
    get<QAction>("menu", "ingles")->trigger();
    EXPECT_EQ(text("b", "Label5") + text("c", "Label5"), QString());
    EXPECT_EQ(text("a", "Label5"), QStringLiteral("keep"));
    calcular("b", 0, "0500", "A");
    EXPECT_EQ(text("b", "Label5"), QStringLiteral("Car registered in december 1971"));
    calcular("c", 28, "2000", {});
    EXPECT_EQ(text("c", "Label5"), QStringLiteral("Car registered before 1914"));
}

} // namespace
} // namespace zafro
