#include "maths/romanos_window.h"

#include "maths/romanos.h"
#include "runtime/convert.h"
#include "runtime/numtext.h"
#include "shell/language.h"
#include "shell/skin_sample.h"
#include "shell/toolframe.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>

namespace zafro {

namespace {

constexpr int kEnter = 13;

// The key as a key-press step sees it: Enter as 13, a typed character as its code,
// and -1 for keys that type nothing.
int keyAsciiOf(const QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        return kEnter;
    const QString text = event->text();
    return text.size() == 1 ? text.at(0).unicode() : -1;
}

} // namespace

RomanosWindow::RomanosWindow()
    : label1_(place(new QLabel(this), "Label1", 120, 2070, 4560, 540)),
      label2_(place(new QLabel(this), "Label2", 120, 120, 4560, 540)),
      text1_(place(new QLineEdit(QStringLiteral("123"), this), "Text1", 360, 870, 2160, 375)),
      text2_(place(new QLineEdit(QStringLiteral("CXXIII"), this), "Text2", 360, 1470, 2160, 375)),
      command1_(place(new QPushButton(this), "Command1", 2760, 1440, 1680, 435)),
      command2_(place(new QPushButton(this), "Command2", 2760, 840, 1680, 435))
{
    setWindowTitle(QStringLiteral("Zafro Suite"));
    resizeTwips(4800, 2880);
    label2_->setAlignment(Qt::AlignCenter);
    setBold(label2_, 14);
    label1_->setAlignment(Qt::AlignCenter);
    setBold(label1_, 12);
    label1_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    for (QLineEdit *box : {text1_, text2_}) {
        setBold(box, 10);
        box->installEventFilter(this);
    }
    setTabOrder(text1_, command2_);
    setTabOrder(command2_, text2_);
    setTabOrder(text2_, command1_);
    connect(command1_, &QPushButton::clicked, this, &RomanosWindow::command1Click);
    connect(command2_, &QPushButton::clicked, this, &RomanosWindow::command2Click);
    centreOnScreen();
}

void RomanosWindow::formLoad()
{
    frame_ = new ToolFrame(this);
    frame_->paint();
    label2_->setText(texto(slot::NumerosRomanos));
    command2_->setText(texto(slot::ARomanos));
    command1_->setText(texto(slot::AArabes));
}

void RomanosWindow::command1Click()
{
    text2_->setText(text2_->text().toUpper());
    label1_->setText(CStr(ConvertirArabe(text2_->text())));
}

void RomanosWindow::command2Click()
{
    // The box is read leniently but held in 16 bits: "40000" overflows here.
    label1_->setText(ConvertirRomano(CInt(Val(text1_->text()))));
}

void RomanosWindow::text1KeyPress(int &keyAscii)
{
    if (keyAscii != kEnter)
        return;
    command2Click();
    keyAscii = 0;
}

void RomanosWindow::text2KeyPress(int &keyAscii)
{
    if (keyAscii != kEnter)
        return;
    command1Click();
    keyAscii = 0;
}

void RomanosWindow::text1Click()
{
    if (text1_->text() == QLatin1String("123"))
        text1_->clear();
}

void RomanosWindow::text2Click()
{
    if (text2_->text() == QLatin1String("CXXIII"))
        text2_->clear();
}

bool RomanosWindow::eventFilter(QObject *watched, QEvent *event)
{
    const bool first = watched == text1_;
    if (!first && watched != text2_)
        return Form::eventFilter(watched, event);
    if (event->type() == QEvent::KeyPress) {
        int keyAscii = keyAsciiOf(static_cast<QKeyEvent *>(event));
        if (keyAscii < 0)
            return false;
        first ? text1KeyPress(keyAscii) : text2KeyPress(keyAscii);
        return keyAscii == 0; // the step took the key: it never reaches the box
    }
    if (event->type() == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton)
        first ? text1Click() : text2Click();
    return false;
}

} // namespace zafro
