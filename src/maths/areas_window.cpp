#include "maths/areas_window.h"

#include "maths/figura_svg.h"
#include "shell/clicks.h"
#include "shell/language.h"
#include "shell/toolframe.h"

#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace zafro {

namespace {

// Design grid, in twips: two columns of figure buttons on the left, six columns of
// pictures on the right with the fields under them.
constexpr int kBotonX[] = {240, 3060};
constexpr int kBotonAncho = 2700;
constexpr int kFilaBoton = 420;
constexpr int kDerecha = 5940;
constexpr int kImagen = 1140;
constexpr int kPasoImagen = 1200;
constexpr int kArriba = 840;
constexpr int kFilaCampo = 420;
constexpr int kCampoY = 6240;

QPixmap dibujoDe(const char *imagen, QSize size)
{
    QFile file(QStringLiteral(":/maths/areas/%1.svg").arg(QLatin1String(imagen)));
    return file.open(QIODevice::ReadOnly) ? dibujarSvg(file.readAll(), size) : QPixmap();
}

} // namespace

AreasWindow::AreasWindow()
    : label99_(place(new QLabel(this), "Label99", 120, 120, 12960, 540)),
      label55_(place(new QLabel(this), "Label55", kDerecha, 5760, 7140, 375)),
      label56_(place(new QLabel(this), "Label56", kDerecha, 5760, 600, 300)),
      text99_(place(new QLineEdit(kAreasResultado, this), "Text99", kDerecha, 7980, 7140, 375)),
      command3_(
          place(new QPushButton(kAreasCalcular, this), "Command3", 10980, kCampoY, 2100, 435)),
      command98_(place(new QPushButton(kAreasBorrar, this), "Command98", 240, 6120, 5520, 435)),
      command1_(place(new QPushButton(this), "Command1", 3060, 7950, 2700, 435)),
      command2_(place(new QPushButton(this), "Command2", 240, 7950, 2700, 435))
{
    setWindowTitle(QStringLiteral("Zafro Suite"));
    resizeTwips(13260, 8640);
    label99_->setAlignment(Qt::AlignCenter);
    setBold(label99_, 14);
    label55_->setAlignment(Qt::AlignCenter);
    setBold(label55_, 11);
    label56_->hide();
    setBold(text99_, 10);
    text99_->setAlignment(Qt::AlignCenter);
    for (int k = 0; k < 4; ++k) {
        const int y = kCampoY + k * kFilaCampo;
        etiquetas_[k] = place(new QLabel(this), QStringLiteral("Label%1").arg(k + 1), kDerecha,
                              y + 30, 2940, 300);
        etiquetas_[k]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        campos_[k] =
            place(new QLineEdit(this), QStringLiteral("Text%1").arg(k + 1), 9000, y, 1800, 375);
        campos_[k]->setAlignment(Qt::AlignCenter);
        campos_[k]->installEventFilter(this);
    }
    campos_[3]->setEnabled(false);
    for (const FiguraArea &figura : figurasArea()) {
        const int k = figura.numero - 1;
        botones_[k] = place(new QPushButton(this), QLatin1String(figura.boton), kBotonX[k / 12],
                            kArriba + (k % 12) * kFilaBoton, kBotonAncho, 375);
        connect(botones_[k], &QPushButton::clicked, this,
                [this, &figura] { elegirFigura(figura); });
        imagenes_[k] =
            place(new QLabel(this), QLatin1String(figura.imagen), kDerecha + (k % 6) * kPasoImagen,
                  kArriba + (k / 6) * kPasoImagen, kImagen, kImagen);
        imagenes_[k]->hide();
    }
    for (int k = 1; k < kFigurasArea; ++k)
        setTabOrder(botones_[k - 1], botones_[k]);
    setTabOrder(botones_.back(), command98_);
    setTabOrder(command98_, campos_[0]);
    setTabOrder(campos_[0], campos_[1]);
    setTabOrder(campos_[1], campos_[2]);
    setTabOrder(campos_[2], command3_);
    setTabOrder(command3_, text99_);
    setTabOrder(text99_, command2_);
    setTabOrder(command2_, command1_);
    connect(command3_, &QPushButton::clicked, this, &AreasWindow::command3Click);
    connect(command98_, &QPushButton::clicked, this, &AreasWindow::command98Click);
    centreOnScreen();
}

void AreasWindow::formLoad()
{
    frame_ = new ToolFrame(this);
    frame_->paint();
    label99_->setText(texto(slot::AreasTitulo));
    for (const FiguraArea &figura : figurasArea()) {
        const int k = figura.numero - 1;
        botones_[k]->setText(captionFigura(figura));
        imagenes_[k]->setPixmap(dibujoDe(figura.imagen, imagenes_[k]->size()));
    }
    command1_->setText(texto(slot::Cerrar));
    command2_->setText(texto(slot::AcercaDe));
    frame_->connectClose(command1_);
    frame_->connectAbout(command2_);
}

void AreasWindow::elegirFigura(const FiguraArea &figura)
{
    label55_->setText(botones_[figura.numero - 1]->text());
    label56_->setText(QString::number(figura.numero));
    imagenes_[figura.numero - 1]->show();
    for (int k = 0; k < 4; ++k) {
        etiquetas_[k]->setText(k < 3 ? etiquetaCampo(figura.etiquetas[k]) : QString());
        campos_[k]->setEnabled(k < figura.campos);
    }
}

void AreasWindow::command3Click()
{
    const std::optional<QString> area =
        calcularArea(label56_->text(), {campos_[0]->text(), campos_[1]->text(), campos_[2]->text(),
                                        campos_[3]->text()});
    if (area)
        text99_->setText(*area);
}

void AreasWindow::command98Click()
{
    for (QLabel *imagen : imagenes_)
        imagen->hide();
}

void AreasWindow::textClick(int campo)
{
    campos_[campo - 1]->clear();
}

void AreasWindow::formClick()
{
    for (int k = 0; k < 4; ++k)
        if (campoSinDato(campos_[k]->text()))
            campos_[k]->setText(datoCampo(k + 1));
}

bool AreasWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (isBoxClick(event))
        for (int k = 0; k < 4; ++k)
            if (watched == campos_[k])
                textClick(k + 1);
    return Form::eventFilter(watched, event);
}

void AreasWindow::mouseReleaseEvent(QMouseEvent *event)
{
    Form::mouseReleaseEvent(event);
    if (isBackgroundClick(this, event))
        formClick();
}

} // namespace zafro
