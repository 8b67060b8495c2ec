#include "fakes.h"
#include "shell/accessibility.h"
#include "shell/command_line.h"
#include "shell/form.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/settings.h"
#include "shell/skins.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace zafro {
namespace {

QString spokenName(QWidget *w)
{
    QAccessibleInterface *face = QAccessible::queryAccessibleInterface(w);
    return face ? face->text(QAccessible::Name) : QString();
}

// The controls Tab reaches from the window, in order, until the chain comes round;
// the edit line of a combo counts as the combo.
QList<QWidget *> tabWalk(QWidget *window)
{
    QList<QWidget *> walked;
    QWidget *w = window;
    for (int i = 0; i < 400; ++i) {
        w = w->nextInFocusChain();
        if (w == window)
            break;
        if (qobject_cast<QComboBox *>(w->parentWidget()))
            w = w->parentWidget();
        if (w->window() == window && (w->focusPolicy() & Qt::TabFocus) && w->isVisibleTo(window) &&
            !walked.contains(w))
            walked << w;
    }
    return walked;
}

QStringList names(const QList<QWidget *> &widgets)
{
    QStringList list;
    for (const QWidget *w : widgets)
        list << w->objectName();
    return list;
}

template <typename T> T *add(QWidget *parent, const char *name, QRect at, const QString &text = {})
{
    auto *w = new T(parent);
    w->setObjectName(QLatin1String(name));
    w->setGeometry(at);
    if constexpr (requires { w->setText(text); })
        w->setText(text);
    return w;
}

class Accessibility : public ::testing::Test {
protected:
    void SetUp() override
    {
        CargarEspanol();
        writeConfig(QStringLiteral("idioma"), QStringLiteral("1"));
        writeConfig(QStringLiteral("Visitado"), QStringLiteral("5"));
        guardarSkin(4);
    }
};

TEST_F(Accessibility, NamesComeFromCaptionsLabelsOrRolesAndTabReadsLikeAPage)
{
    Form window;
    // Made out of reading order on purpose.
    auto *calcular = add<QPushButton>(&window, "Command1", {200, 100, 80, 24}, "&Calcular");
    auto *bare = add<QPushButton>(&window, "Command2", {10, 100, 24, 24});
    auto *tipped = add<QPushButton>(&window, "Command3", {100, 100, 24, 24});
    tipped->setToolTip(QStringLiteral("Borrar"));
    auto *resultado = add<QLineEdit>(&window, "Text2", {10, 60, 200, 20});
    resultado->setReadOnly(true);
    add<QLabel>(&window, "Label2", {10, 40, 200, 18}, QStringLiteral("Resultado final"));
    auto *numero = add<QLineEdit>(&window, "Text1", {90, 10, 100, 20});
    add<QLabel>(&window, "Label1", {10, 12, 70, 18}, QStringLiteral("Número:"));
    auto *suelto = add<QLineEdit>(&window, "Text3", {10, 140, 100, 20});
    auto *lista = add<QComboBox>(&window, "Combo1", {200, 140, 100, 20});
    auto *secreto = add<QPushButton>(&window, "Secreto1", {300, 10, 10, 10});
    auto *propio = add<QLineEdit>(&window, "Text4", {120, 140, 60, 20});
    propio->setAccessibleName(QStringLiteral("Mi nombre"));

    makeAccessible(&window);

    const struct {
        QWidget *control;
        const char *name;
    } expected[] = {
        {calcular, "Calcular"},         {bare, "Botón"},       {tipped, "Borrar"},
        {resultado, "Resultado final"}, {numero, "Número:"},   {suelto, "Entrada"},
        {lista, "Desplegable"},         {propio, "Mi nombre"}, {secreto, ""},
    };
    for (const auto &row : expected)
        EXPECT_EQ(spokenName(row.control), QString::fromUtf8(row.name))
            << row.control->objectName().toStdString();
    EXPECT_TRUE(calcular->accessibleName().isEmpty())
        << "a caption is read live from the button, not copied";
    calcular->setText(QStringLiteral("Parar"));
    EXPECT_EQ(spokenName(calcular), QStringLiteral("Parar"));

    window.show();
    EXPECT_EQ(names(tabWalk(&window)), (QStringList{"Text1", "Text2", "Command2", "Command3",
                                                    "Command1", "Text3", "Text4", "Combo1"}));
}

TEST_F(Accessibility, EveryToolWindowIsNamedAndWalkedInReadingOrder)
{
    installAccessibilityPass();
    for (const QString &tool : toolNames()) {
        SCOPED_TRACE(tool.toStdString());
        QWidget *window = forms().show(tool);
        ASSERT_NE(window, nullptr);
        for (QWidget *w : window->findChildren<QWidget *>()) {
            const bool control = qobject_cast<QAbstractButton *>(w) ||
                                 qobject_cast<QLineEdit *>(w) || qobject_cast<QComboBox *>(w) ||
                                 qobject_cast<QAbstractItemView *>(w);
            if (control && w->window() == window && !qobject_cast<QComboBox *>(w->parentWidget())) {
                EXPECT_FALSE(spokenName(w).isEmpty()) << w->objectName().toStdString();
            }
        }
        // Reading order: each control stands lower than the one before, or in its row
        // further right.
        QPoint previous(-1, -1);
        int previousBottom = -1;
        for (QWidget *w : tabWalk(window)) {
            const QRect at(w->mapTo(window, QPoint()), w->size());
            const bool sameRow = at.center().y() < previousBottom;
            EXPECT_TRUE(sameRow ? at.left() >= previous.x() : at.center().y() >= previous.y())
                << w->objectName().toStdString();
            if (!sameRow) {
                previous = {at.left(), at.center().y()};
                previousBottom = at.bottom();
            } else {
                previous.setX(at.left());
            }
        }
        forms().unloadAll();
    }
}

} // namespace
} // namespace zafro
