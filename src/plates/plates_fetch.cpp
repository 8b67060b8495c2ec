#include "plates/plates_fetch.h"

#include "plates/matriculas.h"
#include "shell/controls.h"
#include "shell/language.h"
#include "shell/settings.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>

namespace zafro {

namespace {

constexpr int kTimer1Ms = 500;

QString subclave()
{
    return QString::fromUtf16(matriculas::kSubclave);
}

} // namespace

DescargaMatriculas::DescargaMatriculas(QWidget *window, FetchUserKind kind, QLabel *statusLine,
                                       std::function<void()> timer1Tick)
    : QObject(window), statusLine_(statusLine), textn2_(new QPlainTextEdit(window)),
      commandn1_(new QPushButton(window)), labeln3_(new QLabel(window))
{
    setObjectName(QStringLiteral("descargaMatriculas"));
    const FetchUser &user = fetchUser(kind);
    // Console, go button and identity label are there for the cycle alone.
    textn2_->setObjectName(QLatin1String(user.console));
    commandn1_->setObjectName(QLatin1String(user.goButton));
    labeln3_->setObjectName(QLatin1String(user.identityLabel));
    for (QWidget *hidden : {static_cast<QWidget *>(textn2_), static_cast<QWidget *>(commandn1_),
                            static_cast<QWidget *>(labeln3_)})
        hidden->hide();

    timer1_ = makeTimer(window, QStringLiteral("Timer1"), kTimer1Ms, false, std::move(timer1Tick));

    FetchHooks hooks;
    hooks.setStatus = [this](const QString &t) { statusLine_->setText(t); };
    hooks.setIdentity = [this](const QString &t) { labeln3_->setText(t); };
    hooks.setConsole = [this](const QString &t) { textn2_->setPlainText(t); };
    hooks.setGoEnabled = [this](bool on) { commandn1_->setEnabled(on); };
    hooks.storeRow = &DescargaMatriculas::guardarFila;
    hooks.closingWork = [this] { closingWork(); };
    cycle_ = new FetchCycle(kind, std::move(hooks), this);
    connect(commandn1_, &QPushButton::clicked, cycle_, &FetchCycle::go);
}

void DescargaMatriculas::start(const QString &source)
{
    cycle_->start(source);
}

void DescargaMatriculas::guardarFila(const QString &mes, const QString &coches)
{
    EscribirClave(configPath(mes, subclave()), coches);
}

QString DescargaMatriculas::textoActualizado()
{
    return texto(slot::ActualizadoA) + matriculas::fechaDatos(matriculas::inglesCargado());
}

void DescargaMatriculas::closingWork()
{
    // Reached only when the walk went through every row: a run that failed midway
    // keeps the rows it stored but never claims the data as entered.
    statusLine_->setText(texto(slot::MatriculasActualizadas));
    writeConfig(QStringLiteral("entrado"), QStringLiteral("1"), subclave());
    if (!timer1_->isActive())
        timer1_->start();
}

} // namespace zafro
