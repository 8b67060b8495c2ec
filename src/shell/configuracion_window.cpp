#include "shell/configuracion_window.h"

#include "platform/services.h"
#include "shell/controls.h"
#include "shell/forms.h"
#include "shell/launcher.h"
#include "shell/product.h"
#include "shell/settings.h"
#include "shell/skin_sample.h"
#include "shell/window_shape.h"

#include <QLineEdit>
#include <QPushButton>

namespace zafro {

namespace {

const QColor kInk(0xFF, 0xE0, 0x80);

// Design pixels of the window, as its outline; the controls keep clear of its holes.
QRect px(int left, int top, int width, int height)
{
    return twipsRect(left * 15, top * 15, width * 15, height * 15);
}

ClickLabel *label(QWidget *parent, const char *name, const QString &text, QRect at)
{
    auto *l = new ClickLabel(parent, QLatin1String(name));
    l->setText(text);
    l->setGeometry(at);
    paintText(l, kInk);
    return l;
}

} // namespace

ConfiguracionWindow::ConfiguracionWindow()
    : text1_(new QLineEdit(QString::fromUtf16(product::kSite), this)),
      text3_(new QLineEdit(QStringLiteral("By Tirsamontes"), this))
{
    setWindowTitle(QStringLiteral("Zafro Suite - Configuración secreta"));
    resize(px(0, 0, 470, 372).size());
    paintBackground(this, QColor(0x3A, 0x10, 0x4A));

    auto *title =
        label(this, "Label1", QStringLiteral("Configuración secreta"), px(66, 124, 214, 30));
    setBold(title, 12);
    label(this, "Label2", QStringLiteral("Página Inicial:"), px(40, 176, 100, 22));
    text1_->setObjectName(QStringLiteral("Text1"));
    text1_->setGeometry(px(140, 174, 210, 24));
    auto *label4 = label(this, "Label4", QStringLiteral("Cambiar"), px(360, 176, 60, 22));
    label(this, "Label3", QStringLiteral("Messenger:"), px(40, 212, 100, 22));
    text3_->setObjectName(QStringLiteral("Text3"));
    text3_->setGeometry(px(140, 210, 210, 24));
    auto *label5 = label(this, "Label5", QStringLiteral("Cambiar"), px(360, 212, 60, 22));
    for (ClickLabel *change : {label4, label5}) {
        change->setCursor(Qt::PointingHandCursor);
        QFont underlined = change->font();
        underlined.setUnderline(true);
        change->setFont(underlined);
    }
    auto *command1 = new QPushButton(QStringLiteral("Buscaminas !!"), this);
    command1->setObjectName(QStringLiteral("Command1"));
    command1->setGeometry(px(130, 252, 110, 30));
    auto *command3 = new QPushButton(QStringLiteral("Volver!!"), this);
    command3->setObjectName(QStringLiteral("Command3"));
    command3->setGeometry(px(306, 252, 100, 30));

    connect(label4, &ClickLabel::clicked, this, &ConfiguracionWindow::label4Click);
    connect(label5, &ClickLabel::clicked, this, &ConfiguracionWindow::label5Click);
    connect(command1, &QPushButton::clicked, this, &ConfiguracionWindow::command1Click);
    connect(command3, &QPushButton::clicked, this, &ConfiguracionWindow::command3Click);
    centreOnScreen();
}

void ConfiguracionWindow::formLoad()
{
    applyWindowShape(this, QStringLiteral("configuracion"));
    // kept: nothing is checked between the two; the window opens for everybody.
    Dialogs *dialogs = services().dialogs;
    dialogs->msgBox(QStringLiteral("Estas entrando en una zona secreta!, aquí solo puedes entrar "
                                   "con el permiso del autor!, a continuación comprobaremos si su "
                                   "sistema tiene el permiso para acceder a esta zona secreta"),
                    0, QString());
    dialogs->msgBox(QStringLiteral("¡¡SU ORDENADOR NO TIENE PERMISO PARA ENTRAR EN ESTA ZONA!! "
                                   "COMO CONSECUENCIA DE LA INFILTRACIÓN SIN AUTORIZACIÓN, ESTA "
                                   "VENTANA SERÁ DEFORMADA POR UN VIRUS"),
                    16, QStringLiteral("¡Infiltrado!"));
}

void ConfiguracionWindow::label4Click()
{
    EscribirClave(startPagePath(), text1_->text());
}

void ConfiguracionWindow::label5Click()
{
    EscribirClave(messengerWarningPath(), text3_->text());
}

void ConfiguracionWindow::command3Click()
{
    // The launcher was only hidden: it comes back as it was, with no new load.
    forms().show(QStringLiteral("index"));
    unloadMe();
}

} // namespace zafro
