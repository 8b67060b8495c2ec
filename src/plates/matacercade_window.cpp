#include "plates/matacercade_window.h"

#include "plates/matriculas.h"
#include "platform/services.h"
#include "runtime/convert.h"
#include "shell/controls.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/product.h"

#include <QLabel>
#include <QPushButton>

namespace zafro {

MatacercadeWindow::MatacercadeWindow()
    : label1_(place(new QLabel(QStringLiteral("Zafro Matrículas"), this), "Label1", 240, 240, 5280,
                    480)),
      label2_(place(new QLabel(this), "Label2", 240, 840, 5280, 300)),
      label3_(place(new QLabel(this), "Label3", 240, 1200, 5280, 300)),
      label4_(place(new ClickLabel(this), "Label4", 240, 1680, 5280, 900)),
      label6_(place(new ClickLabel(this), "Label6", 240, 2700, 3600, 300)),
      command1_(place(new QPushButton(this), "Command1", 4080, 2640, 1440, 435))
{
    label6_->setText(QString::fromUtf16(product::kMakerSite));
    setMouseTracking(true);
    resizeTwips(5760, 3360);
    QFont font = label1_->font();
    font.setPointSize(14);
    font.setBold(true);
    label1_->setFont(font);
    label4_->setWordWrap(true);
    label4_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label6_->setCursor(Qt::PointingHandCursor);
    connect(command1_, &QPushButton::clicked, this, &MatacercadeWindow::command1Click);
    connect(label6_, &ClickLabel::clicked, this, &MatacercadeWindow::label6Click);
    connect(label6_, &ClickLabel::mouseMoved, this, &MatacercadeWindow::label6MouseMove);
    connect(label4_, &ClickLabel::mouseMoved, this, &MatacercadeWindow::label4MouseMove);
    centreOnScreen();
}

void MatacercadeWindow::formLoad()
{
    // Reaching the plates window's label loads that window if it is not there yet.
    QWidget *plates = forms().load(QStringLiteral("matriculasselect"));
    const auto *ls = plates ? plates->findChild<QLabel *>(QStringLiteral("ls")) : nullptr;
    // kept: the tool's own number under the launcher, the suite's when it runs alone.
    const QString version = ls && Val(ls->text()) == 1
                                ? QString::fromUtf16(matriculas::kVersionPropia)
                                : QStringLiteral("%1.%2.%3")
                                      .arg(ZAFRO_VERSION_MAJOR)
                                      .arg(ZAFRO_VERSION_MINOR)
                                      .arg(ZAFRO_VERSION_REVISION);
    label2_->setText(texto(slot::Version) + QStringLiteral(": ") + version);
    label3_->setText(texto(slot::UltimaActualizacion) + QStringLiteral(": ") +
                     matriculas::fechaDatos(matriculas::inglesCargado()));
    label4_->setText(texto(slot::AvisoLegalMatriculas));
    command1_->setText(texto(slot::MatriculasAceptar));
    setWindowTitle(texto(slot::AcercaDeMatriculas));
}

void MatacercadeWindow::command1Click()
{
    unloadMe();
}

void MatacercadeWindow::label6Click()
{
    services().desktop->openUrl(QString::fromUtf16(product::kMakerSite));
}

void MatacercadeWindow::resaltarLabel6(bool encima)
{
    QFont font = label6_->font();
    font.setUnderline(encima);
    label6_->setFont(font);
    QPalette palette = label6_->palette();
    palette.setColor(QPalette::WindowText, encima ? QColor(0, 0, 255) : QColor(Qt::black));
    label6_->setPalette(palette);
}

void MatacercadeWindow::label6MouseMove()
{
    resaltarLabel6(true);
}

void MatacercadeWindow::label4MouseMove()
{
    resaltarLabel6(false);
}

void MatacercadeWindow::formMouseMove()
{
    resaltarLabel6(false);
}

void MatacercadeWindow::mouseMoveEvent(QMouseEvent *event)
{
    Form::mouseMoveEvent(event);
    formMouseMove();
}

} // namespace zafro
