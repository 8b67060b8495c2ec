#include "shell/intro_window.h"

#include "shell/controls.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/settings.h"
#include "shell/startup.h"

#include "runtime/convert.h"

#include <QPixmap>

namespace zafro {

namespace {
QLabel *textLabel(QWidget *parent, const QString &name, QRect twips, Qt::Alignment align)
{
    auto *label = new QLabel(parent);
    label->setObjectName(name);
    label->setAlignment(align);
    label->setWordWrap(true);
    label->setGeometry(twipsRect(twips.x(), twips.y(), twips.width(), twips.height()));
    return label;
}
} // namespace

IntroWindow::IntroWindow()
    : image1_(new ClickLabel(this, QStringLiteral("Image1"))),
      label4_(textLabel(this, QStringLiteral("Label4"), {5100, 2400, 1500, 300}, Qt::AlignRight)),
      label5_(textLabel(this, QStringLiteral("Label5"), {300, 2760, 6300, 300}, Qt::AlignLeft)),
      label6_(textLabel(this, QStringLiteral("Label6"), {300, 3060, 6300, 300}, Qt::AlignLeft)),
      label7_(textLabel(this, QStringLiteral("Label7"), {300, 3600, 6300, 300}, Qt::AlignLeft)),
      timer2_(makeTimer(this, QStringLiteral("Timer2"), 120, true, [this] { timer2Timer(); }))
{
    setWindowFlag(Qt::FramelessWindowHint);
    setWindowTitle(QStringLiteral("Zafro Suite"));
    resizeTwips(6900, 4140);
    setStyleSheet(
        QStringLiteral("zafro--IntroWindow { background: #0b2a4a; border: 1px solid #5b8fc7; }"
                       "QLabel { color: #dce9f7; font-size: 9pt; }"
                       "QLabel#Label4 { color: #ffffff; font-weight: bold; }"
                       "QLabel#Label7 { color: #ffd866; }"));
    setAttribute(Qt::WA_StyledBackground);
    image1_->setPixmap(QPixmap(QStringLiteral(":/shell/intro.png")));
    image1_->setGeometry(twipsRect(150, 150, 6600, 2250));
    image1_->setAlignment(Qt::AlignCenter);
    connect(image1_, &ClickLabel::clicked, this, &IntroWindow::image1Click);
    centreOnScreen();
}

void IntroWindow::formLoad()
{
    contador_ = QStringLiteral("0");
    label4_->setText(versionText());
    label5_->setText(texto(slot::CreditoDiseno));
    label6_->setText(texto(slot::CreditoDerechos));
    visitas_ = readConfig(QStringLiteral("Visitado"));
    paso_ = Val(visitas_) < 1 ? QStringLiteral("2") : QStringLiteral("1");
}

void IntroWindow::timer2Timer()
{
    contador_ = QString::number(contador_.toInt() + 1);
    const int tick = contador_.toInt();
    const int paso = paso_.toInt();
    const QString mensaje = introMensaje(tick, paso);
    if (!mensaje.isNull())
        label7_->setText(mensaje);
    if (introEntra(tick, paso))
        command1Click();
}

void IntroWindow::image1Click()
{
    command1Click();
}

void IntroWindow::command1Click()
{
    timer2_->stop();
    if (readConfigNumber(QStringLiteral("Visitado")) >= 1)
        forms().show(QStringLiteral("index"));
    else
        forms().show(QStringLiteral("nuevos"));
    unloadMe();
}

} // namespace zafro
