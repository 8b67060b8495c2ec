#include "shell/arrival_window.h"

#include "platform/services.h"
#include "runtime/convert.h"
#include "runtime/numtext.h"
#include "shell/controls.h"
#include "shell/forms.h"
#include "shell/index_window.h"
#include "shell/language.h"
#include "shell/launcher_services.h"
#include "shell/settings.h"
#include "shell/skin_sample.h"

#include <QMenu>
#include <QMouseEvent>
#include <QTimer>

namespace zafro {

namespace {
constexpr int kWidthTwips = 2700;
constexpr int kHeightTwips = 540;
constexpr int kTopTwips = 60;
// kept: a left edge that reaches 0 exactly stops there for good, as the left step
// needs it above 0 to move and below 0 to turn; a design left edge of 10 twips past
// a multiple of 20 never lands on 0.
constexpr int kDesignLeftTwips = 2010;
} // namespace

ArrivalWindow::ArrivalWindow()
    : label1_(new ClickLabel(this, QStringLiteral("Label1"))), am1_(new QMenu(this)),
      timer1_(makeTimer(this, QStringLiteral("Timer1"), 1, true, [this] { command1Click(); })),
      timer2_(makeTimer(this, QStringLiteral("Timer2"), 1, false, [this] { command2Click(); }))
{
    // Always above and never in the task bar.
    setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setWindowTitle(QStringLiteral("arrival"));
    resizeTwips(kWidthTwips, kHeightTwips);
    paintBackground(this, QColor(0x0B, 0x2A, 0x4A));
    label1_->setGeometry(twipsRect(0, 0, kWidthTwips, kHeightTwips));
    label1_->setAlignment(Qt::AlignCenter);
    setBold(label1_, 11);
    paintText(label1_, QColor(0xFF, 0xFF, 0x00));
    // A press on the label reaches the window: the label takes no press of its own.
    label1_->setAttribute(Qt::WA_TransparentForMouseEvents);
    am1_->setObjectName(QStringLiteral("am1"));
    am2_ = am1_->addAction(QString());
    am2_->setObjectName(QStringLiteral("am2"));
    connect(am2_, &QAction::triggered, this, &ArrivalWindow::command3Click);
    frame_ = new QTimer(this);
    frame_->setSingleShot(true);
    frame_->setInterval(16);
    connect(frame_, &QTimer::timeout, this, &ArrivalWindow::followLeftEdge);
    leftTwips_ = kDesignLeftTwips;
    followLeftEdge();
}

void ArrivalWindow::formLoad()
{
    label1_->setText(
        QStringLiteral("Zafro Suite v: %1.%2").arg(ZAFRO_VERSION_MAJOR).arg(ZAFRO_VERSION_MINOR));
    limite_ = CStr(services().desktop->screenSizeTwips().width() - kWidthTwips);
    am2_->setText(texto(slot::Cerrar));
}

void ArrivalWindow::setLeftTwips(int twips)
{
    leftTwips_ = twips;
    // The steps come a thousand times a second, the screen shows some sixty: the window
    // follows its left edge once a frame, which spares the display server the rest.
    if (!frame_->isActive())
        frame_->start();
}

void ArrivalWindow::followLeftEdge()
{
    const QPoint at(twipsToPixelsX(leftTwips_), twipsToPixelsY(kTopTwips));
    if (pos() != at)
        move(at);
}

void ArrivalWindow::command1Click()
{
    posicion_ = CStr(leftTwips_);
    int left = leftTwips_;
    const bool turn = pasoPopupDerecha(left, Val(limite_));
    setLeftTwips(left);
    if (turn) {
        timer2_->start();
        timer1_->stop();
    }
}

void ArrivalWindow::command2Click()
{
    posicion_ = CStr(leftTwips_);
    int left = leftTwips_;
    const bool turn = pasoPopupIzquierda(left);
    setLeftTwips(left);
    if (turn) {
        timer1_->start();
        timer2_->stop();
    }
}

void ArrivalWindow::command3Click()
{
    hide();
    if (auto *index = qobject_cast<IndexWindow *>(forms().find(QStringLiteral("index"))))
        index->command9Click();
    else
        writeConfig(QStringLiteral("topopen"), QStringLiteral("2"));
}

void ArrivalWindow::rightPress(QPoint globalPos)
{
    am1_->popup(globalPos);
}

void ArrivalWindow::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::RightButton)
        rightPress(event->globalPosition().toPoint());
    Form::mousePressEvent(event);
}

} // namespace zafro
