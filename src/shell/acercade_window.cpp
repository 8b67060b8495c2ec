#include "shell/acercade_window.h"

#include "platform/services.h"
#include "shell/controls.h"
#include "shell/language.h"
#include "shell/product.h"
#include "shell/startup.h"
#include "shell/window_shape.h"

#include <QFrame>
#include <QPainter>
#include <QPainterPath>
#include <QUrl>

namespace zafro {

namespace {

constexpr int kCreditsRestart = 2000; // twips: just below the credits' window
constexpr int kCreditsStep = 8;

// The suite's emblem: a gold disc with a Z cut through it.
class Emblem : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter p(this);
        p.setRenderHint(QPainter::Antialiasing);
        const QRectF box = QRectF(rect()).adjusted(2, 2, -2, -2);
        QRadialGradient glow(box.center() - QPointF(box.width() / 5, box.height() / 5),
                             box.width() * 0.7);
        glow.setColorAt(0, QColor(0xFF, 0xE2, 0x8A));
        glow.setColorAt(1, QColor(0xC8, 0x86, 0x0F));
        p.setPen(QPen(QColor(0x0B, 0x24, 0x40), 2));
        p.setBrush(glow);
        p.drawEllipse(box);
        const double w = box.width(), h = box.height(), x = box.left(), y = box.top();
        QPainterPath z;
        z.moveTo(x + 0.27 * w, y + 0.28 * h);
        z.lineTo(x + 0.73 * w, y + 0.28 * h);
        z.lineTo(x + 0.73 * w, y + 0.38 * h);
        z.lineTo(x + 0.42 * w, y + 0.62 * h);
        z.lineTo(x + 0.73 * w, y + 0.62 * h);
        z.lineTo(x + 0.73 * w, y + 0.72 * h);
        z.lineTo(x + 0.27 * w, y + 0.72 * h);
        z.lineTo(x + 0.27 * w, y + 0.62 * h);
        z.lineTo(x + 0.58 * w, y + 0.38 * h);
        z.lineTo(x + 0.27 * w, y + 0.38 * h);
        z.closeSubpath();
        p.setPen(Qt::NoPen);
        p.setBrush(QColor(0x12, 0x3A, 0x63));
        p.drawPath(z);
    }
};

// Pictures and texts that the mouse passes through, so that a press on them drags
// the window like a press on its bare surface.
template <typename T> T *inert(T *widget)
{
    widget->setAttribute(Qt::WA_TransparentForMouseEvents);
    return widget;
}

} // namespace

AcercadeWindow::AcercadeWindow()
    : label1_(place(new QLabel(this), "Label1", 1980, 540, 3000, 360)),
      label2_(place(new ClickLabel(this), "Label2", 4200, 2460, 1500, 390)), label3_(nullptr),
      label4_(place(new QLabel(this), "Label4", 1980, 1500, 2700, 300)),
      label5_(place(new ClickLabel(this), "Label5", 1980, 1860, 2900, 300)),
      label6_(place(new ClickLabel(this), "Label6", 2640, 2460, 1500, 390)),
      timer1_(makeTimer(this, QStringLiteral("Timer1"), 10, true, [this] { timer1Timer(); }))
{
    setWindowTitle(QString::fromUtf16(product::kName));
    resizeTwips(8340, 3060);
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QStringLiteral(
        "zafro--AcercadeWindow { background: qlineargradient(x1:0, y1:0, x2:0, y2:1,"
        " stop:0 #1b4f85, stop:1 #0b2440); }"
        "QLabel { color: #ffffff; }"
        "QLabel#Label1 { color: #d6e6f7; font-size: 10pt; }"
        "QLabel#Label7 { color: #f0b429; font-size: 20pt; font-weight: bold; }"
        "QLabel#Label4 { color: #d6e6f7; }"
        "QLabel#Label5 { color: #8fd0ff; text-decoration: underline; }"
        "QLabel#Label2, QLabel#Label6 { background: #f0b429; color: #10263d; font-weight: bold;"
        " border-radius: 6px; }"
        "QFrame#Frame1 { background: #081a2e; border: 1px solid #3d6c9c; border-radius: 4px; }"
        "QLabel#Label3 { color: #d6e6f7; font-size: 8pt; }"));

    inert(place(new Emblem(this), "Image1", 420, 720, 1320, 1320));
    inert(place(new QLabel(QStringLiteral("Zafro Suite"), this), "Label7", 1980, 870, 3000, 600));
    // The credits roll inside their own window, which clips them.
    auto *frame1 = inert(place(new QFrame(this), "Frame1", 4980, 660, 2880, 1680));
    label3_ = inert(place(new QLabel(frame1), "Label3", 90, label3Top_, 2700, 1680));
    label3_->setWordWrap(true);
    label3_->setAlignment(Qt::AlignHCenter | Qt::AlignTop);

    for (QLabel *text : {label1_, label4_})
        inert(text);
    for (ClickLabel *button : {label2_, label6_})
        button->setAlignment(Qt::AlignCenter);
    for (ClickLabel *link : {label2_, label5_, label6_})
        link->setCursor(Qt::PointingHandCursor);
    label5_->setText(QUrl(QString::fromUtf16(product::kSite)).host());
    connect(label2_, &ClickLabel::clicked, this, &AcercadeWindow::label2Click);
    connect(label5_, &ClickLabel::clicked, this, &AcercadeWindow::label5Click);
    connect(label6_, &ClickLabel::clicked, this, &AcercadeWindow::label6Click);
    applyWindowShape(this, QStringLiteral("acercade"));
    centreOnScreen();
}

void AcercadeWindow::formLoad()
{
    setWindowTitle(texto(slot::AcercaDe) + QStringLiteral(" Zafro Suite..."));
    label1_->setText(texto(slot::AcercaDe) + QStringLiteral("..."));
    label2_->setText(texto(slot::Aceptar));
    label3_->setText(texto(slot::Creditos));
    label3_->resize(label3_->width(),
                    std::max(label3_->height(), label3_->heightForWidth(label3_->width())));
    label6_->setText(texto(slot::Pausar));
    label4_->setText(QStringLiteral("v: ") + versionText());
}

int AcercadeWindow::label3HeightTwips() const
{
    return label3_->height() * twipsPerPixelY();
}

void AcercadeWindow::placeLabel3()
{
    label3_->move(label3_->x(), twipsToPixelsY(label3Top_));
}

void AcercadeWindow::timer1Timer()
{
    if (label3Top_ <= -label3HeightTwips())
        label3Top_ = kCreditsRestart;
    else
        label3Top_ -= kCreditsStep;
    placeLabel3();
}

void AcercadeWindow::label2Click()
{
    unloadMe();
}

void AcercadeWindow::label5Click()
{
    services().desktop->openUrl(QString::fromUtf16(product::kSite));
}

void AcercadeWindow::label6Click()
{
    if (timer1_->isActive()) {
        timer1_->stop();
        label6_->setText(texto(slot::Reanudar));
    } else {
        timer1_->start();
        label6_->setText(texto(slot::Pausar));
    }
}

} // namespace zafro
