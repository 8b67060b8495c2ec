#include "shell/preferencias_window.h"

#include "platform/services.h"
#include "shell/forms.h"
#include "shell/index_window.h"
#include "shell/language.h"
#include "shell/launcher.h"
#include "shell/product.h"
#include "shell/settings.h"
#include "shell/skin_sample.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

namespace zafro {

namespace {

QString flag(bool ticked)
{
    return ticked ? QStringLiteral("1") : QStringLiteral("0");
}

} // namespace

PreferenciasWindow::PreferenciasWindow()
    : label1_(place(new QLabel(this), "Label1", 360, 180, 5400, 480)),
      check1_(place(new QCheckBox(this), "Check1", 480, 840, 5280, 330)),
      check2_(place(new QCheckBox(this), "Check2", 480, 1230, 5280, 330)),
      check3_(place(new QCheckBox(this), "Check3", 480, 1620, 5280, 330)),
      check4_(place(new QCheckBox(this), "Check4", 480, 2010, 5280, 330)),
      check5_(place(new QCheckBox(this), "Check5", 480, 2400, 5280, 330)),
      command1_(place(new QPushButton(QStringLiteral("Zafro Skin v:2.8"), this), "Command1", 360,
                      3000, 2640, 450)),
      command2_(place(new QPushButton(this), "Command2", 3120, 3000, 2640, 450)),
      command3_(place(new QPushButton(this), "Command3", 360, 3570, 1680, 450)),
      command7_(place(new QPushButton(this), "Command7", 2220, 3570, 1680, 450)),
      command8_(place(new QPushButton(this), "Command8", 4080, 3570, 1680, 450))
{
    resizeTwips(6120, 4320);
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QStringLiteral(
        "zafro--PreferenciasWindow { background: #123a63; }"
        "QLabel#Label1 { color: #f0b429; font-size: 15pt; font-weight: bold; }"
        "QPushButton { background: #dfe8f2; color: #10263d; border: 1px solid #6f8fb0;"
        " border-radius: 3px; padding: 2px 8px; }"
        "QPushButton:hover { background: #ffffff; }"
        "QPushButton#Command8 { background: #f0b429; font-weight: bold; }"));
    // The palette rather than the style sheet: a sheet's colour would whiten the tick too.
    for (QCheckBox *box : {check1_, check2_, check3_, check4_, check5_})
        paintText(box, Qt::white);
    connect(command1_, &QPushButton::clicked, this, &PreferenciasWindow::command1Click);
    connect(command2_, &QPushButton::clicked, this, &PreferenciasWindow::command2Click);
    connect(command3_, &QPushButton::clicked, this, &PreferenciasWindow::command3Click);
    connect(command7_, &QPushButton::clicked, this, &PreferenciasWindow::command7Click);
    connect(command8_, &QPushButton::clicked, this, &PreferenciasWindow::command8Click);
    centreOnScreen();
}

void PreferenciasWindow::formLoad()
{
    const Desktop *desktop = services().desktop;
    rutaPrograma_ =
        desktop->programFolder() + u'\\' + desktop->programFileName() + QStringLiteral(".exe");
    check1_->setChecked(readConfigNumber(QStringLiteral("internetinicio")) == 1);
    check2_->setChecked(readConfigNumber(QStringLiteral("tituloanimado")) == 1);
    check3_->setChecked(readConfigNumber(QStringLiteral("programainicio")) == 1);
    // kept: the one inverted box; the store says "skip the splash", the box "preload"
    check4_->setChecked(readConfigNumber(QStringLiteral("precarga")) == 0);
    check5_->setChecked(readConfigNumber(QStringLiteral("pregcerrar")) == 1);

    setWindowTitle(texto(slot::PreferenciasTitulo));
    label1_->setText(texto(slot::Preferencias));
    check1_->setText(texto(slot::PaginaDeInicio));
    check2_->setText(texto(slot::TituloAnimado));
    check3_->setText(texto(slot::IniciarConWindows));
    check4_->setText(texto(slot::PrecargarContenidos));
    check5_->setText(texto(slot::PreguntarAntesDeCerrar));
    command2_->setText(texto(slot::Idioma));
    command3_->setText(texto(slot::Desinstalar));
    command7_->setText(texto(slot::Cerrar));
    command8_->setText(texto(slot::Aplicar));
}

void PreferenciasWindow::command1Click()
{
    forms().show(QStringLiteral("colores"));
}

void PreferenciasWindow::command2Click()
{
    // The launcher's own language button, loading the launcher if it is not there.
    if (auto *index = qobject_cast<IndexWindow *>(forms().load(QStringLiteral("index"))))
        index->command12Click();
    unloadMe();
}

void PreferenciasWindow::command3Click()
{
    forms().show(QStringLiteral("limpia"));
    unloadMe();
}

void PreferenciasWindow::command7Click()
{
    unloadMe();
}

void PreferenciasWindow::command8Click()
{
    const QString run = QString::fromUtf16(kRunValuePath);
    if (check3_->isChecked())
        EscribirClave(run, rutaPrograma_);
    else
        BorrarClave(run);
    writeConfig(QStringLiteral("programainicio"), flag(check3_->isChecked()));
    // kept: unticking leaves the browser's start page at the product site
    if (check1_->isChecked())
        EscribirClave(startPagePath(), QString::fromUtf16(product::kSite));
    writeConfig(QStringLiteral("internetinicio"), flag(check1_->isChecked()));
    writeConfig(QStringLiteral("tituloanimado"), flag(check2_->isChecked()));
    writeConfig(QStringLiteral("pregcerrar"), flag(check5_->isChecked()));
    writeConfig(QStringLiteral("precarga"), flag(!check4_->isChecked()));
    services().dialogs->msgBox(texto(slot::ConfiguracionGuardada), msg::OkOnly,
                               texto(slot::Guardado));
}

} // namespace zafro
