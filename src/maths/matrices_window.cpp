#include "maths/matrices_window.h"

#include "platform/services.h"
#include "runtime/convert.h"
#include "runtime/numtext.h"
#include "shell/controls.h"
#include "shell/language.h"
#include "shell/skin_sample.h"
#include "shell/toolframe.h"

#include <QFont>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>

#include <cmath>
#include <exception>

namespace zafro {

namespace {

// The editor slides between these widths, in twips.
constexpr int kAnchoAbriendo = 11800;
constexpr int kAnchoAbierto = 12030;
constexpr int kAnchoCerrando = 7600;
constexpr int kAnchoCerradoFinal = 7335;
constexpr int kPaso = 300;

// Grid of the calculation buttons: four columns under the two matrices.
constexpr int kColumna[] = {120, 1940, 3760, 5580};
constexpr int kFila[] = {2805, 3255, 3705, 4155, 4605};
constexpr int kAnchoBoton = 1710;
constexpr int kAltoBoton = 375;

QPlainTextEdit *cajaDeMatriz(QWidget *parent, const char *name, int left, int top, int width,
                             int height)
{
    auto *box = place(new QPlainTextEdit(parent), name, left, top, width, height);
    box->setReadOnly(true);
    box->setLineWrapMode(QPlainTextEdit::NoWrap);
    QFont font(QStringLiteral("Courier New"), 9);
    font.setStyleHint(QFont::TypeWriter);
    font.setFixedPitch(true);
    box->setFont(font);
    return box;
}

void mensaje(int slotTexto)
{
    services().dialogs->msgBox(texto(slotTexto), 0, QString());
}

} // namespace

MatricesWindow::MatricesWindow()
    : label1_(place(new QLabel(this), "Label1", 120, 600, 3530, 255)),
      label2_(place(new QLabel(this), "Label2", 3760, 600, 3530, 255)),
      label3_(place(new QLabel(this), "Label3", 120, 5130, 3530, 255)),
      label4_(place(new QLabel(QStringLiteral("1"), this), "Label4", 7530, 4500, 300, 255)),
      label5_(place(new QLabel(this), "Label5", 7530, 720, 4380, 330)),
      label6_(place(new QLabel(this), "Label6", 5370, 4650, 1150, 300)),
      label7_(place(new QLabel(this), "Label7", 3760, 4650, 900, 300)),
      label9_(place(new QLabel(this), "Label9", 7710, 1380, 1000, 300)),
      label10_(place(new QLabel(this), "Label10", 120, 60, 7170, 480)),
      label11_(place(new QLabel(this), "Label11", 7530, 60, 4380, 480)),
      label8_(place(new ClickLabel(this), "Label8", 5790, 7110, 1500, 300)),
      txtMatrixA_(cajaDeMatriz(this, "txtMatrixA", 120, 870, 3530, 1815)),
      txtMatrixB_(cajaDeMatriz(this, "txtMatrixB", 3760, 870, 3530, 1815)),
      txtMatrixC_(cajaDeMatriz(this, "txtMatrixC", 120, 5400, 7170, 1620)),
      text1_(place(new QLineEdit(QStringLiteral("6"), this), "Text1", 8760, 1350, 600, 345)),
      text2_(place(new QLineEdit(QStringLiteral("6"), this), "Text2", 9450, 1350, 600, 345)),
      text3_(place(new QLineEdit(QStringLiteral("1"), this), "Text3", 4660, 4620, 600, 345)),
      text4_(place(new QLineEdit(QStringLiteral("1"), this), "Text4", 6530, 4620, 760, 345)),
      timer1_(makeTimer(this, QStringLiteral("Timer1"), 50, false, [this] { timer1Timer(); })),
      timer2_(makeTimer(this, QStringLiteral("Timer2"), 50, false, [this] { timer2Timer(); }))
{
    setWindowTitle(QStringLiteral("Zafro Suite"));
    resizeTwips(kAnchoCerrado, kAlto);

    const auto boton = [this](const char *name, int columna, int fila) {
        auto *button = place(new QPushButton(this), name, kColumna[columna], kFila[fila],
                             kAnchoBoton, kAltoBoton);
        QFont font = button->font();
        font.setPointSize(8);
        button->setFont(font);
        return button;
    };
    command2_ = boton("Command2", 0, 0);
    command3_ = boton("Command3", 1, 0);
    command5_ = boton("Command5", 2, 0);
    command4_ = boton("Command4", 3, 0);
    cmdTranspose_ = boton("cmdTranspose", 0, 1);
    cmdInverse_ = boton("cmdInverse", 1, 1);
    command12_ = boton("Command12", 2, 1);
    command13_ = boton("Command13", 3, 1);
    command11_ = boton("Command11", 0, 2);
    command14_ = boton("Command14", 1, 2);
    cmdNormalize_ = boton("cmdNormalize", 2, 2);
    command15_ = boton("Command15", 3, 2);
    command8_ = boton("Command8", 0, 3);
    command9_ = boton("Command9", 1, 3);
    cmdMultiply_ = boton("cmdMultiply", 2, 3);
    command10_ = boton("Command10", 3, 3);
    cmdPlus_ = boton("cmdPlus", 0, 4);
    cmdMinus_ = boton("cmdMinus", 1, 4);
    command7_ = place(new QPushButton(this), "Command7", 7710, 5550, 1980, 435);
    command6_ = place(new QPushButton(this), "Command6", 9780, 5550, 1980, 435);

    for (int fila = 1; fila <= 6; ++fila)
        for (int columna = 1; columna <= 6; ++columna)
            celdas_[(fila - 1) * 6 + columna - 1] =
                place(new QLineEdit(this), QStringLiteral("a%1%2").arg(fila).arg(columna),
                      7710 + (columna - 1) * 690, 2070 + (fila - 1) * 540, 600, 405);

    label4_->hide();
    label10_->setAlignment(Qt::AlignCenter);
    setBold(label10_, 14);
    label11_->setAlignment(Qt::AlignCenter);
    setBold(label11_, 12);
    label5_->setAlignment(Qt::AlignCenter);
    setBold(label5_, 10);
    label8_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label8_->setCursor(Qt::PointingHandCursor);
    for (QLabel *label : {label1_, label2_, label3_, static_cast<QLabel *>(label8_)})
        setBold(label, 9);
    for (QLabel *label : {label6_, label7_, label9_})
        label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    for (QLineEdit *box : {text1_, text2_, text3_, text4_})
        box->setAlignment(Qt::AlignCenter);

    const std::pair<QPushButton *, void (MatricesWindow::*)()> handlers[] = {
        {cmdPlus_, &MatricesWindow::cmdPlusClick},
        {cmdMinus_, &MatricesWindow::cmdMinusClick},
        {cmdMultiply_, &MatricesWindow::cmdMultiplyClick},
        {command10_, &MatricesWindow::command10Click},
        {command8_, &MatricesWindow::command8Click},
        {command9_, &MatricesWindow::command9Click},
        {command11_, &MatricesWindow::command11Click},
        {cmdNormalize_, &MatricesWindow::cmdNormalizeClick},
        {cmdTranspose_, &MatricesWindow::cmdTransposeClick},
        {command12_, &MatricesWindow::command12Click},
        {cmdInverse_, &MatricesWindow::cmdInverseClick},
        {command13_, &MatricesWindow::command13Click},
        {command14_, &MatricesWindow::command14Click},
        {command15_, &MatricesWindow::command15Click},
        {command2_, &MatricesWindow::command2Click},
        {command5_, &MatricesWindow::command5Click},
        {command3_, &MatricesWindow::command3Click},
        {command4_, &MatricesWindow::command4Click},
        {command6_, &MatricesWindow::command6Click},
        {command7_, &MatricesWindow::command7Click},
    };
    for (const auto &[button, handler] : handlers)
        connect(button, &QPushButton::clicked, this, handler);
    connect(text1_, &QLineEdit::textChanged, this, &MatricesWindow::text1Change);
    connect(text2_, &QLineEdit::textChanged, this, &MatricesWindow::text2Change);
    connect(label8_, &ClickLabel::clicked, this, &MatricesWindow::label8Click);
}

void MatricesWindow::formLoad()
{
    const QSize pantalla = services().desktop->screenSizeTwips();
    const double izquierda = (pantalla.width() - kAnchoAbriendo) / 2.0;
    const double arriba = 2.0 / 3.0 * ((pantalla.height() - kAlto) / 2.0);
    move(twipsToPixelsX(int(std::lround(izquierda))), twipsToPixelsY(int(std::lround(arriba))));

    for (Matriz *m : {&a_, &b_}) {
        m->ponerOrden(5, 5);
        m->rellenarAleatorio(0, 9, *services().random);
    }
    txtMatrixA_->setPlainText(a_.aTexto(1));
    txtMatrixB_->setPlainText(b_.aTexto(1));

    frame_ = new ToolFrame(this);
    // The editor's slide owns the names Timer1 and Timer2 in this window.
    if (frame_->timer())
        frame_->timer()->setObjectName(QStringLiteral("TimerTitulo"));
    frame_->paint();
    pintarCajasDeMatriz();

    const QString de = QLatin1Char(' ') + texto(slot::De);
    const QString mat = QLatin1Char(' ') + texto(slot::Mat);
    setWindowTitle(QStringLiteral("Zafro Suite - ") + texto(slot::CalculosMatrices));
    label10_->setText(texto(slot::CalculosMatrices));
    label11_->setText(texto(slot::CrearEditarMatriz));
    label1_->setText(texto(slot::Matriz) + QStringLiteral(" A"));
    label2_->setText(texto(slot::Matriz) + QStringLiteral(" B"));
    label3_->setText(texto(slot::Matriz) + QStringLiteral(" C"));
    label5_->setText(texto(slot::Matriz) + QStringLiteral(" A"));
    label6_->setText(texto(slot::Decimales));
    label7_->setText(texto(slot::Escalar));
    label9_->setText(texto(slot::Orden));
    label8_->setText(texto(slot::Cerrar));
    cmdPlus_->setText(texto(slot::Suma) + de + QStringLiteral(" A+B"));
    cmdMinus_->setText(texto(slot::Resta) + de + QStringLiteral(" A-B"));
    cmdMultiply_->setText(texto(slot::Multiplicar) + QStringLiteral(" AxB"));
    command10_->setText(texto(slot::Multiplicar) + QStringLiteral(" BxA"));
    command8_->setText(texto(slot::Multiplicar) + QStringLiteral(" A x nº"));
    command9_->setText(texto(slot::Multiplicar) + QStringLiteral(" B x nº"));
    command11_->setText(texto(slot::Normalizar) + QStringLiteral(" A"));
    cmdNormalize_->setText(texto(slot::Normalizar) + QStringLiteral(" B"));
    cmdTranspose_->setText(texto(slot::Traspuesta) + de + QStringLiteral(" A"));
    command12_->setText(texto(slot::Traspuesta) + de + QStringLiteral(" B"));
    cmdInverse_->setText(texto(slot::Inversa) + de + QStringLiteral(" A"));
    command13_->setText(texto(slot::Inversa) + de + QStringLiteral(" B"));
    command14_->setText(texto(slot::Determinante) + de + QStringLiteral(" A"));
    command15_->setText(texto(slot::Determinante) + de + QStringLiteral(" B"));
    command2_->setText(texto(slot::Definir) + mat + QStringLiteral(" A"));
    command5_->setText(texto(slot::Definir) + mat + QStringLiteral(" B"));
    command3_->setText(texto(slot::Editar) + mat + QStringLiteral(" A"));
    command4_->setText(texto(slot::Editar) + mat + QStringLiteral(" B"));
    command6_->setText(texto(slot::MatrizGuardar));
    command7_->setText(QStringLiteral("<--- ") + texto(slot::MatrizVolver));
}

// The frame paints line edits only; the three result boxes are text boxes too.
void MatricesWindow::pintarCajasDeMatriz()
{
    for (QPlainTextEdit *box : {txtMatrixA_, txtMatrixB_, txtMatrixC_}) {
        setPaletteRole(box, QPalette::Text, skinColour(QStringLiteral("ForeColor")));
        setPaletteRole(box, QPalette::Base, skinColour(QStringLiteral("BackColor")));
        setPaletteRole(box, QPalette::Window, box->palette().color(QPalette::Text));
    }
}

// Any failure of the operation or of the decimals box shows the button's message
// and leaves the result box as it was.
void MatricesWindow::calcular(const std::function<Matriz()> &operacion, int slotMensaje)
{
    try {
        c_ = operacion();
        const qint16 decimales = CInt(Val(text4_->text()));
        txtMatrixC_->setPlainText(c_.aTexto(decimales));
    } catch (const std::exception &) {
        mensaje(slotMensaje);
    }
}

void MatricesWindow::cmdPlusClick()
{
    calcular([this] { return a_.suma(b_); }, slot::SumaImposible);
}

void MatricesWindow::cmdMinusClick()
{
    calcular([this] { return a_.diferencia(b_); }, slot::RestaImposible);
}

void MatricesWindow::cmdMultiplyClick()
{
    calcular([this] { return a_.producto(b_); }, slot::MultiplicacionImposible);
}

void MatricesWindow::command10Click()
{
    calcular([this] { return b_.producto(a_); }, slot::MultiplicacionImposible);
}

void MatricesWindow::command8Click()
{
    calcular([this] { return a_.productoEscalar(Val(text3_->text())); },
             slot::MultiplicacionImposible);
}

void MatricesWindow::command9Click()
{
    calcular([this] { return b_.productoEscalar(Val(text3_->text())); },
             slot::MultiplicacionImposible);
}

void MatricesWindow::command11Click()
{
    calcular([this] { return a_.normalizada(1.0); }, slot::NormalizarImposible);
}

void MatricesWindow::cmdNormalizeClick()
{
    calcular([this] { return b_.normalizada(1.0); }, slot::NormalizarImposible);
}

void MatricesWindow::cmdTransposeClick()
{
    calcular([this] { return a_.traspuesta(); }, slot::TraspuestaImposible);
}

void MatricesWindow::command12Click()
{
    calcular([this] { return b_.traspuesta(); }, slot::TraspuestaImposible);
}

// The inverse tells its answer in the result box itself, a missing inverse apart
// from any other failure.
void MatricesWindow::inversa(const Matriz &m, int sinInversa, int imposible)
{
    try {
        Matriz resultado = m.inversa();
        const QString textoC = resultado.aTexto(CInt(Val(text4_->text())));
        c_ = std::move(resultado);
        txtMatrixC_->setPlainText(textoC);
    } catch (const MatrizSingular &) {
        txtMatrixC_->setPlainText(texto(sinInversa));
    } catch (const std::exception &) {
        txtMatrixC_->setPlainText(texto(imposible));
    }
}

void MatricesWindow::cmdInverseClick()
{
    inversa(a_, slot::SinInversaA, slot::InversaImposibleA);
}

void MatricesWindow::command13Click()
{
    inversa(b_, slot::SinInversaB, slot::InversaImposibleB);
}

void MatricesWindow::determinante(const Matriz &m)
{
    try {
        txtMatrixC_->setPlainText(CStr(m.determinante()));
    } catch (const std::exception &) {
        mensaje(slot::DeterminanteImposible);
    }
}

void MatricesWindow::command14Click()
{
    determinante(a_);
}

void MatricesWindow::command15Click()
{
    determinante(b_);
}

void MatricesWindow::abrirEditor(const QString &cual)
{
    mostrartodo();
    timer1_->start();
    label5_->setText(texto(slot::Matriz) + QLatin1Char(' ') + cual);
    label4_->setText(cual == QLatin1String("A") ? QStringLiteral("1") : QStringLiteral("2"));
}

// The boxes take the matrix's order first; a box that already holds it changes
// nothing, so its rows or columns stay as they were, and the cells beyond the
// matrix then read as 0.
void MatricesWindow::editar(const Matriz &m, const QString &cual)
{
    try {
        abrirEditor(cual);
        text1_->setText(CStr(m.filas()));
        text2_->setText(CStr(m.columnas()));
        for (int fila = 1; fila <= 6; ++fila)
            for (int columna = 1; columna <= 6; ++columna) {
                QLineEdit *cell = celda(fila, columna);
                // Through the region's text and back: with a decimal comma 3,5 shows as 3.
                if (!cell->isHidden()) {
                    cell->setText(CStr(Val(CStr(m.elemento(fila - 1, columna - 1)))));
                    cell->setCursorPosition(0); // a long number shows its first digits
                }
            }
    } catch (const std::exception &) {
    }
}

void MatricesWindow::command2Click()
{
    abrirEditor(QStringLiteral("A"));
}

void MatricesWindow::command5Click()
{
    abrirEditor(QStringLiteral("B"));
}

void MatricesWindow::command3Click()
{
    editar(a_, QStringLiteral("A"));
}

void MatricesWindow::command4Click()
{
    editar(b_, QStringLiteral("B"));
}

void MatricesWindow::command6Click()
{
    try {
        Matriz &m = Val(label4_->text()) == 1 ? a_ : b_;
        m.ponerOrden(CLng(Val(text1_->text())), CLng(Val(text2_->text())));
        for (int fila = 1; fila <= 6; ++fila)
            for (int columna = 1; columna <= 6; ++columna)
                if (!celda(fila, columna)->isHidden())
                    m.ponerElemento(fila - 1, columna - 1, Val(celda(fila, columna)->text()));
        (&m == &a_ ? txtMatrixA_ : txtMatrixB_)->setPlainText(m.aTexto(1));
        timer2_->start();
        vaciarCeldas();
    } catch (const std::exception &) {
        // The editor stays open with what was typed.
    }
}

void MatricesWindow::command7Click()
{
    timer2_->start();
    vaciarCeldas();
}

void MatricesWindow::mostrartodo()
{
    for (QLineEdit *cell : celdas_)
        cell->show();
}

void MatricesWindow::vaciarCeldas()
{
    for (QLineEdit *cell : celdas_)
        cell->clear();
}

void MatricesWindow::aplicarFilas()
{
    const QString orden = text1_->text();
    if (orden.isEmpty())
        return;
    if (orden.size() == 1 && orden[0] >= QLatin1Char('2') && orden[0] <= QLatin1Char('6')) {
        for (int fila = orden.toInt() + 1; fila <= 6; ++fila)
            for (int columna = 1; columna <= 6; ++columna)
                celda(fila, columna)->hide();
        return;
    }
    mensaje(slot::FilasIncorrectas);
    text1_->setText(QStringLiteral("6"));
    mostrartodo();
}

void MatricesWindow::aplicarColumnas()
{
    const QString orden = text2_->text();
    if (orden.isEmpty())
        return;
    if (orden.size() == 1 && orden[0] >= QLatin1Char('2') && orden[0] <= QLatin1Char('6')) {
        for (int columna = orden.toInt() + 1; columna <= 6; ++columna)
            for (int fila = 1; fila <= 6; ++fila)
                celda(fila, columna)->hide();
        return;
    }
    mensaje(slot::ColumnasIncorrectas);
    text2_->setText(QStringLiteral("6"));
    mostrartodo();
}

void MatricesWindow::text1Change()
{
    mostrartodo();
    aplicarFilas();
    aplicarColumnas();
}

void MatricesWindow::text2Change()
{
    mostrartodo();
    aplicarColumnas();
    aplicarFilas();
}

void MatricesWindow::ponerAncho(int twips)
{
    ancho_ = twips;
    resize(twipsToPixelsX(twips), height());
}

void MatricesWindow::timer1Timer()
{
    timer2_->stop();
    if (ancho_ < kAnchoAbriendo) {
        ponerAncho(ancho_ + kPaso);
    } else {
        timer1_->stop();
        ponerAncho(kAnchoAbierto);
    }
}

void MatricesWindow::timer2Timer()
{
    timer1_->stop();
    if (ancho_ > kAnchoCerrando) {
        ponerAncho(ancho_ - kPaso);
    } else {
        timer2_->stop();
        ponerAncho(kAnchoCerradoFinal);
    }
}

void MatricesWindow::label8Click()
{
    unloadMe();
}

} // namespace zafro
