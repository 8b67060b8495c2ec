#include "formulas/coordenadas1_window.h"

#include "formulas/coordenadas.h"
#include "formulas/coordenadas_ui.h"
#include "platform/services.h"
#include "runtime/convert.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/toolframe.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace zafro {

using graficas::kEnter;

namespace {

const QString kDensidadProtegida = QStringLiteral("0.01");
const QString kTituloError = QStringLiteral("Error");

QLabel *caption(QWidget *parent, const char *name, int left, int top, int width, int height)
{
    QLabel *label = place(new QLabel(parent), name, left, top, width, height);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    return label;
}

QLineEdit *box(QWidget *parent, const char *name, const char *text, int top)
{
    return place(new QLineEdit(QLatin1String(text), parent), name, 4800, top, 1680, 345);
}

} // namespace

Coordenadas1Window::Coordenadas1Window()
    : label1_(caption(this, "Label1", 120, 120, 6360, 300)),
      combo1_(place(new QComboBox(this), "Combo1", 120, 480, 3000, 345)),
      label5_(caption(this, "Label5", 3360, 480, 3120, 300)),
      text1_(place(new QLineEdit(this), "Text1", 3360, 780, 3120, 345)),
      label2_(caption(this, "Label2", 120, 1320, 4560, 480)),
      label3_(caption(this, "Label3", 120, 1920, 4560, 480)),
      label4_(caption(this, "Label4", 120, 2520, 4560, 480)),
      de_(caption(this, "de", 120, 3120, 4560, 480)),
      ee_(caption(this, "ee", 120, 3720, 4560, 480)), a_(box(this, "a", "1", 1380)),
      b_(box(this, "b", "1", 1980)), c_(box(this, "c", "3", 2580)), d_(box(this, "d", "0", 3180)),
      e_(box(this, "e", "0", 3780)), label6_(caption(this, "Label6", 120, 4380, 1200, 345)),
      den_(place(new QLineEdit(kDensidadProtegida, this), "den", 1320, 4380, 1200, 345)),
      check1_(place(new QCheckBox(this), "Check1", 2760, 4380, 2000, 345)),
      command1_(place(new QPushButton(this), "Command1", 4680, 4980, 1800, 495)),
      command2_(place(new QPushButton(this), "Command2", 120, 4980, 1800, 495)),
      label7_(caption(this, "Label7", 120, 5340, 1500, 300)),
      text2_(place(new QLineEdit(this), "Text2", 1680, 5340, 2400, 300)),
      command3_(place(new QPushButton(this), "Command3", 4200, 5340, 1000, 300)),
      check2_(place(new QCheckBox(this), "Check2", 5280, 5340, 1200, 300))
{
    setWindowTitle(QStringLiteral("Zafro Suite"));
    resizeTwips(6600, 5700);
    text1_->setReadOnly(true);
    check1_->setChecked(true);
    // A check box fills its background from the button role; the skin paints the
    // window role, as on every other box of the window.
    check1_->setBackgroundRole(QPalette::Window);
    den_->setReadOnly(true);
    label7_->setText(QStringLiteral("Otra fórmula:"));
    for (QWidget *w : std::initializer_list<QWidget *>{label7_, text2_, command3_, check2_})
        w->setVisible(false);
    for (QWidget *w : std::initializer_list<QWidget *>{d_, e_, de_, ee_})
        w->setVisible(false);

    graficas::onKeyPress(a_, [this](int &k) { aKeyPress(k); });
    graficas::onKeyPress(b_, [this](int &k) { bKeyPress(k); });
    graficas::onKeyPress(c_, [this](int &k) { cKeyPress(k); });
    graficas::onKeyPress(d_, [this](int &k) { dKeyPress(k); });
    graficas::onKeyPress(e_, [this](int &k) { eKeyPress(k); });
    connect(command1_, &QPushButton::clicked, this, &Coordenadas1Window::command1Click);
    connect(check1_, &QCheckBox::clicked, this, &Coordenadas1Window::check1Click);
    setTabOrder(combo1_, a_);
    setTabOrder(a_, b_);
    setTabOrder(b_, c_);
    setTabOrder(c_, d_);
    setTabOrder(d_, e_);
    setTabOrder(e_, den_);
    setTabOrder(den_, check1_);
    setTabOrder(check1_, command1_);
    setTabOrder(command1_, command2_);
    centreOnScreen();
}

void Coordenadas1Window::formLoad()
{
    frame_ = new ToolFrame(this);
    frame_->paint();
    label1_->setText(texto(slot::CoordenadasEscoge));
    label2_->setText(texto(slot::IngresaA));
    label3_->setText(texto(slot::IngresaB));
    label4_->setText(texto(slot::IngresaC));
    de_->setText(texto(slot::IngresaD));
    ee_->setText(texto(slot::IngresaE));
    label5_->setText(texto(slot::EcuacionUsada));
    label6_->setText(texto(slot::Densidad));
    check1_->setText(texto(slot::Protegido));
    command1_->setText(texto(slot::Dibujar));
    command2_->setText(texto(slot::Cerrar));
    // The list shows no entry until the user picks one.
    combo1_->addItems(textosDeEcuaciones());
    combo1_->setCurrentIndex(-1);
    connect(combo1_, &QComboBox::currentIndexChanged, this, &Coordenadas1Window::combo1Click);
    frame_->connectClose(command2_);
}

void Coordenadas1Window::combo1Click()
{
    const qint16 ecuacion = ecuacionDeTexto(combo1_->currentText());
    if (ecuacion == 0)
        return;
    const bool conD =
        ecuacion == Elipse || ecuacion == ParabolaHorizontal || ecuacion == ParabolaVertical;
    const bool conE = ecuacion == Elipse;
    d_->setVisible(conD);
    de_->setVisible(conD);
    e_->setVisible(conE);
    ee_->setVisible(conE);
    if (ecuacion == Recta) {
        label2_->setText(texto(slot::IngresaM));
        label3_->setText(texto(slot::IngresaConstanteY));
        label4_->setText(texto(slot::IngresaN));
    } else {
        label2_->setText(texto(slot::IngresaA));
        label3_->setText(texto(slot::IngresaB));
        label4_->setText(texto(slot::IngresaC));
    }
    if (conD)
        de_->setText(texto(slot::IngresaD));
    if (conE)
        ee_->setText(texto(slot::IngresaE));
    text1_->setText(formulaDeEcuacion(ecuacion));
    if (ecuacion >= Seno) {
        b_->setText(QStringLiteral("0"));
        c_->setText(QStringLiteral("0"));
    }
    a_->setFocus();
}

void Coordenadas1Window::command1Click()
{
    // Only the two forms that divide by a value that cannot be mended are checked.
    const qint16 ecuacion = ecuacionDeTexto(combo1_->currentText());
    if (ecuacion == Hiperbola && (Val(a_->text()) == 0 || Val(b_->text()) == 0)) {
        services().dialogs->msgBox(texto(slot::ABNoPuedenValer0), 0, kTituloError);
        return;
    }
    if (ecuacion == Elipse && Val(e_->text()) == 0) {
        services().dialogs->msgBox(texto(slot::ENoPuedeValer0), 0, kTituloError);
        return;
    }
    focoEnADibujar();
}

void Coordenadas1Window::check1Click()
{
    if (check1_->isChecked()) {
        den_->setReadOnly(true);
        den_->setText(kDensidadProtegida);
    } else {
        den_->setReadOnly(false);
    }
}

void Coordenadas1Window::aKeyPress(int &keyAscii)
{
    if (keyAscii == kEnter)
        b_->setFocus();
}

void Coordenadas1Window::bKeyPress(int &keyAscii)
{
    if (keyAscii == kEnter)
        c_->setFocus();
}

void Coordenadas1Window::cKeyPress(int &keyAscii)
{
    if (keyAscii != kEnter)
        return;
    // kept: no checks on this way to the drawing
    if (!d_->isHidden())
        d_->setFocus();
    else
        focoEnADibujar();
}

void Coordenadas1Window::dKeyPress(int &keyAscii)
{
    if (keyAscii == kEnter)
        e_->setFocus();
}

void Coordenadas1Window::eKeyPress(int &keyAscii)
{
    if (keyAscii == kEnter)
        focoEnADibujar();
}

void Coordenadas1Window::focoEnADibujar()
{
    a_->setFocus();
    dibujar();
}

void Coordenadas1Window::dibujar()
{
    Coordenadas &modulo = coordenadas();
    modulo.a = CSng(Val(a_->text()));
    modulo.b = CSng(Val(b_->text()));
    modulo.c = CSng(Val(c_->text()));
    modulo.e = CSng(Val(e_->text()));
    modulo.d = CSng(Val(d_->text()));
    if (const qint16 ecuacion = ecuacionDeTexto(combo1_->currentText()))
        modulo.ecuacion = ecuacion;
    modulo.densidad = densidadDeTexto(den_->text());
    forms().show(QStringLiteral("coordenadas2"));
}

} // namespace zafro
