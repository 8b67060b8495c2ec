#include "shell/au_window.h"

#include "platform/services.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/product.h"
#include "shell/skin_sample.h"
#include "shell/window_shape.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

namespace zafro {

AuWindow::AuWindow()
    : label1_(new QLabel(this)), check1_(new QCheckBox(this)), command2_(new QPushButton(this)),
      command3_(new QPushButton(this))
{
    setWindowTitle(QString::fromUtf16(product::kName));
    resizeTwips(4800, 2250);
    paintBackground(this, QColor(0x12, 0x3A, 0x63));
    label1_->setObjectName(QStringLiteral("Label1"));
    check1_->setObjectName(QStringLiteral("Check1"));
    command2_->setObjectName(QStringLiteral("Command2"));
    command3_->setObjectName(QStringLiteral("Command3"));
    label1_->setWordWrap(true);
    label1_->setAlignment(Qt::AlignCenter);
    QFont bold = label1_->font();
    bold.setBold(true);
    label1_->setFont(bold);
    for (QWidget *text : std::initializer_list<QWidget *>{label1_, check1_})
        paintText(text, Qt::white);
    label1_->setGeometry(twipsRect(360, 300, 4020, 660));
    check1_->setGeometry(twipsRect(360, 1020, 4020, 300));
    command3_->setGeometry(twipsRect(600, 1440, 1560, 420));
    command2_->setGeometry(twipsRect(2520, 1440, 1560, 420));
    connect(command2_, &QPushButton::clicked, this, &AuWindow::command2Click);
    connect(command3_, &QPushButton::clicked, this, &AuWindow::command3Click);
    applyWindowShape(this, QStringLiteral("au"));
    centreOnScreen();
}

void AuWindow::formLoad()
{
    label1_->setText(texto(slot::GraciasPorUtilizar));
    check1_->setText(texto(slot::AlCerrarIrALaWeb));
    command2_->setText(texto(slot::Cerrar));
    command3_->setText(texto(slot::NoCerrar));
}

void AuWindow::command2Click()
{
    if (check1_->isChecked())
        services().desktop->openUrl(QString::fromUtf16(product::kMakerSite));
    services().desktop->endProgram(0);
}

void AuWindow::command3Click()
{
    forms().show(QStringLiteral("index"));
    unloadMe();
}

} // namespace zafro
