#include "identifiers/visas_window.h"

#include "identifiers/visas.h"
#include "platform/dialogs.h"
#include "platform/services.h"
#include "runtime/convert.h"
#include "shell/clicks.h"
#include "shell/language.h"
#include "shell/toolframe.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace zafro {

namespace {

const QString kTituloAdvertencia = QStringLiteral("WARNING!!");

} // namespace

VisasWindow::VisasWindow()
    : label1_(place(new QLabel(this), "Label1", 120, 120, 6960, 540)),
      label7_(place(new QLabel(this), "Label7", 240, 780, 6720, 360)),
      label9_(place(new QLabel(this), "Label9", 240, 3600, 6720, 360)),
      label2_(place(new QLabel(this), "Label2", 240, 1200, 3000, 300)),
      label3_(place(new QLabel(this), "Label3", 3360, 1200, 1740, 300)),
      label4_(place(new QLabel(this), "Label4", 5220, 1530, 1860, 300)),
      combo1_(place(new QComboBox(this), "Combo1", 240, 1500, 2400, 345)),
      text3_(place(new QLineEdit(this), "Text3", 2760, 1500, 480, 345)),
      text4_(place(new QLineEdit(this), "Text4", 3360, 1500, 720, 345)),
      command3_(place(new QPushButton(this), "Command3", 4200, 1470, 900, 405)),
      check1_(place(new QCheckBox(this), "Check1", 240, 2100, 4800, 300)),
      command1_(place(new QPushButton(this), "Command1", 5220, 2040, 1740, 435)),
      text1_(place(new QLineEdit(this), "Text1", 240, 3060, 6720, 375)),
      command4_(place(new QPushButton(this), "Command4", 5580, 3990, 1380, 435)),
      label13_(place(new QLabel(this), "Label13", 240, 4560, 2160, 360)),
      label88_(place(new QLabel(this), "Label88", 2400, 4560, 4560, 360)),
      command2_(place(new QPushButton(this), "Command2", 5400, 5160, 1560, 435)),
      command7_(place(new QPushButton(this), "Command7", 240, 5160, 1560, 435))
{
    setWindowTitle(QStringLiteral("Zafro Suite"));
    resizeTwips(7200, 5880);
    label1_->setAlignment(Qt::AlignCenter);
    setBold(label1_, 14);
    for (QLabel *heading : {label7_, label9_, label13_})
        setBold(heading, 11);
    for (int i = 0; i < 4; ++i) {
        const QString n = QString::number(i + 1);
        res_[i] =
            place(new QLabel(this), QStringLiteral("res") + n, 240 + i * 1260, 2580, 1080, 375);
        res_[i]->setAlignment(Qt::AlignCenter);
        res_[i]->setFrameShape(QFrame::Box);
        setBold(res_[i], 11);
        grupos_[i] = place(new QLineEdit(this), QStringLiteral("Text") + QChar(u'a' + i),
                           240 + i * 1320, 4020, 1200, 375);
        grupos_[i]->setAlignment(Qt::AlignCenter);
        setBold(grupos_[i], 10);
    }
    for (QLineEdit *box : {text3_, text4_, text1_})
        setBold(box, 10);
    text1_->setAlignment(Qt::AlignCenter);
    text3_->setAlignment(Qt::AlignCenter);
    text4_->setAlignment(Qt::AlignCenter);
    text4_->setMaxLength(3);
    combo1_->addItems({QStringLiteral("3 - American Express"), QStringLiteral("4 - Visa"),
                       QStringLiteral("5 - Master Card"), QStringLiteral("6 - Discover!")});
    combo1_->setCurrentIndex(1);
    text3_->setText(QStringLiteral("4"));
    text4_->setText(QStringLiteral("013"));
    check1_->setChecked(true);
    command3_->setText(QStringLiteral("Auto"));
    label1_->setText(QStringLiteral("Tarjetas de crédito"));
    text4_->installEventFilter(this);
    setTabOrder(combo1_, text3_);
    setTabOrder(text3_, text4_);
    setTabOrder(text4_, command3_);
    setTabOrder(command3_, check1_);
    setTabOrder(check1_, command1_);
    setTabOrder(command1_, text1_);
    setTabOrder(text1_, grupos_[0]);
    for (int i = 0; i < 3; ++i)
        setTabOrder(grupos_[i], grupos_[i + 1]);
    setTabOrder(grupos_[3], command4_);
    setTabOrder(command4_, command7_);
    setTabOrder(command7_, command2_);
    connect(combo1_, &QComboBox::activated, this, &VisasWindow::combo1Click);
    connect(command1_, &QPushButton::clicked, this, &VisasWindow::command1Click);
    connect(command3_, &QPushButton::clicked, this, &VisasWindow::command3Click);
    connect(command4_, &QPushButton::clicked, this, &VisasWindow::command4Click);
    centreOnScreen();
}

void VisasWindow::formLoad()
{
    frame_ = new ToolFrame(this);
    frame_->paint();
    label7_->setText(texto(slot::Generador));
    label2_->setText(texto(slot::Tarjeta));
    label3_->setText(texto(slot::Banco));
    label4_->setText(texto(slot::AlAzar3Num));
    label9_->setText(texto(slot::ComprobarTarjeta));
    command1_->setText(texto(slot::Generar));
    check1_->setText(texto(slot::MostrarAdvertencia));
    text1_->setText(texto(slot::TarjetaResultado));
    command4_->setText(texto(slot::TarjetaComprobar));
    command2_->setText(texto(slot::Cerrar));
    command7_->setText(texto(slot::AcercaDe));
    frame_->connectClose(command2_);
    frame_->connectAbout(command7_);
}

void VisasWindow::command1Click()
{
    const DigitosTarjeta d =
        generarTarjeta(*services().random, Val(text3_->text()), text4_->text());
    if (check1_->isChecked())
        services().dialogs->msgBox(texto(slot::AdvertenciaTarjetas), 0, kTituloAdvertencia);
    const QStringList grupos = gruposTarjeta(d);
    for (int i = 0; i < 4; ++i)
        res_[i]->setText(grupos[i]);
    text1_->setText(grupos.join(QLatin1Char('-')));
    check1_->setChecked(false);
}

void VisasWindow::command3Click()
{
    text4_->setText(bancoAlAzar(*services().random));
}

void VisasWindow::command4Click()
{
    QStringList grupos;
    for (QLineEdit *box : grupos_)
        grupos << box->text();
    const DigitosTarjeta d = leerGrupos(grupos);
    if (!sumaValida(sumaControl(d))) {
        label13_->setText(texto(slot::Invalida));
        return;
    }
    label13_->setText(texto(slot::Valida));
    const int mensaje = mensajeDeTipo(d[0]);
    label88_->setText(mensaje ? texto(mensaje) : QString());
}

void VisasWindow::combo1Click()
{
    text3_->setText(digitoDeTipo(combo1_->currentText()));
}

void VisasWindow::text4Click()
{
    text4_->clear();
}

bool VisasWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == text4_ && isBoxClick(event))
        text4Click();
    return Form::eventFilter(watched, event);
}

} // namespace zafro
