#include "online/divisas_window.h"

#include "platform/services.h"
#include "runtime/convert.h"
#include "shell/controls.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/settings.h"
#include "shell/toolframe.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QTimer>

namespace zafro {

namespace {

const QString kDivisas = QString::fromUtf16(kDivisasKey);

} // namespace

DivisasWindow::DivisasWindow()
    : label3_(place(new QLabel(this), "Label3", 120, 120, 6360, 480)),
      label1_(place(new QLabel(this), "Label1", 240, 780, 900, 300)),
      text1_(place(new QLineEdit(this), "Text1", 1140, 740, 1560, 360)),
      combo1_(place(new QComboBox(this), "Combo1", 2820, 740, 3540, 360)),
      label4_(place(new QLabel(this), "Label4", 2340, 1240, 360, 300)),
      combo2_(place(new QComboBox(this), "Combo2", 2820, 1200, 3540, 360)),
      check1_(place(new QCheckBox(this), "Check1", 240, 1680, 2520, 360)),
      command4_(
          place(new QPushButton(QStringLiteral("?"), this), "Command4", 6060, 1680, 300, 360)),
      text3_(place(new QLineEdit(this), "Text3", 2820, 1680, 1560, 360)),
      text4_(place(new QLineEdit(this), "Text4", 4500, 1680, 1500, 360)),
      command3_(place(new QPushButton(this), "Command3", 2340, 2220, 1920, 420)),
      label6_(place(new QLabel(this), "Label6", 240, 2760, 6120, 480)),
      label5_(place(new QLabel(this), "Label5", 240, 3300, 6120, 660)),
      label2_(place(new ClickLabel(this), "Label2", 240, 4020, 6120, 300)),
      command1_(place(new QPushButton(this), "Command1", 240, 4440, 2160, 420)),
      command7_(place(new QPushButton(this), "Command7", 2520, 4440, 1800, 420)),
      command2_(place(new QPushButton(this), "Command2", 4440, 4440, 1920, 420)),
      timer2_(makeTimer(this, QStringLiteral("Timer2"), 100, false, [this] { timer2Timer(); }))
{
    setWindowTitle(QStringLiteral("Zafro Suite"));
    resizeTwips(6600, 5100);
    label3_->setAlignment(Qt::AlignCenter);
    setBold(label3_, 14);
    label4_->setAlignment(Qt::AlignCenter);
    label6_->setAlignment(Qt::AlignCenter);
    setBold(label6_, 11);
    label6_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label5_->setWordWrap(true);
    label5_->setAlignment(Qt::AlignCenter);
    QFont small = label5_->font();
    small.setPointSize(8);
    label5_->setFont(small);
    label2_->setAlignment(Qt::AlignCenter);
    label2_->setCursor(Qt::PointingHandCursor);
    QFont link = label2_->font();
    link.setUnderline(true);
    label2_->setFont(link);
    for (QWidget *w : {static_cast<QWidget *>(text3_), static_cast<QWidget *>(text4_),
                       static_cast<QWidget *>(command4_)})
        w->hide();

    connect(command1_, &QPushButton::clicked, this, &DivisasWindow::command1Click);
    connect(command3_, &QPushButton::clicked, this, &DivisasWindow::command3Click);
    connect(command4_, &QPushButton::clicked, this, &DivisasWindow::command4Click);
    connect(check1_, &QCheckBox::clicked, this, &DivisasWindow::check1Click);
    connect(combo1_, &QComboBox::activated, this, &DivisasWindow::combo1Click);
    connect(combo2_, &QComboBox::activated, this, &DivisasWindow::combo2Click);
    connect(label2_, &ClickLabel::clicked, this, &DivisasWindow::label2Click);
    centreOnScreen();
}

void DivisasWindow::formLoad()
{
    frame_ = new ToolFrame(this);
    frame_->paint();
    label3_->setText(texto(slot::DivisasTitulo));
    label1_->setText(texto(slot::Pasar));
    label4_->setText(texto(slot::DivisasA));
    check1_->setText(texto(slot::DatosManualmente));
    command3_->setText(texto(slot::DivisasCalcular));
    command1_->setText(texto(slot::ActualizarValores));
    command2_->setText(texto(slot::Cerrar));
    command7_->setText(texto(slot::AcercaDe));
    label6_->setText(texto(slot::DivisasResultado));
    label5_->setText(texto(slot::ErroresDivisas));
    label2_->setText(texto(slot::DatosBancoCentral));
    frame_->connectClose(command2_);
    frame_->connectAbout(command7_);

    if (readConfigNumber(QStringLiteral("Entrado"), kDivisas) == 0) {
        timer2_->start(); // first use: off to the update window
        return;
    }
    fecha_ = readConfig(QStringLiteral("Fecha"), kDivisas);
    for (int i = 1; i < kNumeroMonedas; ++i)
        tasas_[static_cast<size_t>(i)] =
            readConfig(QLatin1String(monedas()[static_cast<size_t>(i)].codigo), kDivisas);
    for (int i = 0; i < kNumeroMonedas; ++i) {
        combo1_->addItem(nombreMoneda(i));
        combo2_->addItem(nombreMoneda(i));
    }
    // Neither list starts on a currency: Calculate refuses until both are chosen.
    combo1_->setCurrentIndex(-1);
    combo2_->setCurrentIndex(-1);
}

void DivisasWindow::formUnload()
{
    timer2_->stop();
}

QString DivisasWindow::tasaDe(int index) const
{
    // The stored text as it is; a control shows it up to the store's NUL.
    return index == 0 ? QStringLiteral("1") : hastaNulo(tasas_[static_cast<size_t>(index)]);
}

void DivisasWindow::combo1Click()
{
    if (combo1_->currentIndex() >= 0)
        text3_->setText(tasaDe(combo1_->currentIndex()));
}

void DivisasWindow::combo2Click()
{
    if (combo2_->currentIndex() >= 0)
        text4_->setText(tasaDe(combo2_->currentIndex()));
}

void DivisasWindow::check1Click()
{
    const bool manual = check1_->isChecked();
    text3_->setVisible(manual);
    text4_->setVisible(manual);
    command4_->setVisible(manual);
    if (manual)
        return;
    if (Val(text3_->text()) == 0)
        text3_->setText(QStringLiteral("1"));
    if (Val(text4_->text()) == 0)
        text4_->setText(QStringLiteral("1"));
}

void DivisasWindow::command4Click()
{
    services().dialogs->msgBox(texto(slot::DatosManualmenteAyuda), 0, texto(slot::DivisasAyuda));
}

void DivisasWindow::command3Click()
{
    const std::optional<double> valor =
        convertirDivisa(text1_->text(), text3_->text(), text4_->text());
    if (!valor) {
        services().dialogs->msgBox(texto(slot::DatosNulos), 0, QString());
        return;
    }
    label6_->setText(resultadoDivisa(text1_->text(), combo1_->currentText(), *valor,
                                     combo2_->currentText(), check1_->isChecked()));
}

void DivisasWindow::command1Click()
{
    forms().show(QStringLiteral("divisasact"));
    unloadMe();
}

void DivisasWindow::label2Click()
{
    services().desktop->openUrl(QString::fromUtf16(kPaginaBanco));
}

void DivisasWindow::formClick()
{
    if (Val(text1_->text()) != 0)
        return;
    text1_->clear();
    label6_->setText(texto(slot::DivisasResultado));
}

void DivisasWindow::timer2Timer()
{
    timer2_->stop();
    if (frame_ && frame_->timer())
        frame_->timer()->stop();
    unloadMe();
    services().dialogs->msgBox(texto(slot::NuncaEjecutado), 0, texto(slot::ActualizarValores));
    forms().show(QStringLiteral("divisasact"));
}

void DivisasWindow::mousePressEvent(QMouseEvent *event)
{
    Form::mousePressEvent(event);
    if (event->button() == Qt::LeftButton)
        formClick();
}

} // namespace zafro
