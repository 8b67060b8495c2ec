#include "plates/current_pane.h"

#include "platform/services.h"
#include "runtime/convert.h"
#include "runtime/numtext.h"
#include "shell/controls.h"
#include "shell/form.h"
#include "shell/language.h"

#include <QDate>
#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>

namespace zafro {

namespace {

const QString kCifrasIniciales = QStringLiteral("9876");
const QString kLetraInicial = QStringLiteral("B");

void fuente(QWidget *w, int pointSize, bool bold)
{
    QFont font = w->font();
    font.setPointSize(pointSize);
    font.setBold(bold);
    w->setFont(font);
}

QString inicialDe(const QLineEdit *box, const QLineEdit *cifras)
{
    return box == cifras ? kCifrasIniciales : kLetraInicial;
}

} // namespace

QPixmap dibujoMatricula(const QSize &size, const QString &texto)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter p(&pixmap);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF plate(1, 1, size.width() - 2, size.height() - 2);
    const qreal radius = size.height() / 10.0;
    p.setPen(QPen(Qt::black, 2));
    p.setBrush(Qt::white);
    p.drawRoundedRect(plate, radius, radius);
    // The blue band of the European plates, with its ring of stars and the country.
    const QRectF band(plate.left() + 2, plate.top() + 2, size.height() * 0.42, plate.height() - 4);
    p.setPen(Qt::NoPen);
    p.setBrush(QColor(0, 51, 153));
    p.drawRoundedRect(band, radius / 2, radius / 2);
    p.setBrush(QColor(255, 204, 0));
    const QPointF centre(band.center().x(), band.top() + band.height() * 0.32);
    const qreal ring = band.width() * 0.28;
    for (int i = 0; i < 12; ++i) {
        const qreal angle = i * M_PI / 6;
        p.drawEllipse(centre + QPointF(ring * std::cos(angle), ring * std::sin(angle)),
                      band.width() * 0.045, band.width() * 0.045);
    }
    QFont font(QStringLiteral("Sans"));
    font.setBold(true);
    font.setPixelSize(int(band.height() * 0.28));
    p.setFont(font);
    p.setPen(Qt::white);
    p.drawText(
        QRectF(band.left(), band.top() + band.height() * 0.58, band.width(), band.height() * 0.38),
        Qt::AlignCenter, QStringLiteral("E"));
    font.setPixelSize(int(plate.height() * 0.62));
    p.setFont(font);
    p.setPen(Qt::black);
    p.drawText(plate.adjusted(band.width() + 4, 0, 0, 0), Qt::AlignCenter, texto.simplified());
    return pixmap;
}

PanelActual::PanelActual(QWidget *parent, std::function<void()> startUpdate)
    : QWidget(parent), startUpdate_(std::move(startUpdate)),
      aLabel1_(place(new QLabel(this), "aLabel1", 240, 120, 7560, 480)),
      aImage1_(place(new ClickLabel(this), "aImage1", 2040, 720, 3960, 900)),
      aText1_(place(new QLineEdit(kCifrasIniciales, this), "aText1", 1800, 1920, 1200, 405)),
      aText5_(place(new QLineEdit(kLetraInicial, this), "aText5", 3120, 1920, 480, 405)),
      aText6_(place(new QLineEdit(kLetraInicial, this), "aText6", 3660, 1920, 480, 405)),
      aText7_(place(new QLineEdit(kLetraInicial, this), "aText7", 4200, 1920, 480, 405)),
      aCommand1_(place(new QPushButton(this), "aCommand1", 4920, 1905, 1320, 435)),
      aLabel2_(place(new QLabel(this), "aLabel2", 1800, 2400, 4440, 300)),
      aLabel3_(place(new QLabel(this), "aLabel3", 240, 2940, 7560, 300)),
      aLabel5_(place(new QLabel(this), "aLabel5", 240, 3270, 7560, 480)),
      aLabel7_(place(new QLabel(QStringLiteral("Coche número xx.xxx.xxx"), this), "aLabel7", 240,
                     3780, 7560, 300)),
      aLabel4_(place(new QLabel(this), "aLabel4", 240, 4560, 4200, 300)),
      aLabel6_(place(new ClickLabel(this), "aLabel6", 4440, 4560, 3360, 300))
{
    setObjectName(QStringLiteral("Picture5"));
    setMouseTracking(true);
    fuente(aLabel1_, 14, true);
    aLabel1_->setAlignment(Qt::AlignCenter);
    aImage1_->setPixmap(dibujoMatricula(aImage1_->size(), QStringLiteral("3190 BRJ")));
    aImage1_->setCursor(Qt::PointingHandCursor);
    for (QLineEdit *box : {aText1_, aText5_, aText6_, aText7_}) {
        fuente(box, 12, true);
        box->setAlignment(Qt::AlignCenter);
        box->setMaxLength(box == aText1_ ? 4 : 1);
        box->installEventFilter(this);
    }
    fuente(aLabel2_, 8, false);
    aLabel2_->setAlignment(Qt::AlignCenter);
    aLabel3_->setAlignment(Qt::AlignCenter);
    fuente(aLabel5_, 14, true);
    aLabel5_->setAlignment(Qt::AlignCenter);
    aLabel7_->setAlignment(Qt::AlignCenter);
    fuente(aLabel4_, 8, false);
    fuente(aLabel6_, 8, false);
    aLabel6_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    aLabel6_->setCursor(Qt::PointingHandCursor);

    connect(aCommand1_, &QPushButton::clicked, this, &PanelActual::aCommand1Click);
    connect(aText1_, &QLineEdit::textChanged, this, &PanelActual::aText1Change);
    connect(aText5_, &QLineEdit::textChanged, this, &PanelActual::aText5Change);
    connect(aText6_, &QLineEdit::textChanged, this, &PanelActual::aText6Change);
    connect(aText7_, &QLineEdit::textChanged, this, &PanelActual::aText7Change);
    connect(aImage1_, &ClickLabel::clicked, this, &PanelActual::aImage1Click);
    connect(aLabel6_, &ClickLabel::clicked, this, &PanelActual::aLabel6Click);
    connect(aLabel6_, &ClickLabel::mouseMoved, this, &PanelActual::aLabel6MouseMove);
}

void PanelActual::escribirFechaDatos()
{
    aLabel4_->setText(texto(slot::MatriculasUltimaActualizacion) +
                      matriculas::fechaDatos(matriculas::inglesCargado()));
}

void PanelActual::cargarTabla()
{
    if (matriculas::datosEntrados()) {
        aLabel4_->setText(texto(slot::MatriculasUltimaActualizacion) +
                          matriculas::fechaDatos(false));
    } else {
        aLabel4_->setText(texto(slot::NuncaSincronizado));
        startUpdate_();
    }
    // kept: written again whatever the branch, so "Nunca sincronizado" never stays.
    escribirFechaDatos();
    acumulados_ = matriculas::cargarAcumulados();
    aLabel7_->setText(CStr(acumulados_.back()));
}

int PanelActual::leerLetra(QLineEdit *box, int mensaje)
{
    const int valor = matriculas::valorConsonante(box->text());
    if (valor >= 0)
        return valor;
    box->setText(kLetraInicial);
    services().dialogs->msgBox(texto(mensaje), 0, QString::fromUtf16(matriculas::kTituloError));
    return 0; // the calculation goes on with B
}

void PanelActual::aCommand1Click()
{
    for (QLineEdit *box : {aText5_, aText6_, aText7_})
        box->setText(box->text().toUpper());
    aText1_->setText(matriculas::rellenarCifras(aText1_->text()));
    letras_[0] = leerLetra(aText5_, slot::PrimeraLetraInvalida);
    letras_[1] = leerLetra(aText6_, slot::SegundaLetraInvalida);
    letras_[2] = leerLetra(aText7_, slot::TerceraLetraInvalida);
    const double numero =
        matriculas::numeroCoche(Val(aText1_->text()), letras_[0], letras_[1], letras_[2]);
    aLabel7_->setText(CStr(numero));
    const int mes = matriculas::mesDelOrdinal(acumulados_, numero);
    aLabel5_->setText(mes >= 0 ? matriculas::fechaDelMes(mes) : texto(slot::NoDesignado));
}

void PanelActual::escribirTextos()
{
    aLabel1_->setText(QStringLiteral("2000 - ") + CStr(services().clock->now().date().year()));
    aCommand1_->setText(texto(slot::MatriculasCalcular));
    aLabel2_->setText(texto(slot::RecuerdaConsonantes));
    aLabel3_->setText(texto(slot::FechaMatriculacion));
    aLabel6_->setText(texto(slot::DatosFacilitadosDgt));
    escribirFechaDatos();
}

void PanelActual::olvidarLetras()
{
    letras_[0] = letras_[1] = 0;
}

void PanelActual::aText1Change()
{
    // A leading zero is what the zero-filling writes back, so it must not move on.
    const QString t = aText1_->text();
    if (t.size() == 4 && !t.startsWith(u'0'))
        aText5_->setFocus();
}

void PanelActual::letraChange(QLineEdit *box, int mensaje, QLineEdit *siguiente)
{
    if (!matriculas::letraAdmitida(box->text())) {
        services().dialogs->msgBox(texto(mensaje), 0, texto(slot::Invalido));
        box->clear();
    }
    if (siguiente && !box->text().isEmpty() && box->text() != kLetraInicial)
        siguiente->setFocus();
}

void PanelActual::aText5Change()
{
    letraChange(aText5_, slot::SoloConsonantesPrimera, aText6_);
}

void PanelActual::aText6Change()
{
    letraChange(aText6_, slot::SoloConsonantesSegunda, aText7_);
}

void PanelActual::aText7Change()
{
    letraChange(aText7_, slot::SoloConsonantesTercera, nullptr);
}

void PanelActual::aImage1Click()
{
    services().dialogs->msgBox(texto(slot::FormatoEuropeo), 0, QString());
}

void PanelActual::aLabel6Click()
{
    services().dialogs->msgBox(texto(slot::DatosDgt), 0, QString());
}

void PanelActual::resaltarLabel6(bool encima)
{
    QFont font = aLabel6_->font();
    font.setUnderline(encima);
    aLabel6_->setFont(font);
    QPalette palette = aLabel6_->palette();
    // 0xFF0000 in the window's colour numbers is pure blue.
    palette.setColor(QPalette::WindowText, encima ? QColor(0, 0, 255) : QColor(Qt::black));
    aLabel6_->setPalette(palette);
}

void PanelActual::aLabel6MouseMove()
{
    resaltarLabel6(true);
}

void PanelActual::picture5MouseMove()
{
    resaltarLabel6(false);
}

void PanelActual::mouseMoveEvent(QMouseEvent *event)
{
    QWidget::mouseMoveEvent(event);
    picture5MouseMove();
}

bool PanelActual::eventFilter(QObject *watched, QEvent *event)
{
    auto *box = qobject_cast<QLineEdit *>(watched);
    if (!box)
        return QWidget::eventFilter(watched, event);
    const QString inicial = inicialDe(box, aText1_);
    switch (event->type()) {
    case QEvent::FocusIn:
        if (box->text() == inicial)
            box->clear();
        break;
    case QEvent::FocusOut:
        if (box->text().isEmpty())
            box->setText(inicial);
        break;
    case QEvent::KeyPress: {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            aCommand1Click();
            return true;
        }
        break;
    }
    default:
        break;
    }
    return false;
}

} // namespace zafro
