#include "maths/prestamo_window.h"

#include "platform/dialogs.h"
#include "platform/services.h"
#include "runtime/convert.h"
#include "shell/language.h"
#include "shell/toolframe.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace zafro {

namespace {

constexpr int kEstiloStop = 16;

QLabel *etiqueta(QWidget *parent, const char *name, int top)
{
    return place(new QLabel(parent), name, 240, top + 30, 2400, 300);
}

QLineEdit *campo(QWidget *parent, const char *name, int top)
{
    auto *box = place(new QLineEdit(parent), name, 2760, top, 2400, 375);
    setBold(box, 10);
    box->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return box;
}

} // namespace

PrestamoWindow::PrestamoWindow()
    : label5_(place(new QLabel(this), "Label5", 120, 120, 5160, 540)),
      label1_(etiqueta(this, "Label1", 900)), label2_(etiqueta(this, "Label2", 1440)),
      label3_(etiqueta(this, "Label3", 1980)), label4_(etiqueta(this, "Label4", 3120)),
      capital_(campo(this, "Capital", 900)),
      interesesGenerados_(campo(this, "InteresesGenerados", 1440)),
      meses_(campo(this, "Meses", 1980)), apagar_(campo(this, "Apagar", 3120)),
      calCularDatos_(place(new QPushButton(this), "CalCularDatos", 2760, 2520, 2400, 435)),
      command1_(place(new QPushButton(this), "Command1", 240, 3780, 1560, 435)),
      command2_(place(new QPushButton(this), "Command2", 3600, 3780, 1560, 435))
{
    setWindowTitle(QStringLiteral("Zafro Suite"));
    resizeTwips(5400, 4440);
    label5_->setAlignment(Qt::AlignCenter);
    setBold(label5_, 14);
    setBold(label4_, 10);
    apagar_->setReadOnly(true);
    for (QLineEdit *box : {capital_, interesesGenerados_, meses_})
        box->installEventFilter(this);
    setTabOrder(capital_, interesesGenerados_);
    setTabOrder(interesesGenerados_, meses_);
    setTabOrder(meses_, calCularDatos_);
    setTabOrder(calCularDatos_, apagar_);
    setTabOrder(apagar_, command1_);
    setTabOrder(command1_, command2_);
    connect(calCularDatos_, &QPushButton::clicked, this, &PrestamoWindow::calCularDatosClick);
    centreOnScreen();
}

void PrestamoWindow::formLoad()
{
    frame_ = new ToolFrame(this);
    frame_->paint();
    label5_->setText(texto(slot::PrestamoTitulo));
    label1_->setText(texto(slot::PrestamoCantidad));
    label2_->setText(texto(slot::PrestamoInteres));
    label3_->setText(texto(slot::PrestamoMeses));
    label4_->setText(texto(slot::PrestamoAPagar));
    calCularDatos_->setText(texto(slot::PrestamoCalcular));
    command1_->setText(texto(slot::AcercaDe));
    command2_->setText(texto(slot::Cerrar));
    frame_->connectAbout(command1_);
    frame_->connectClose(command2_);
}

float PrestamoWindow::calcularCuota()
{
    if (datos_.numeroMeses == 0) {
        services().dialogs->msgBox(texto(slot::PrestamoMesesCero), kEstiloStop,
                                   QStringLiteral("Error"));
        return -1;
    }
    return zafro::cuotaMensual(datos_);
}

void PrestamoWindow::calCularDatosClick()
{
    datos_ = leerPrestamo(capital_->text(), interesesGenerados_->text(), meses_->text());
    const float cuota = calcularCuota();
    if (cuota < 0) {
        meses_->setFocus();
        return;
    }
    apagar_->setText(cuotaMostrada(cuota));
    cuotaMensual_ = CSng(apagar_->text());
}

bool PrestamoWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return Form::eventFilter(watched, event);
    const auto *key = static_cast<QKeyEvent *>(event);
    if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
        if (watched == capital_)
            interesesGenerados_->setFocus();
        else if (watched == interesesGenerados_)
            meses_->setFocus();
        else
            calCularDatos_->setFocus();
        return true;
    }
    if (key->key() == Qt::Key_Backspace || key->key() == Qt::Key_Delete)
        return false;
    const QString typed = key->text();
    // Keys that type nothing (arrows, Tab, Delete) never reach a key-press step.
    if (typed.size() != 1 || key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab)
        return false;
    return !teclaPrestamo(typed.at(0).unicode());
}

} // namespace zafro
