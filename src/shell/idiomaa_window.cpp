#include "shell/idiomaa_window.h"

#include "platform/services.h"
#include "shell/controls.h"
#include "shell/forms.h"
#include "shell/settings.h"
#include "shell/window_shape.h"

#include <QPixmap>

namespace zafro {

namespace {

ClickLabel *flag(QWidget *parent, const QString &name, const QString &picture, int left)
{
    auto *image = new ClickLabel(parent, name);
    image->setPixmap(QPixmap(picture));
    image->setGeometry(twipsRect(left, 1740, 1440, 960));
    image->setCursor(Qt::PointingHandCursor);
    return image;
}

QLabel *caption(QWidget *parent, const QString &name, const QString &text, QRect twips)
{
    auto *label = new QLabel(text, parent);
    label->setObjectName(name);
    label->setAlignment(Qt::AlignCenter);
    label->setGeometry(twipsRect(twips.x(), twips.y(), twips.width(), twips.height()));
    return label;
}

} // namespace

IdiomaaWindow::IdiomaaWindow()
    : timer1_(makeTimer(this, QStringLiteral("Timer1"), 500, false, [this] { timer1Timer(); }))
{
    setWindowTitle(QStringLiteral("Zafro Suite"));
    resizeTwips(6840, 4050);
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(
        QStringLiteral("zafro--IdiomaaWindow { background: #f4f7fb; }"
                       "QLabel { color: #1b2a3a; font-size: 11pt; }"
                       "QLabel#Label1, QLabel#Label2 { font-size: 12pt; font-weight: bold; }"));

    caption(this, QStringLiteral("Label1"), QStringLiteral("Por favor, selecciona tu idioma:"),
            {300, 600, 6240, 360});
    caption(this, QStringLiteral("Label2"), QStringLiteral("Please, select your language:"),
            {300, 1020, 6240, 360});

    auto *image1 = flag(this, QStringLiteral("Image1"), QStringLiteral(":/flags/es.png"), 780);
    auto *image2 = flag(this, QStringLiteral("Image2"), QStringLiteral(":/flags/en.png"), 2700);
    auto *image4 = flag(this, QStringLiteral("Image4"), QStringLiteral(":/flags/va.png"), 4620);
    caption(this, QStringLiteral("Label3"), QStringLiteral("Español"), {480, 2820, 2040, 360});
    caption(this, QStringLiteral("Label4"), QStringLiteral("English"), {2400, 2820, 2040, 360});
    caption(this, QStringLiteral("Label5"), QStringLiteral("Valencià"), {4320, 2820, 2040, 360});

    connect(image1, &ClickLabel::clicked, this, &IdiomaaWindow::image1Click);
    connect(image2, &ClickLabel::clicked, this, &IdiomaaWindow::image2Click);
    connect(image4, &ClickLabel::clicked, this, &IdiomaaWindow::image4Click);
    applyWindowShape(this, QStringLiteral("idiomaa"));
    centreOnScreen();
}

void IdiomaaWindow::image1Click()
{
    elegir(QStringLiteral("1"),
           QStringLiteral("Para completar el cambio Zafro Suite se va a reiniciar, Gracias"));
}

void IdiomaaWindow::image2Click()
{
    elegir(
        QStringLiteral("2"),
        QStringLiteral("In order to complete changes Zafro Suite is going to be reboot, Thanks"));
}

void IdiomaaWindow::image4Click()
{
    elegir(QStringLiteral("4"),
           QStringLiteral("Per a completar els cambis, Zafro Suite es reiniciarà"));
}

void IdiomaaWindow::elegir(const QString &codigo, const QString &mensaje)
{
    writeConfig(QStringLiteral("idioma"), codigo);
    services().dialogs->msgBox(mensaje, msg::OkOnly, QString());
    // The plates window keeps its own texts: it must take the new language next time.
    forms().unload(QStringLiteral("matriculasselect"));
    timer1_->start();
    hide();
}

void IdiomaaWindow::timer1Timer()
{
    timer1_->stop();
    forms().show(QStringLiteral("inicio"));
    unloadMe();
}

} // namespace zafro
