#include "shell/colores_window.h"

#include "platform/services.h"
#include "runtime/convert.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/settings.h"
#include "shell/skin_sample.h"
#include "shell/skins.h"
#include "shell/window_shape.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace zafro {

namespace {

QPushButton *button(QWidget *parent, const QString &name, QRect twips)
{
    auto *b = new QPushButton(parent);
    b->setObjectName(name);
    b->setGeometry(twipsRect(twips.x(), twips.y(), twips.width(), twips.height()));
    return b;
}

QLabel *label(QWidget *parent, const QString &name, QRect twips)
{
    auto *l = new QLabel(parent);
    l->setObjectName(name);
    l->setWordWrap(true);
    l->setGeometry(twipsRect(twips.x(), twips.y(), twips.width(), twips.height()));
    return l;
}

QString integro(const char *name)
{
    return readConfig(QLatin1String(name), QString::fromUtf16(kIntegroKey));
}

} // namespace

ColoresWindow::ColoresWindow()
    : shape10_(new QFrame(this)),
      labelejem1_(label(this, QStringLiteral("Labelejem1"), {5160, 4560, 2400, 300})),
      labelejem2_(label(this, QStringLiteral("Labelejem2"), {5160, 4920, 2400, 300})),
      commandejem_(button(this, QStringLiteral("Commandejem"), {5160, 5340, 1500, 375})),
      label1_(label(this, QStringLiteral("Label1"), {600, 720, 7000, 900})),
      label2_(label(this, QStringLiteral("Label2"), {600, 1680, 4200, 300})),
      command12_(button(this, QStringLiteral("Command12"), {5880, 6000, 1500, 420})),
      command4_(button(this, QStringLiteral("Command4"), {4200, 6000, 1500, 420})),
      command5_(button(this, QStringLiteral("Command5"), {600, 6000, 1500, 420}))
{
    resizeTwips(8100, 6960);
    // Palettes rather than a style sheet: the sample's parts take their colours from
    // the palette, and a style sheet on the window would repolish them away.
    paintBackground(this, QColor(0x20, 0x28, 0x33));
    for (QLabel *text : {label1_, label2_})
        paintText(text, QColor(0xE8, 0xEE, 0xF5));
    QFont bold = label2_->font();
    bold.setBold(true);
    label2_->setFont(bold);
    shape10_->setObjectName(QStringLiteral("Shape10"));
    shape10_->setFrameShape(QFrame::Box);
    shape10_->setGeometry(twipsRect(4920, 4320, 2880, 1440));
    shape10_->lower();

    for (const BuiltInSkin &skin : builtInSkins()) {
        const int i = skin.tipo - 1;
        auto *option = new QRadioButton(QString::fromUtf16(skin.name), this);
        option->setObjectName(QStringLiteral("Option%1").arg(skin.tipo));
        paintText(option, QColor(0xE8, 0xEE, 0xF5));
        option->setGeometry(twipsRect(600 + (i / 5) * 2400, 2100 + (i % 5) * 420, 2300, 360));
        connect(option, &QRadioButton::clicked, this,
                [this, tipo = skin.tipo] { optionClick(tipo); });
        options_[std::size_t(i)] = option;
    }
    connect(command12_, &QPushButton::clicked, this, &ColoresWindow::command12Click);
    connect(command4_, &QPushButton::clicked, this, &ColoresWindow::command4Click);
    connect(command5_, &QPushButton::clicked, this, &ColoresWindow::command5Click);
    connect(commandejem_, &QPushButton::clicked, this, &ColoresWindow::commandejemClick);
    centreOnScreen();
}

void ColoresWindow::formLoad()
{
    applyWindowShape(this, objectName());
    setWindowTitle(texto(slot::SkinTitulo));
    label1_->setText(texto(slot::SkinAyuda));
    label2_->setText(texto(slot::SkinEscoge));
    command5_->setText(texto(slot::SkinCrear));
    command4_->setText(texto(slot::SkinVolver));
    command12_->setText(texto(slot::Aplicar));
    labelejem1_->setText(texto(slot::SkinGrupoTitulo));
    labelejem2_->setText(texto(slot::SkinGrupoTexto));
    commandejem_->setText(texto(slot::SkinBoton));

    nigunoClick();
    const double tipo = readConfigNumber(QStringLiteral("Tipo"), QString::fromUtf16(kColoresKey));
    if (tipo >= 1 && tipo <= 9 && tipo == int(tipo)) {
        options_[std::size_t(tipo) - 1]->setChecked(true);
        optionClick(int(tipo));
        guardarSkin(int(tipo));
    } else if (tipo == 55) {
        const auto rgb = [](const char *r, const char *g, const char *b) {
            return QColor::fromRgb(int(Val(integro(r))) & 0xFF, int(Val(integro(g))) & 0xFF,
                                   int(Val(integro(b))) & 0xFF);
        };
        paintSample(rgb("Fonrojo", "Fonverde", "Fonazul"), rgb("Titrojo", "Titverde", "Titazul"),
                    rgb("Txtrojo", "Txtverde", "Txtazul"), rgb("Botrojo", "Botverde", "Botazul"));
    } else {
        // The default skin, and the first run's: "Dark 2".
        options_[6]->setChecked(true);
        optionClick(7);
        command9Click();
    }
}

void ColoresWindow::command1Click()
{
    guardarSkin(1);
}
void ColoresWindow::command2Click()
{
    guardarSkin(2);
}
void ColoresWindow::command3Click()
{
    guardarSkin(3);
}
void ColoresWindow::command8Click()
{
    guardarSkin(4);
}
void ColoresWindow::command7Click()
{
    guardarSkin(5);
}
void ColoresWindow::command6Click()
{
    guardarSkin(6);
}
void ColoresWindow::command9Click()
{
    guardarSkin(7);
}
void ColoresWindow::command10Click()
{
    guardarSkin(8);
}
void ColoresWindow::command11Click()
{
    guardarSkin(9);
}

void ColoresWindow::nigunoClick()
{
    for (QRadioButton *option : options_) {
        option->setAutoExclusive(false);
        option->setChecked(false);
        option->setAutoExclusive(true);
    }
}

void ColoresWindow::optionClick(int tipo)
{
    const BuiltInSkin *skin = builtInSkin(tipo);
    paintSample(colourFromNumber(skin->backColor), colourFromNumber(skin->tituloForeColor),
                colourFromNumber(skin->foreColor), colourFromNumber(skin->commandBackColor));
}

void ColoresWindow::paintSample(const QColor &back, const QColor &title, const QColor &text,
                                const QColor &buttonColour)
{
    paintBackground(shape10_, back);
    paintText(labelejem1_, title);
    paintText(labelejem2_, text);
    paintButton(commandejem_, buttonColour);
}

void ColoresWindow::command12Click()
{
    for (const BuiltInSkin &skin : builtInSkins())
        if (options_[std::size_t(skin.tipo - 1)]->isChecked())
            guardarSkin(skin.tipo);
    forms().show(QStringLiteral("index"));
    hide();
    if (QWidget *nuevos = forms().find(QStringLiteral("nuevos")))
        nuevos->hide();
}

void ColoresWindow::command4Click()
{
    unloadMe();
}

void ColoresWindow::command5Click()
{
    forms().show(QStringLiteral("colorestuyos"));
}

void ColoresWindow::commandejemClick()
{
    services().dialogs->msgBox(texto(slot::SoloUnEjemplo), 0, texto(slot::Ejemplo));
}

} // namespace zafro
