#pragma once

// A window under test: shown through the forms registry, its controls found by their
// names, typed into and clicked as a user would.

#include "fakes.h"
#include "shell/forms.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStringList>
#include <QTest>

#include <functional>

namespace zafro::test {

class WindowTest : public ::testing::Test {
protected:
    QWidget *open(const char *name, const std::function<void(QWidget *)> &prepare = {})
    {
        window = forms().show(QLatin1String(name), prepare);
        EXPECT_NE(window, nullptr) << name;
        return window;
    }
    template <typename T = QWidget> T *get(const char *name) const
    {
        T *found = window->findChild<T *>(QLatin1String(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    // The text a user reads on a box, a button or a label.
    QString textOf(const char *name) const
    {
        if (auto *box = window->findChild<QLineEdit *>(QLatin1String(name)))
            return box->text();
        if (auto *button = window->findChild<QPushButton *>(QLatin1String(name)))
            return button->text();
        return get<QLabel>(name)->text();
    }
    void type(const char *box, const QString &text)
    {
        get<QLineEdit>(box)->clear();
        QTest::keyClicks(get<QLineEdit>(box), text);
    }
    void click(const char *name) { QTest::mouseClick(get(name), Qt::LeftButton); }
    // A click on the window where no control lies.
    void clickBackground() { QTest::mouseClick(window, Qt::LeftButton, {}, QPoint(3, 3)); }
    static QStringList messageTexts()
    {
        QStringList texts;
        for (const auto &m : fakes().dialogs.messages)
            texts << m.text;
        return texts;
    }

    QWidget *window = nullptr;
};

} // namespace zafro::test
