#include "online/divisasact_window.h"

#include "online/divisas.h"
#include "online/fetch_cycle.h"
#include "platform/services.h"
#include "runtime/convert.h"
#include "shell/controls.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/settings.h"
#include "shell/toolframe.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace zafro {

namespace {

const QString kDivisas = QString::fromUtf16(kDivisasKey);

void setMainCaption(const QString &caption)
{
    if (QWidget *index = forms().find(QStringLiteral("index")))
        index->setWindowTitle(caption);
}

} // namespace

DivisasActWindow::DivisasActWindow()
    : label3_(place(new QLabel(this), "Label3", 120, 120, 5760, 480)),
      label8_(place(new QLabel(this), "Label8", 240, 720, 5520, 1080)),
      label1_(place(new QLabel(this), "Label1", 240, 1860, 5520, 300)),
      label9_(place(new QLabel(this), "Label9", 240, 2220, 5520, 300)),
      label2_(place(new ClickLabel(this), "Label2", 240, 3180, 5520, 300)),
      command1_(place(new QPushButton(this), "Command1", 1680, 2640, 2640, 420)),
      command3_(place(new QPushButton(this), "Command3", 240, 3600, 1680, 420)),
      command2_(place(new QPushButton(this), "Command2", 4080, 3600, 1680, 420)),
      command7_(place(new QPushButton(this), "Command7", 2160, 3600, 1680, 420)),
      text1_(
          place(new QLineEdit(QStringLiteral("Comprobacion"), this), "Text1", 240, 3180, 1200, 300))
{
    setWindowTitle(QStringLiteral("Zafro Suite"));
    resizeTwips(6000, 4260);
    label3_->setAlignment(Qt::AlignCenter);
    setBold(label3_, 14);
    label8_->setWordWrap(true);
    label8_->setAlignment(Qt::AlignJustify | Qt::AlignTop);
    label9_->setAlignment(Qt::AlignCenter);
    setBold(label9_, 9);
    label2_->setAlignment(Qt::AlignCenter);
    label2_->setCursor(Qt::PointingHandCursor);
    QFont link = label2_->font();
    link.setUnderline(true);
    label2_->setFont(link);
    text1_->hide();

    FetchHooks hooks;
    hooks.setStatus = [this](const QString &t) { label9_->setText(t); };
    hooks.setGoEnabled = [this](bool on) { command1_->setEnabled(on); };
    hooks.beforeParse = [] {
        services().dialogs->msgBox(texto(slot::ProcesoPuedeTardar), 0, QString());
        forms().show(QStringLiteral("divisasactualizando"));
    };
    hooks.beforeWalk = [this] { beforeWalk(); };
    hooks.storeRow = [this](const QString &c, const QString &r) { storeRate(c, r); };
    hooks.closingWork = [this] { closingWork(); };
    // The poll runs from the window's creation, before there is a document.
    cycle_ = new FetchCycle(FetchUserKind::Rates, std::move(hooks), this);

    connect(command1_, &QPushButton::clicked, this, &DivisasActWindow::command1Click);
    connect(command2_, &QPushButton::clicked, this, &DivisasActWindow::command2Click);
    connect(command3_, &QPushButton::clicked, this, &DivisasActWindow::command3Click);
    connect(label2_, &ClickLabel::clicked, this, &DivisasActWindow::label2Click);
    centreOnScreen();
}

void DivisasActWindow::formLoad()
{
    cycle_->setContador(QStringLiteral("0"));
    frame_ = new ToolFrame(this);
    frame_->paint();
    label3_->setText(texto(slot::DivisasActualizarTitulo));
    label8_->setText(texto(slot::DivisasNuevaVersion));
    label2_->setText(texto(slot::DatosBancoCentral));
    command1_->setText(texto(slot::ActualizarConServidor));
    command3_->setText(texto(slot::Aceptar));
    command2_->setText(texto(slot::Cerrar));
    command7_->setText(texto(slot::AcercaDe));
    frame_->connectAbout(command7_);

    if (readConfigNumber(QStringLiteral("Entrado"), kDivisas) == 1)
        label1_->setText(texto(slot::DivisasUltimaActualizacion) +
                         hastaNulo(readConfig(QStringLiteral("Fecha"), kDivisas)));
    else
        label1_->setText(texto(slot::NuncaSincronizado));

    cycle_->start(ratesSource());
}

bool DivisasActWindow::queryUnload(UnloadMode mode)
{
    return !isProgramReason(mode);
}

void DivisasActWindow::formUnload()
{
    cycle_->stop();
}

void DivisasActWindow::command1Click()
{
    cycle_->go();
}

void DivisasActWindow::command2Click()
{
    forms().unload(QStringLiteral("divisas"));
    unloadMe();
}

void DivisasActWindow::command3Click()
{
    forms().show(QStringLiteral("divisas"));
    unloadMe();
}

void DivisasActWindow::label2Click()
{
    services().desktop->openUrl(QString::fromUtf16(kPaginaBanco));
}

void DivisasActWindow::storeRate(const QString &currency, const QString &rate)
{
    writeConfig(currency, rate, kDivisas);
}

void DivisasActWindow::beforeWalk()
{
    // The date of the update is the local one, whatever day the feed is dated.
    fechaHoy_ = services().clock->now().date();
    setWindowTitle(texto(slot::ActualizandoValores));
    setMainCaption(texto(slot::ZafroActualizando));
}

void DivisasActWindow::closingWork()
{
    forms().unload(QStringLiteral("divisasactualizando"));
    setWindowTitle(QStringLiteral("Zafro Suite"));
    setMainCaption(QStringLiteral("Zafro Suite"));
    writeConfig(QStringLiteral("Entrado"), QStringLiteral("1"), kDivisas);
    writeConfig(QStringLiteral("Fecha"), fechaActualizacion(fechaHoy_), kDivisas);
    label1_->setText(texto(slot::DivisasUltimaActualizacion) +
                     hastaNulo(readConfig(QStringLiteral("Fecha"), kDivisas)));
    services().dialogs->msgBox(texto(slot::DivisasActualizadas), 0, QString());
    command3Click();
}

} // namespace zafro
