#include "error_number.h"
#include "fakes.h"
#include "maths/areas_window.h"
#include "maths/prestamo_window.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/skins.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace zafro {
namespace {

using namespace Qt::Literals::StringLiterals;
using test::fakes;

class AreasPrestamoWindowTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        guardarSkin(1);
        CargarEspanol();
    }
    void open(const char *name) { window = forms().show(QLatin1String(name)); }
    template <typename T = QLineEdit> T *get(const char *name) const
    {
        T *found = window->findChild<T *>(QLatin1String(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    QString label(const char *name) const { return get<QLabel>(name)->text(); }
    void type(const char *box, const QString &text)
    {
        get(box)->clear();
        QTest::keyClicks(get(box), text);
    }
    void click(const char *name) { QTest::mouseClick(get<QWidget>(name), Qt::LeftButton); }
    QString visiblePictures() const
    {
        QStringList names;
        for (const FiguraArea &figura : figurasArea())
            if (get<QLabel>(figura.imagen)->isVisible())
                names << QLatin1String(figura.imagen);
        return names.join(u' ');
    }

    QWidget *window = nullptr;
};

TEST_F(AreasPrestamoWindowTest, AreasChoosesAFigureAndWorksOutItsArea)
{
    open("areas");
    EXPECT_EQ(get("Text99")->text(), u"RESULTADO"_s);
    click("Command3");
    EXPECT_EQ(get("Text99")->text(), u"RESULTADO"_s) << "no figure chosen, nothing";
    EXPECT_EQ(visiblePictures(), QString());
    for (const FiguraArea &figura : figurasArea())
        EXPECT_FALSE(get<QLabel>(figura.imagen)->pixmap().isNull()) << figura.imagen;

    const struct {
        const char *button, *caption, *number, *labels, *pictures;
        bool enabled[4];
        const char *fields[3], *area;
    } rows[] = {
        {"Command20",
         "Área  del T. de Cono",
         "7",
         "Radio MAYOR:|radio menor:|g:|",
         "troncocono",
         {true, true, true, false},
         {"2", "1", "1"},
         "25.132744"},
        {"Command8",
         "Área del Cubo",
         "1",
         "arista:|||",
         "cubo troncocono",
         {true, false, false, false},
         {"2", "9", "9"},
         "24"},
        {"Command24",
         "Área de la Esfera",
         "12",
         "Radio:|||",
         "cubo troncocono esfera",
         {true, false, false, false},
         {"1", "", ""},
         "12.566372"},
        {"Command17",
         "Área del Rombo",
         "18",
         "d:|d':||",
         "cubo troncocono esfera rombo",
         {true, true, false, false},
         {"4", "3", ""},
         "6"},
    };
    for (const auto &row : rows) {
        get("Text4")->setText(u"stale"_s);
        click(row.button);
        EXPECT_EQ(label("Label55"), QString::fromUtf8(row.caption));
        EXPECT_EQ(label("Label56"), QLatin1String(row.number));
        EXPECT_EQ(QStringList({label("Label1"), label("Label2"), label("Label3"), label("Label4")})
                      .join(u'|'),
                  QString::fromUtf8(row.labels));
        EXPECT_EQ(visiblePictures(), QLatin1String(row.pictures)) << "earlier pictures stay";
        for (int k = 0; k < 4; ++k)
            EXPECT_EQ(get(("Text" + std::to_string(k + 1)).c_str())->isEnabled(), row.enabled[k])
                << row.button << " field " << k + 1;
        type("Text1", QLatin1String(row.fields[0]));
        if (row.enabled[1])
            type("Text2", QLatin1String(row.fields[1]));
        if (row.enabled[2])
            type("Text3", QLatin1String(row.fields[2]));
        click("Command3");
        EXPECT_EQ(get("Text99")->text(), QLatin1String(row.area)) << row.button;
    }
    click("Command98");
    EXPECT_EQ(visiblePictures(), QString());
    EXPECT_EQ(label("Label56"), u"18"_s) << "erasing forgets nothing else";
}

TEST_F(AreasPrestamoWindowTest, AreasPlaceholdersGoWhereAFieldReadsZero)
{
    open("areas");
    click("Command25");
    type("Text1", u"5"_s);
    type("Text2", u"0.0"_s);
    click("Label55");
    EXPECT_EQ(get("Text2")->text(), u"0.0"_s) << "a label is not the background";
    QTest::mouseClick(window, Qt::LeftButton, {}, QPoint(3, 3));
    EXPECT_EQ(get("Text1")->text(), u"5"_s);
    for (const char *field : {"Text2", "Text3", "Text4"})
        EXPECT_EQ(get(field)->text(), u"Dato "_s + QChar(field[4])) << field;
    click("Text2");
    EXPECT_EQ(get("Text2")->text(), QString());
    click("Command3");
    EXPECT_EQ(get("Text99")->text(), u"0"_s);
}

TEST_F(AreasPrestamoWindowTest, PrestamoShowsThePaymentOrTheMessage)
{
    open("prestamo");
    auto *w = static_cast<PrestamoWindow *>(window);
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    type("Capital", u"1000"_s);
    type("InteresesGenerados", u"12"_s);
    click("CalCularDatos");
    ASSERT_EQ(fakes().dialogs.messages.size(), 1) << "an empty Meses counts as 0";
    EXPECT_EQ(fakes().dialogs.messages[0].text, u"El número de meses no puede ser 0"_s);
    EXPECT_EQ(fakes().dialogs.messages[0].style, 16);
    EXPECT_EQ(fakes().dialogs.messages[0].title, u"Error"_s);
    EXPECT_EQ(QApplication::focusWidget(), get("Meses"));
    EXPECT_EQ(get("Apagar")->text(), QString());

    type("Meses", u"12"_s);
    click("CalCularDatos");
    EXPECT_EQ(get("Apagar")->text(), u"88.85"_s);
    EXPECT_FLOAT_EQ(w->cuotaMensual(), 88.85f) << "takes back the value shown";
    type("Capital", u"-1000"_s);
    click("CalCularDatos");
    EXPECT_EQ(get("Apagar")->text(), u"88.85"_s) << "a negative payment is not shown";
    EXPECT_EQ(fakes().dialogs.messages.size(), 1);

    // Keys: digits and points pass, Enter moves on, the rest is dropped.
    get("Capital")->setFocus();
    type("Capital", u"1a,2.5.-5"_s);
    EXPECT_EQ(get("Capital")->text(), u"12.5.5"_s);
    QTest::keyClick(get("Capital"), Qt::Key_Backspace);
    EXPECT_EQ(get("Capital")->text(), u"12.5."_s);
    for (const char *next : {"InteresesGenerados", "Meses", "CalCularDatos"}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        EXPECT_EQ(QApplication::focusWidget(), get<QWidget>(next));
    }
    type("Meses", u"40000"_s);
    EXPECT_EQ(test::errorNumber([w] { w->calCularDatosClick(); }), 6);
}

} // namespace
} // namespace zafro
