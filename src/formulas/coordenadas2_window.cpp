#include "formulas/coordenadas2_window.h"

#include "formulas/coordenadas.h"
#include "formulas/coordenadas_ui.h"
#include "formulas/drawing_surface.h"
#include "runtime/convert.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/toolframe.h"

#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>

namespace zafro {

namespace {

constexpr int kLado = 8100; // twips; nearly square keeps circles round
constexpr int kMedio = kLado / 2;
constexpr int kTick = kLado / 20; // one unit at the default scale of -10 to 10
const QColor kAmarilloClaro(255, 255, 192);

QFrame *axis(QWidget *parent, const char *name, int left, int top, int width, int height)
{
    QFrame *line = place(new QFrame(parent), name, left, top, width, height);
    line->setFrameShape(QFrame::NoFrame);
    line->setAutoFillBackground(true);
    QPalette palette = line->palette();
    palette.setColor(QPalette::Window, Qt::black);
    line->setPalette(palette);
    return line;
}

QLabel *tick(QWidget *parent, const QString &name, const QString &text, QRect twips,
             Qt::Alignment alignment)
{
    auto *label = new QLabel(text, parent);
    label->setObjectName(name);
    label->setGeometry(twipsRect(twips.x(), twips.y(), twips.width(), twips.height()));
    label->setAlignment(alignment);
    QFont font = label->font();
    font.setPointSize(7);
    label->setFont(font);
    return label;
}

QLineEdit *scaleBox(QWidget *parent, const char *name, int left, int top)
{
    QLineEdit *box = place(new QLineEdit(QStringLiteral("10"), parent), name, left, top, 600, 300);
    box->setToolTip(QStringLiteral("Escala"));
    box->setVisible(false);
    return box;
}

} // namespace

Coordenadas2Window::Coordenadas2Window() : GraficaWindow(kAmarilloClaro)
{
    setWindowTitle(QStringLiteral("Zafro Suite"));
    resizeTwips(kLado, kLado);
    surface()->setGeometry(rect());
    surface()->setScale(-10, 10, 10, -10);
    axis(this, "Line1", 0, kMedio, kLado, 15);
    axis(this, "Line2", kMedio, 0, 15, kLado);
    for (int k = -9; k <= 9; ++k) {
        const QString n = QString::number(k);
        tick(this, QStringLiteral("MarcaX_%1").arg(k + 9), n,
             QRect(kMedio + k * kTick - 200, kMedio + 45, 400, 210), Qt::AlignHCenter);
        if (k != 0)
            tick(this, QStringLiteral("MarcaY_%1").arg(k + 9), n,
                 QRect(kMedio + 60, kMedio - k * kTick - 105, 400, 210), Qt::AlignLeft);
    }
    tick(this, QStringLiteral("EjeX"), QStringLiteral("X"),
         QRect(kLado - 300, kMedio - 300, 200, 240), Qt::AlignCenter);
    tick(this, QStringLiteral("EjeY"), QStringLiteral("Y"), QRect(kMedio - 300, 60, 200, 240),
         Qt::AlignCenter);
    label23_ = place(new QLabel(this), "Label23", 120, kLado - 360, 3000, 240);
    check1_ = place(new QCheckBox(this), "Check1", kLado - 360, kLado - 360, 300, 300);
    check1_->setToolTip(QStringLiteral("Escala"));
    text1_ = scaleBox(this, "Text1", kMedio + 90, 60);
    text2_ = scaleBox(this, "Text2", 60, kMedio - 360);
    connect(check1_, &QCheckBox::clicked, this, &Coordenadas2Window::check1Click);
    connect(text1_, &QLineEdit::textChanged, this, &Coordenadas2Window::text1Change);
    connect(text2_, &QLineEdit::textChanged, this, &Coordenadas2Window::text2Change);
    graficas::placeBesideCentre(this);
}

void Coordenadas2Window::formLoad()
{
    frame_ = new ToolFrame(this);
    frame_->paint();
    setWindowTitle(texto(slot::HeAquiLaGrafica));
}

void Coordenadas2Window::check1Click()
{
    text1_->setVisible(check1_->isChecked());
    text2_->setVisible(check1_->isChecked());
}

void Coordenadas2Window::text1Change()
{
    const float uno = CSng(Val(text1_->text()));
    const float dos = CSng(Val(text2_->text()));
    surface()->clear();
    // kept: the right end follows this box, not Text2
    surface()->setScale(-dos, uno, uno, -uno);
    redibujar();
}

void Coordenadas2Window::text2Change()
{
    const float uno = CSng(Val(text1_->text()));
    const float dos = CSng(Val(text2_->text()));
    surface()->clear();
    surface()->setScale(-dos, uno, dos, -uno);
    redibujar();
}

bool Coordenadas2Window::suspendido() const
{
    const QWidget *entrada = forms().find(QStringLiteral("coordenadas1"));
    const auto *check2 =
        entrada ? entrada->findChild<QCheckBox *>(QStringLiteral("Check2")) : nullptr;
    return check2 && check2->isChecked();
}

std::unique_ptr<Muestreo> Coordenadas2Window::muestreo()
{
    Coordenadas &modulo = coordenadas();
    if (modulo.ecuacion >= Recta && modulo.ecuacion <= Tangente)
        label23_->setText(notaDeEcuacion(modulo.ecuacion));
    return std::make_unique<MuestreoCartesiano>(modulo);
}

} // namespace zafro
