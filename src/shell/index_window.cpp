#include "shell/index_window.h"

#include "platform/services.h"
#include "shell/controls.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/launcher.h"
#include "shell/launcher_hooks.h"
#include "shell/product.h"
#include "shell/settings.h"
#include "shell/startup.h"
#include "shell/toolframe.h"
#include "shell/window_shape.h"

#include <QLineEdit>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>

namespace zafro {

namespace {

const QColor kYellow(0xFF, 0xFF, 0x00); // 65535 in the original's colour numbers
const QColor kRed(0xFF, 0x00, 0x00);    // 255
const QColor kInk(0xE8, 0xEE, 0xF5);

// Design pixels of the launcher; its outline is drawn in the same units.
QRect px(int left, int top, int width, int height)
{
    return twipsRect(left * 15, top * 15, width * 15, height * 15);
}

void ink(QWidget *widget, const QColor &colour)
{
    QPalette palette = widget->palette();
    palette.setColor(QPalette::WindowText, colour);
    widget->setPalette(palette);
}

QLabel *plainLabel(QWidget *parent, const char *name, const QString &text, QRect geometry)
{
    auto *label = new ClickLabel(parent, QLatin1String(name));
    label->setText(text);
    label->setGeometry(geometry);
    ink(label, kInk);
    return label;
}

QPushButton *button(QWidget *parent, const char *name, const QString &text, QRect geometry)
{
    auto *b = new QPushButton(text, parent);
    b->setObjectName(QLatin1String(name));
    b->setGeometry(geometry);
    b->setCursor(Qt::PointingHandCursor);
    return b;
}

} // namespace

IndexWindow::IndexWindow()
    : timer5_(makeTimer(this, QStringLiteral("Timer5"), 100, false, [this] { timer5Timer(); })),
      timer6_(makeTimer(this, QStringLiteral("Timer6"), 1, false, [this] { timer6Timer(); }))
{
    setWindowTitle(QString::fromUtf16(product::kName));
    resize(px(0, 0, 750, 545).size());
    move(pos().x(), twipsToPixelsY(600));
    setMouseTracking(true);

    auto *title =
        plainLabel(this, "Label1", QString::fromUtf16(product::kName), px(40, 10, 330, 44));
    QFont big = title->font();
    big.setPointSize(24);
    big.setBold(true);
    title->setFont(big);
    title->setCursor(Qt::PointingHandCursor);
    connect(static_cast<ClickLabel *>(title), &ClickLabel::clicked, this,
            &IndexWindow::label1Click);
    plainLabel(this, "Label3", QString(), px(40, 58, 400, 22));

    // Two columns of fifteen tools, in the order of their numbers; the news beside them.
    int i = 0;
    for (const LauncherLabel &entry : launcherLabels()) {
        auto *label = new ClickLabel(this, QLatin1String(entry.name));
        label->setText(QLatin1String(kPaLuego));
        label->setGeometry(px(i < 15 ? 14 : 184, 104 + (i % 15) * 18, i < 15 ? 170 : 160, 18));
        QFont font = label->font();
        font.setPointSize(9);
        font.setBold(true);
        label->setFont(font);
        label->setCursor(Qt::PointingHandCursor);
        label->setMouseTracking(true);
        ink(label, kYellow);
        const QString name = QLatin1String(entry.name);
        connect(label, &ClickLabel::clicked, this, [this, name] { labelClick(name); });
        connect(label, &ClickLabel::mouseMoved, this, [this, name] { labelMouseMove(name); });
        toolLabels_.insert(name, label);
        ++i;
    }

    // The clock, the date, the visit counter and its comment, under the news.
    auto *label4 = static_cast<ClickLabel *>(
        plainLabel(this, "Label4", QStringLiteral("00:00:00"), px(368, 306, 120, 18)));
    label4->setMouseTracking(true);
    connect(label4, &ClickLabel::mouseMoved, this, &IndexWindow::label4MouseMove);
    connect(label4, &ClickLabel::clicked, this, &IndexWindow::label4Click);
    auto *label8 = static_cast<ClickLabel *>(
        plainLabel(this, "Label8", QStringLiteral("--/--/----"), px(496, 306, 246, 18)));
    connect(label8, &ClickLabel::clicked, this, &IndexWindow::label8Click);
    for (ClickLabel *clock : {label4, label8}) {
        clock->setCursor(Qt::PointingHandCursor);
        QFont font = clock->font();
        font.setBold(true);
        clock->setFont(font);
    }
    plainLabel(this, "Label2", QString(), px(368, 326, 376, 16));
    auto *label5 =
        plainLabel(this, "Label5", QStringLiteral("Do you live Zafro ?"), px(368, 343, 376, 34));
    label5->setWordWrap(true);
    label5->setAlignment(Qt::AlignLeft | Qt::AlignTop);

    auto *label6 = static_cast<ClickLabel *>(
        plainLabel(this, "Label6", QStringLiteral("4.6  BETA 2"), px(100, 432, 120, 20)));
    label6->setCursor(Qt::PointingHandCursor);
    connect(label6, &ClickLabel::clicked, this, &IndexWindow::label6Click);

    auto *command4 = button(this, "Command4", QString(), px(52, 395, 120, 26));
    auto *command12 = button(this, "Command12", QString(), px(182, 395, 120, 26));
    auto *command19 =
        button(this, "Command19", QStringLiteral("Zafro Skin  v: 2.8"), px(312, 395, 120, 26));
    auto *command7 = button(this, "Command7", QString(), px(442, 395, 120, 26));
    auto *command11 = button(this, "Command11", QString(), px(572, 395, 120, 26));
    auto *command8 = button(this, "Command8", QString(), px(314, 490, 120, 30));
    // The popup's two buttons; the popup itself is one of the launcher's services.
    button(this, "Command9", QString(), px(530, 430, 130, 22));
    button(this, "Command10", QString(), px(530, 430, 130, 22));

    // A formula bench, hidden at design, that nothing shows.
    for (const char *name : {"Text2", "Text3"}) {
        auto *box = new QLineEdit(this);
        box->setObjectName(QLatin1String(name));
        box->hide();
    }
    button(this, "Command14", QString(), px(0, 0, 20, 20))->hide();
    connect(findChild<QPushButton *>(QStringLiteral("Command14")), &QPushButton::clicked, this,
            &IndexWindow::command14Click);

    connect(command4, &QPushButton::clicked, this, &IndexWindow::command4Click);
    connect(command7, &QPushButton::clicked, this, &IndexWindow::command7Click);
    connect(command8, &QPushButton::clicked, this, &IndexWindow::command8Click);
    connect(command11, &QPushButton::clicked, this, &IndexWindow::command11Click);
    connect(command12, &QPushButton::clicked, this, &IndexWindow::command12Click);
    connect(command19, &QPushButton::clicked, this, &IndexWindow::command19Click);
    buildServices();
}

void IndexWindow::formLoad()
{
    frame_ = new ToolFrame(this); // the animated title, Timer1

    // 1-2: the clock, date and popup settings, and the popup's buttons.
    hora_ = formatoGuardado(QStringLiteral("hora"));
    fecha_ = formatoGuardado(QStringLiteral("fecha"));
    topopen_ = formatoGuardado(QStringLiteral("topopen"));
    findChild<QPushButton *>(QStringLiteral("Command9"))->setVisible(topopen_ == 1);
    findChild<QPushButton *>(QStringLiteral("Command10"))->setVisible(topopen_ != 1);
    if (topopen_ == 1)
        timer4_->start();
    else
        timer4_->stop();

    // 3
    if (news_)
        news_->start();

    // 4-5: centred across the screen, its top as designed; then the outline.
    const int screenWidth = twipsToPixelsX(services().desktop->screenSizeTwips().width());
    move((screenWidth - width()) / 2, y());
    applyWindowShape(this, QStringLiteral("index"));

    // 6-8
    escribirValoresDelAutor();
    limpiarAvisoMensajero();
    ponerPaginaDeInicio();

    // 9-11
    visitas_ = contarVisita();
    findChild<QLabel *>(QStringLiteral("Label2"))->setText(textoVisitas(visitas_));
    ponerComentario();
    command1Click();
    crearLetras(QLatin1String(kTextoWeb));

    // 12: a marker file of an earlier version, in the program's folder here.
    Desktop *desktop = services().desktop;
    const QString marker = desktop->programFolder() + QStringLiteral("/ZaFrO.txt");
    if (desktop->fileExists(marker))
        desktop->deleteFile(marker);

    // 13: captions and tips.
    findChild<QLabel *>(QStringLiteral("Label3"))
        ->setText(texto(slot::BienvenidoA) + QString::fromUtf16(product::kName));
    for (const LauncherLabel &entry : launcherLabels())
        if (entry.slot != 0)
            toolLabels_.value(QLatin1String(entry.name))->setText(texto(entry.slot));
    const auto caption = [this](const char *name, const QString &text, const QString &tip = {}) {
        auto *b = findChild<QPushButton *>(QLatin1String(name));
        b->setText(text);
        if (!tip.isNull())
            b->setToolTip(tip);
    };
    caption("Command4", texto(slot::Preferencias));
    caption("Command7", texto(slot::AcercaDe),
            texto(slot::AcercaDe) + QStringLiteral(" Zafro Suite..."));
    caption("Command8", texto(slot::Cerrar), texto(slot::QuitarZafroSuite));
    caption("Command9", texto(slot::Cerrar) + QStringLiteral(" popup"));
    caption("Command10", texto(slot::Restaurar) + QStringLiteral(" popup"));
    caption("Command11", texto(slot::EntrarEnLaWeb), texto(slot::EntrarEnLaWeb));
    caption("Command12", texto(slot::Idioma));

    // 14
    ponerSaludo();

    // 15
    primeraVisitaIndex(visitas_);
}

void IndexWindow::labelClick(const QString &name)
{
    const LauncherLabel *entry = launcherLabel(name);
    if (!entry || !*entry->opens)
        return; // a place held for a tool to come
    const QString target = QLatin1String(entry->opens);
    if (!forms().isRegistered(target))
        return; // its tool is not part of the suite yet
    if (entry->resetsFirst)
        command2Click();
    if (target == QLatin1String("divisas"))
        forms().unload(QStringLiteral("divisasact"));
    if (target == QLatin1String("matriculasselect")) {
        // The plates window learns that it runs under the launcher before it loads.
        forms().show(target, [](QWidget *plates) {
            if (auto *ls = plates->findChild<QLabel *>(QStringLiteral("ls")))
                ls->setText(QStringLiteral("1"));
        });
        return;
    }
    forms().show(target);
}

void IndexWindow::labelMouseMove(const QString &name)
{
    command2Click();
    if (ClickLabel *label = toolLabels_.value(name))
        ink(label, kRed);
}

void IndexWindow::formMouseMove()
{
    command2Click();
    if (news_)
        news_->surfaceMoved();
}

void IndexWindow::label4MouseMove()
{
    command2Click();
}

void IndexWindow::command2Click()
{
    for (ClickLabel *label : std::as_const(toolLabels_))
        ink(label, kYellow);
}

void IndexWindow::command3Click()
{
    command11Click();
}

void IndexWindow::command4Click()
{
    forms().show(QStringLiteral("preferencias"));
}

void IndexWindow::command7Click()
{
    forms().show(QStringLiteral("acercade"));
}

void IndexWindow::command8Click()
{
    if (readConfigNumber(QStringLiteral("pregcerrar")) == 1) {
        forms().show(QStringLiteral("au"));
        unloadMe();
        return;
    }
    setWindowTitle(QString::fromUtf16(product::kName));
    if (QTimer *title = frame_->timer())
        title->stop();
    forms().unload(QStringLiteral("arrival"));
    timer6_->start();
}

void IndexWindow::command11Click()
{
    services().desktop->openUrl(QString::fromUtf16(product::kSite));
}

void IndexWindow::command12Click()
{
    forms().show(QStringLiteral("idiomaa"));
    timer5_->start();
}

void IndexWindow::command19Click()
{
    forms().show(QStringLiteral("colores"));
}

void IndexWindow::command14Click()
{
    const QString formula = findChild<QLineEdit *>(QStringLiteral("Text2"))->text();
    const auto &bench = launcherHooks().formulaBench;
    findChild<QLineEdit *>(QStringLiteral("Text3"))->setText(bench ? bench(formula) : QString());
}

void IndexWindow::label1Click()
{
    forms().show(QStringLiteral("acercade"));
}

void IndexWindow::label6Click()
{
    services().dialogs->msgBox(listaDeCambios(), 0, QString());
}

void IndexWindow::timer5Timer()
{
    timer5_->stop();
    unloadMe();
}

void IndexWindow::timer6Timer()
{
    int width = twipsPerPixelX() * this->width();
    int height = twipsPerPixelY() * this->height();
    if (!pasoEncoger(width, height)) {
        timer6_->stop();
        services().desktop->endProgram(0);
        return;
    }
    resize(twipsToPixelsX(width), twipsToPixelsY(height));
}

void IndexWindow::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    QLinearGradient sky(0, 0, 0, height());
    sky.setColorAt(0, QColor(0x0B, 0x2A, 0x4A));
    sky.setColorAt(1, QColor(0x05, 0x12, 0x22));
    painter.fillRect(rect(), sky);
    painter.setPen(QColor(0x5B, 0x8F, 0xC7));
    painter.drawLine(px(28, 96, 694, 1).topLeft(), px(28, 96, 694, 1).topRight());
}

void IndexWindow::mouseMoveEvent(QMouseEvent *event)
{
    formMouseMove();
    Form::mouseMoveEvent(event);
}

} // namespace zafro
