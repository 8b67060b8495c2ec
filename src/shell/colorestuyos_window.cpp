#include "shell/colorestuyos_window.h"

#include "platform/services.h"
#include "runtime/convert.h"
#include "shell/controls.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/settings.h"
#include "shell/skin_sample.h"
#include "shell/skins.h"
#include "shell/toolframe.h"

#include <QCheckBox>
#include <QFrame>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

namespace zafro {

namespace {

struct GroupNames {
    const char *bar;    // Fondob1..3
    const char *box;    // Fondot1..3
    const char *swatch; // fondoo
    const char *stored; // Fon in Fonrojo
    int captionSlot;
};
constexpr std::array<GroupNames, 4> kGroups{{
    {"Fondob", "Fondot", "fondoo", "Fon", slot::SkinGrupoFondo},
    {"Textob", "Textot", "textoo", "Txt", slot::SkinGrupoTexto},
    {"Titulob", "Titulot", "tituloo", "Tit", slot::SkinGrupoTitulo},
    {"Botonb", "Botont", "botono", "Bot", slot::SkinGrupoBotones},
}};
constexpr std::array<const char *, 3> kChannels{"rojo", "verde", "azul"};
constexpr std::array<int, 3> kChannelSlots{slot::SkinRojos, slot::SkinVerdes, slot::SkinAzules};

} // namespace

ColorestuyosWindow::ColorestuyosWindow()
    : shape4_(new QFrame(this)), labelejem1_(new QLabel(this)), labelejem2_(new QLabel(this)),
      commandejem_(new QPushButton(this)), command1_(new QPushButton(this)),
      command3_(new QPushButton(this)), command4_(new QPushButton(this)),
      check1_(new QCheckBox(this))
{
    resizeTwips(9000, 6720);
    for (int g = 0; g < 4; ++g) {
        const GroupNames &names = kGroups[std::size_t(g)];
        const int top = 1200 + g * 1140;
        auto *caption = new QLabel(this);
        place(caption, QStringLiteral("LabelGrupo%1").arg(g + 1), 240, top, 900, 300);
        caption->setProperty("slot", names.captionSlot);
        QFont bold = caption->font();
        bold.setBold(true);
        caption->setFont(bold);
        for (int c = 0; c < 3; ++c) {
            auto *channel = new QLabel(this);
            place(channel, QStringLiteral("LabelCanal%1%2").arg(g + 1).arg(c + 1), 1080,
                  top + c * 330 - 20, 700, 300);
            channel->setProperty("slot", kChannelSlots[std::size_t(c)]);
            auto *bar = new QScrollBar(Qt::Horizontal, this);
            bar->setRange(0, 255);
            place(bar, QLatin1String(names.bar) + QString::number(c + 1), 1800, top + c * 330, 2700,
                  255);
            auto *box = new QLineEdit(this);
            place(box, QLatin1String(names.box) + QString::number(c + 1), 4620, top + c * 330 - 20,
                  720, 300);
            filterNumericKeys(box);
            bars_[std::size_t(g)][std::size_t(c)] = bar;
            boxes_[std::size_t(g)][std::size_t(c)] = box;
            const auto group = Group(g);
            connect(bar, &QScrollBar::valueChanged, this,
                    [this, group, c] { scrollChange(group, c); });
            connect(box, &QLineEdit::textChanged, this, [this, group, c] { textChange(group, c); });
        }
        auto *swatch = new ClickLabel(this, QLatin1String(names.swatch));
        place(swatch, QLatin1String(names.swatch), 5520, top, 600, 900);
        swatch->setFrameShape(QFrame::Box);
        connect(swatch, &ClickLabel::clicked, this, &ColorestuyosWindow::swatchClick);
        swatches_[std::size_t(g)] = swatch;
    }
    place(shape4_, QStringLiteral("Shape4"), 6420, 1200, 2340, 1500);
    shape4_->setFrameShape(QFrame::Box);
    place(labelejem1_, QStringLiteral("Labelejem1"), 6600, 1320, 2000, 300);
    place(labelejem2_, QStringLiteral("Labelejem2"), 6600, 1740, 2000, 300);
    place(commandejem_, QStringLiteral("Commandejem"), 6600, 2160, 1400, 375);
    place(check1_, QStringLiteral("Check1"), 6420, 3000, 2400, 300);
    check1_->setText(QStringLiteral("Botones gráficos de XP"));
    check1_->setToolTip(QStringLiteral("Próximamente"));
    place(command1_, QStringLiteral("Command1"), 7260, 6060, 1500, 420);
    place(command3_, QStringLiteral("Command3"), 5580, 6060, 1500, 420);
    place(command4_, QStringLiteral("Command4"), 240, 6060, 1500, 420);
    auto *label20 = new QLabel(this);
    place(label20, QStringLiteral("Label20"), 240, 5580, 6000, 300);
    auto *label1 = new QLabel(this);
    place(label1, QStringLiteral("Label1"), 240, 240, 8500, 900);
    label1->setWordWrap(true);
    connect(command1_, &QPushButton::clicked, this, &ColorestuyosWindow::command1Click);
    connect(command3_, &QPushButton::clicked, this, &ColorestuyosWindow::command3Click);
    connect(command4_, &QPushButton::clicked, this, &ColorestuyosWindow::command4Click);
    connect(commandejem_, &QPushButton::clicked, this, &ColorestuyosWindow::commandejemClick);
    centreOnScreen();
}

void ColorestuyosWindow::formLoad()
{
    const QString key = QString::fromUtf16(kIntegroKey);
    for (std::size_t g = 0; g < 4; ++g)
        for (std::size_t c = 0; c < 3; ++c)
            fields_[g][c] = int(Val(
                readConfig(QLatin1String(kGroups[g].stored) + QLatin1String(kChannels[c]), key)));
    for (std::size_t g = 0; g < 4; ++g) {
        paintGroup(Group(g));
        for (std::size_t c = 0; c < 3; ++c) {
            const QSignalBlocker quiet(bars_[g][c]);
            bars_[g][c]->setValue(fields_[g][c]);
            const QSignalBlocker quietBox(boxes_[g][c]);
            boxes_[g][c]->setText(QString::number(fields_[g][c]));
        }
    }
    // kept: slot 93, which the English table never fills.
    setWindowTitle(texto(slot::SkinPropiaTitulo));
    for (QLabel *caption : findChildren<QLabel *>())
        if (caption->property("slot").isValid())
            caption->setText(texto(caption->property("slot").toInt()));
    findChild<QLabel *>(QStringLiteral("Label1"))->setText(texto(slot::SkinPropiaIntro));
    findChild<QLabel *>(QStringLiteral("Label20"))->setText(texto(slot::ValoresEntre0y255));
    labelejem1_->setText(texto(slot::SkinGrupoTitulo));
    labelejem2_->setText(texto(slot::SkinGrupoTexto));
    commandejem_->setText(texto(slot::SkinBoton));
    command1_->setText(texto(slot::SkinGuardar));
    command3_->setText(texto(slot::SkinExplicacion));
    command4_->setText(texto(slot::SkinVolver));
}

void ColorestuyosWindow::paintGroup(Group group)
{
    const auto &f = fields_[group];
    const QColor colour = colourFromNumber(numberFromRgb(f[0], f[1], f[2]));
    switch (group) {
    case Fondo:
        paintBackground(shape4_, colour);
        break;
    case Texto:
        paintText(labelejem2_, colour);
        break;
    case Titulo:
        paintText(labelejem1_, colour);
        break;
    case Boton:
        paintButton(commandejem_, colour);
        break;
    }
    paintBackground(swatches_[group], colour);
}

void ColorestuyosWindow::scrollChange(Group group, int channel)
{
    const int value = bars_[group][std::size_t(channel)]->value();
    fields_[group][std::size_t(channel)] = value;
    QLineEdit *box = boxes_[group][std::size_t(channel)];
    if (box->text() != QString::number(value))
        box->setText(QString::number(value));
    paintGroup(group);
}

void ColorestuyosWindow::textChange(Group group, int channel)
{
    const double value = Val(boxes_[group][std::size_t(channel)]->text());
    if (value > 255) {
        // kept: this message stays Spanish in every language.
        services().dialogs->msgBox(QStringLiteral("No puedes poner valores superiores a 255"), 0,
                                   QStringLiteral("Fallo !"));
        return;
    }
    fields_[group][std::size_t(channel)] = int(value);
    bars_[group][std::size_t(channel)]->setValue(int(value));
    paintGroup(group);
}

void ColorestuyosWindow::command1Click()
{
    const auto colour = [this](Group g) {
        return QString::number(numberFromRgb(fields_[g][0], fields_[g][1], fields_[g][2]));
    };
    const QString colores = QString::fromUtf16(kColoresKey);
    writeConfig(QStringLiteral("BackColor"), colour(Fondo), colores);
    writeConfig(QStringLiteral("ForeColor"), colour(Texto), colores);
    writeConfig(QStringLiteral("TituloForeColor"), colour(Titulo), colores);
    writeConfig(QStringLiteral("CommandBackColor"), colour(Boton), colores);
    writeConfig(QStringLiteral("Tipo"), QStringLiteral("55"), colores);
    const QString integro = QString::fromUtf16(kIntegroKey);
    for (std::size_t g = 0; g < 4; ++g)
        for (std::size_t c = 0; c < 3; ++c)
            writeConfig(QLatin1String(kGroups[g].stored) + QLatin1String(kChannels[c]),
                        QString::number(fields_[g][c]), integro);
    if (QWidget *nuevos = forms().find(QStringLiteral("nuevos")))
        nuevos->hide();
    if (readConfigNumber(QStringLiteral("Visitado")) < 1)
        writeConfig(QStringLiteral("Visitado"), QStringLiteral("1"));
    unloadMe();
    forms().show(QStringLiteral("index"));
    forms().unload(QStringLiteral("colores"));
}

void ColorestuyosWindow::command3Click()
{
    services().dialogs->msgBox(texto(slot::SkinExplicacionColores), 0,
                               QStringLiteral("Explicación"));
}

void ColorestuyosWindow::command4Click()
{
    forms().unload(QStringLiteral("colores"));
    unloadMe();
    if (readConfigNumber(QStringLiteral("Inicio")) == 2)
        forms().show(QStringLiteral("index"));
}

void ColorestuyosWindow::swatchClick()
{
    services().dialogs->msgBox(QStringLiteral("Esto es una muestra de color!"), 0,
                               QStringLiteral("Muestra"));
}

void ColorestuyosWindow::commandejemClick()
{
    services().dialogs->msgBox(texto(slot::SoloUnEjemplo), 0, texto(slot::Ejemplo));
}

} // namespace zafro
