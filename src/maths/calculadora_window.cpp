#include "maths/calculadora_window.h"

#include "platform/dialogs.h"
#include "platform/services.h"
#include "runtime/convert.h"
#include "runtime/numtext.h"
#include "shell/clicks.h"
#include "shell/language.h"
#include "shell/toolframe.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace zafro {

namespace {

const QString kTexto2 = QStringLiteral("NUMº 1");
const QString kTexto3 = QStringLiteral("NUMº 2");

QPushButton *operationButton(QWidget *parent, const char *name, const char *caption, int left)
{
    auto *button =
        place(new QPushButton(QLatin1String(caption), parent), name, left, 1680, 840, 435);
    setBold(button, 12);
    return button;
}

} // namespace

CalculadoraWindow::CalculadoraWindow()
    : label1_(place(new QLabel(QStringLiteral("Nº1"), this), "Label1", 360, 780, 2040, 300)),
      label2_(place(new QLabel(QStringLiteral("Nº2"), this), "Label2", 3240, 780, 2040, 300)),
      label3_(place(new QLabel(this), "Label3", 120, 120, 5400, 540)),
      label9_(place(new QLabel(this), "Label9", 2400, 1080, 840, 375)),
      text2_(place(new QLineEdit(kTexto2, this), "Text2", 360, 1080, 2040, 375)),
      text3_(place(new QLineEdit(kTexto3, this), "Text3", 3240, 1080, 2040, 375)),
      text4_(place(new QLineEdit(this), "Text4", 360, 2340, 4920, 375)),
      command1_(place(new QPushButton(this), "Command1", 3600, 3600, 1680, 435)),
      command2_(place(new QPushButton(this), "Command2", 360, 3600, 1680, 435)),
      command3_(operationButton(this, "Command3", "+", 360)),
      command4_(operationButton(this, "Command4", "-", 1380)),
      command5_(operationButton(this, "Command5", "x", 2400)),
      command6_(operationButton(this, "Command6", "/", 3420)),
      command8_(operationButton(this, "Command8", "^", 4440)),
      conv1_(place(new QPushButton(QStringLiteral("Hex"), this), "Conv1", 360, 2940, 1440, 435)),
      conv2_(place(new QPushButton(QStringLiteral("Dec"), this), "Conv2", 2100, 2940, 1440, 435)),
      conv3_(place(new QPushButton(QStringLiteral("Bin"), this), "Conv3", 3840, 2940, 1440, 435))
{
    setWindowTitle(QStringLiteral("Zafro Suite"));
    resizeTwips(5640, 4320);
    label3_->setAlignment(Qt::AlignCenter);
    setBold(label3_, 14);
    label9_->setAlignment(Qt::AlignCenter);
    setBold(label9_, 14);
    for (QLineEdit *box : {text2_, text3_, text4_})
        setBold(box, 10);
    text4_->setAlignment(Qt::AlignRight);
    conv2_->setEnabled(false); // the result starts out decimal
    text2_->installEventFilter(this);
    text3_->installEventFilter(this);
    setTabOrder(text2_, text3_);
    setTabOrder(text3_, command3_);
    connect(command3_, &QPushButton::clicked, this, &CalculadoraWindow::command3Click);
    connect(command4_, &QPushButton::clicked, this, &CalculadoraWindow::command4Click);
    connect(command5_, &QPushButton::clicked, this, &CalculadoraWindow::command5Click);
    connect(command6_, &QPushButton::clicked, this, &CalculadoraWindow::command6Click);
    connect(command8_, &QPushButton::clicked, this, &CalculadoraWindow::command8Click);
    connect(conv1_, &QPushButton::clicked, this, &CalculadoraWindow::conv1Click);
    connect(conv2_, &QPushButton::clicked, this, &CalculadoraWindow::conv2Click);
    connect(conv3_, &QPushButton::clicked, this, &CalculadoraWindow::conv3Click);
    centreOnScreen();
}

void CalculadoraWindow::formLoad()
{
    frame_ = new ToolFrame(this);
    frame_->paint();
    label3_->setText(texto(slot::Calculadora));
    text4_->setText(texto(slot::CalculadoraResultado));
    command1_->setText(texto(slot::Cerrar));
    command2_->setText(texto(slot::AcercaDe));
    frame_->connectClose(command1_);
    frame_->connectAbout(command2_);
}

void CalculadoraWindow::operacion(Operacion op)
{
    using Estado = ResultadoOperacion::Estado;
    const ResultadoOperacion resultado = operar(op, Val(text2_->text()), Val(text3_->text()));
    switch (resultado.estado) {
    case Estado::Hecho:
        text4_->setText(CStr(resultado.valor));
        label9_->setText(signoDe(op));
        break;
    case Estado::DivisionPorCero:
        services().dialogs->msgBox(kDivisionPorCeroTexto, 0, kDivisionPorCeroTitulo);
        break;
    case Estado::Indeterminacion:
        services().dialogs->msgBox(kIndeterminacionTexto, 0, kIndeterminacionTitulo);
        break;
    }
    // The box is decimal again whatever happened; base_ is left alone on purpose.
    conv1_->setEnabled(true);
    conv3_->setEnabled(true);
    conv2_->setEnabled(false);
}

void CalculadoraWindow::command3Click()
{
    operacion(Operacion::Suma);
}

void CalculadoraWindow::command4Click()
{
    operacion(Operacion::Resta);
}

void CalculadoraWindow::command5Click()
{
    operacion(Operacion::Producto);
}

void CalculadoraWindow::command6Click()
{
    operacion(Operacion::Division);
}

void CalculadoraWindow::command8Click()
{
    operacion(Operacion::Potencia);
}

void CalculadoraWindow::convertida(QPushButton *pulsado, const QString &nuevaBase)
{
    for (QPushButton *conv : {conv1_, conv2_, conv3_})
        conv->setEnabled(conv != pulsado);
    base_ = nuevaBase;
}

void CalculadoraWindow::conv1Click()
{
    text4_->setText(convertirAHexadecimal(text4_->text(), base_));
    convertida(conv1_, kBaseHexadecimal);
}

void CalculadoraWindow::conv2Click()
{
    text4_->setText(convertirADecimal(text4_->text(), base_));
    convertida(conv2_, kBaseDecimal);
}

void CalculadoraWindow::conv3Click()
{
    text4_->setText(convertirABinario(text4_->text(), base_));
    convertida(conv3_, kBaseBinaria);
}

void CalculadoraWindow::text2Click()
{
    text2_->clear();
}

void CalculadoraWindow::text3Click()
{
    text3_->clear();
}

void CalculadoraWindow::formClick()
{
    if (Val(text2_->text()) == 0)
        text2_->setText(kTexto2);
    if (Val(text3_->text()) == 0)
        text3_->setText(kTexto3);
    if (Val(text4_->text()) == 0)
        text4_->setText(texto(slot::CalculadoraResultado));
}

bool CalculadoraWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (isBoxClick(event)) {
        if (watched == text2_)
            text2Click();
        else if (watched == text3_)
            text3Click();
    }
    return Form::eventFilter(watched, event);
}

void CalculadoraWindow::mouseReleaseEvent(QMouseEvent *event)
{
    Form::mouseReleaseEvent(event);
    if (isBackgroundClick(this, event))
        formClick();
}

} // namespace zafro
