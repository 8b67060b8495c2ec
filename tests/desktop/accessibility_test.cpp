#include "shell/accessibility.h"
#include "shell/command_line.h"
#include "shell/form.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/settings.h"
#include "shell/skins.h"

#include <gtest/gtest.h>

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

// What Tab reaches from the window until the ring closes; a combo's edit line is the combo.
QList<QWidget *> tabWalk(QWidget *window)
{
    QList<QWidget *> walked;
    for (QWidget *w = window->nextInFocusChain(); w != window; w = w->nextInFocusChain()) {
        QWidget *c = qobject_cast<QComboBox *>(w->parentWidget()) ? w->parentWidget() : w;
        if ((c->focusPolicy() & Qt::TabFocus) && c->isVisibleTo(window) && !walked.contains(c))
            walked << c;
    }
    return walked;
}

template <typename T> T *add(QWidget *parent, const char *name, QRect at, const char *text = "")
{
    auto *w = new T(parent);
    w->setObjectName(QLatin1String(name));
    w->setGeometry(at);
    if constexpr (requires { w->setText(QString()); })
        w->setText(QString::fromUtf8(text));
    return w;
}

class Accessibility : public ::testing::Test {
protected:
    void SetUp() override
    {
        CargarEspanol();
        writeConfig(QStringLiteral("idioma"), QStringLiteral("1"));
        guardarSkin(4);
    }
};

TEST_F(Accessibility, NamesComeFromCaptionsLabelsOrRolesAndTabReadsLikeAPage)
{
    Form window; // built out of reading order on purpose
    auto *calcular = add<QPushButton>(&window, "Command1", {200, 100, 80, 24}, "&Calcular");
    auto *bare = add<QPushButton>(&window, "Command2", {10, 100, 24, 24});
    auto *tipped = add<QPushButton>(&window, "Command3", {100, 100, 24, 24});
    tipped->setToolTip(QStringLiteral("Borrar"));
    auto *resultado = add<QLineEdit>(&window, "Text2", {10, 60, 200, 20});
    resultado->setReadOnly(true);
    add<QLabel>(&window, "Label2", {10, 40, 200, 18}, "Resultado final");
    auto *numero = add<QLineEdit>(&window, "Text1", {90, 10, 100, 20});
    add<QLabel>(&window, "Label1", {10, 12, 70, 18}, "Número:");
    auto *suelto = add<QLineEdit>(&window, "Text3", {10, 140, 100, 20});
    auto *lista = add<QComboBox>(&window, "Combo1", {200, 140, 100, 20});
    auto *secreto = add<QPushButton>(&window, "Secreto1", {300, 10, 10, 10});
    auto *propio = add<QLineEdit>(&window, "Text4", {120, 140, 60, 20});
    propio->setAccessibleName(QStringLiteral("Mi nombre"));

    makeAccessible(&window);
    const std::pair<QWidget *, const char *> expected[] = {
        {calcular, "Calcular"},         {bare, "Botón"},       {tipped, "Borrar"},
        {resultado, "Resultado final"}, {numero, "Número:"},   {suelto, "Entrada"},
        {lista, "Desplegable"},         {propio, "Mi nombre"}, {secreto, ""}};
    for (const auto &[control, name] : expected)
        EXPECT_EQ(spokenName(control), QString::fromUtf8(name)) << name;
    calcular->setText(QStringLiteral("Parar"));
    EXPECT_EQ(spokenName(calcular), QStringLiteral("Parar")) << "a caption is read live";

    window.show();
    QStringList walked;
    for (QWidget *w : tabWalk(&window))
        walked << w->objectName();
    EXPECT_EQ(walked, (QStringList{"Text1", "Text2", "Command2", "Command3", "Command1", "Text3",
                                   "Text4", "Combo1"}));
}

TEST_F(Accessibility, EveryToolWindowIsNamedAndWalkedInReadingOrder)
{
    installAccessibilityPass();
    for (const QString &tool : toolNames()) {
        SCOPED_TRACE(tool.toStdString());
        QWidget *window = forms().show(tool);
        ASSERT_NE(window, nullptr);
        for (QWidget *w : window->findChildren<QWidget *>()) {
            const bool control = qobject_cast<QAbstractButton *>(w) || qobject_cast<QLineEdit *>(w);
            EXPECT_TRUE(!control || w->window() != window ||
                        qobject_cast<QComboBox *>(w->parentWidget()) || !spokenName(w).isEmpty())
                << w->objectName().toStdString();
        }
        // Each control stands lower than its row's first, or further right in that row.
        QRect rowStart(-1, -1, 0, 0);
        int left = -1;
        for (QWidget *w : tabWalk(window)) {
            const QRect at(w->mapTo(window, QPoint()), w->size());
            const bool sameRow = at.center().y() < rowStart.bottom();
            EXPECT_TRUE(sameRow ? at.left() >= left : at.center().y() >= rowStart.center().y())
                << w->objectName().toStdString();
            rowStart = sameRow ? rowStart : at;
            left = at.left();
        }
        forms().unloadAll();
    }
}

} // namespace
} // namespace zafro
