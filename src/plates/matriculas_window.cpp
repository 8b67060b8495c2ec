#include "plates/matriculas_window.h"

#include "plates/current_pane.h"
#include "plates/matriculas.h"
#include "plates/plates_update.h"
#include "platform/services.h"
#include "runtime/convert.h"
#include "runtime/numtext.h"
#include "shell/controls.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/product.h"
#include "shell/settings.h"
#include "shell/toolframe.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace zafro {

namespace {

using Handler = void (MatriculasWindow::*)();

// The menu bar in its order: a menu row has no menu of its own; an entry of slot 0
// is a separator, one of slot -1 keeps a fixed caption.
struct MenuRow {
    const char *menu;
    const char *name;
    int slot;
    Handler handler;
};

const MenuRow kMenus[] = {
    {nullptr, "menuarchivo", slot::MatriculasArchivo, nullptr},
    {"menuarchivo", "menuactualizar", slot::MatriculasActualizar, &MatriculasWindow::command6Click},
    {"menuarchivo", "menuimportar", slot::ImportarDatos, &MatriculasWindow::menuimportarClick},
    {"menuarchivo", "menublanco", 0, nullptr},
    {"menuarchivo", "menucerrar", slot::Cerrar, &MatriculasWindow::menucerrarClick},
    {nullptr, "menuelegir", slot::ElegirMatricula, nullptr},
    {"menuelegir", "menumat1", -1, &MatriculasWindow::command1Click},
    {"menuelegir", "menumat2", -1, &MatriculasWindow::command4Click},
    {"menuelegir", "menumat3", -1, &MatriculasWindow::command5Click},
    {nullptr, "menuopciones", slot::MenuOpciones, nullptr},
    {"menuopciones", "menuidioma", slot::Idioma, nullptr},
    {"menuidioma", "menuespanol", slot::MenuEspanol, &MatriculasWindow::menuespanolClick},
    {"menuidioma", "menuingles", slot::MenuIngles, &MatriculasWindow::menuinglesClick},
    {"menuidioma", "menuvalenciano", slot::MenuValenciano, &MatriculasWindow::menuvalencianoClick},
    {"menuopciones", "menuauto", slot::ActualizacionesAutomaticas,
     &MatriculasWindow::menuautoClick},
    {nullptr, "menuayuda", slot::MatriculasAyuda, nullptr},
    {"menuayuda", "menuweb", slot::MasInformacion, &MatriculasWindow::menuwebClick},
    {"menuayuda", "menunadaaa", 0, nullptr},
    {"menuayuda", "menuacerca", slot::AcercaDe, &MatriculasWindow::menuacercaClick},
};

constexpr int kClientWidth = 10920;
constexpr int kClientHeight = 6600;

// Old plates were white on black, the provincial ones black on white, and the
// national ones carry the blue European band.
QPushButton *formatButton(QPushButton *button, const char *style)
{
    QFont font = button->font();
    font.setBold(true);
    font.setPointSize(13);
    button->setFont(font);
    button->setStyleSheet(QLatin1String(style));
    return button;
}

QString desde2000()
{
    return QStringLiteral("2000 - ") + CStr(services().clock->now().date().year());
}

} // namespace

MatriculasWindow::MatriculasWindow()
    : menuBar_(new QMenuBar(this)), client_(new QWidget(this)),
      command1_(formatButton(place(new QPushButton(QStringLiteral("M - 134973"), client_),
                                   "Command1", 240, 360, 2160, 900),
                             "QPushButton { background: black; color: white;"
                             " border: 3px solid #888; border-radius: 6px; }")),
      command4_(formatButton(place(new QPushButton(QStringLiteral("V · 6497 · GH"), client_),
                                   "Command4", 240, 1560, 2160, 900),
                             "QPushButton { background: white; color: black;"
                             " border: 3px solid black; border-radius: 6px; }")),
      command5_(formatButton(place(new QPushButton(QStringLiteral("  3190  BRJ"), client_),
                                   "Command5", 240, 2760, 2160, 900),
                             "QPushButton { color: black; border: 3px solid black;"
                             " border-radius: 6px; padding-left: 14px; background:"
                             " qlineargradient(x1: 0, y1: 0, x2: 1, y2: 0, stop: 0 #003399,"
                             " stop: 0.1 #003399, stop: 0.101 white, stop: 1 white); }")),
      command6_(place(new QPushButton(client_), "Command6", 240, 4080, 2160, 435)),
      label1_(place(new QLabel(client_), "Label1", 3600, 1320, 3240, 1800)),
      label2_(place(new QLabel(client_), "Label2", 6200, 2820, 600, 300)),
      labeln9_(place(new QLabel(client_), "Labeln9", 240, 6180, 10440, 300)),
      ls_(place(new QLabel(client_), "ls", 0, 0, 300, 300)),
      picture2_(new Panel1971(client_, provincial_)),
      picture4_(new Panel1900(client_, provincial_)),
      picture5_(new PanelActual(client_, [this] { command6Click(); }))
{
    setWindowTitle(QStringLiteral("Zafro Matrículas"));
    for (QWidget *pane : panes()) {
        pane->setGeometry(twipsRect(2640, 120, 8040, 5880));
        pane->setAutoFillBackground(true);
        pane->hide();
    }
    ls_->hide();
    command1_->setToolTip(QStringLiteral("1900 - 1971"));
    command4_->setToolTip(QStringLiteral("1971 - 2000"));
    // The dots sit on the last line of the invitation whatever its number of lines.
    label1_->setWordWrap(true);
    QFont font = label1_->font();
    font.setPointSize(12);
    font.setBold(true);
    label1_->setFont(font);
    label2_->setFont(font);
    label1_->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
    label2_->setAlignment(Qt::AlignLeft | Qt::AlignBottom);

    buildMenus();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->setMenuBar(menuBar_);
    client_->setFixedSize(twipsToPixelsX(kClientWidth), twipsToPixelsY(kClientHeight));
    layout->addWidget(client_);

    connect(command1_, &QPushButton::clicked, this, &MatriculasWindow::command1Click);
    connect(command4_, &QPushButton::clicked, this, &MatriculasWindow::command4Click);
    connect(command5_, &QPushButton::clicked, this, &MatriculasWindow::command5Click);
    connect(command6_, &QPushButton::clicked, this, &MatriculasWindow::command6Click);
    timer2_ = makeTimer(this, QStringLiteral("Timer2"), 800, true, [this] { timer2Timer(); });
    centreOnScreen();
}

void MatriculasWindow::buildMenus()
{
    menuBar_->setObjectName(QStringLiteral("menubar"));
    menuBar_->setNativeMenuBar(false);
    for (const MenuRow &row : kMenus) {
        const QString name = QLatin1String(row.name);
        QMenu *parent = row.menu ? findChild<QMenu *>(QLatin1String(row.menu)) : nullptr;
        if (!row.menu || (!row.handler && row.slot > 0)) {
            QMenu *menu = parent ? parent->addMenu(QString()) : menuBar_->addMenu(QString());
            menu->setObjectName(name);
            menu->menuAction()->setObjectName(name);
            if (name == QLatin1String("menuidioma"))
                menuidioma_ = menu;
            continue;
        }
        QAction *entry = row.slot == 0 ? parent->addSeparator() : parent->addAction(QString());
        entry->setObjectName(name);
        if (row.handler)
            connect(entry, &QAction::triggered, this, row.handler);
    }
    for (const char *name : {"menuespanol", "menuingles", "menuvalenciano", "menuauto"})
        action(name)->setCheckable(true);
    action("menumat1")->setText(QStringLiteral("1900 - 1971"));
    action("menumat2")->setText(QStringLiteral("1971 - 2000"));
}

QAction *MatriculasWindow::action(const char *name) const
{
    return findChild<QAction *>(QLatin1String(name));
}

bool MatriculasWindow::bajoElIndice() const
{
    return Val(ls_->text()) == 1;
}

void MatriculasWindow::formLoad()
{
    frame_ = new ToolFrame(this);
    frame_->paint();
    paneActual_ = QStringLiteral("0");
    picture5_->olvidarLetras();
    const int ano = services().clock->now().date().year();
    if (ano > 2010)
        services().dialogs->msgBox(QString::fromUtf16(matriculas::kAvisoPosterior2010), 0,
                                   QString());
    const QString subclave = QString::fromUtf16(matriculas::kSubclave);
    if (bajoElIndice()) {
        menuidioma_->menuAction()->setVisible(false);
    } else {
        CargarEspanol();
        menuidioma_->menuAction()->setVisible(true);
        const int codigo = int(readConfigNumber(QStringLiteral("idioma"), subclave));
        matriculas::cargarIdioma(codigo);
        marcarIdioma(codigo);
    }
    if (readConfigNumber(QStringLiteral("auto"), subclave) == 1) {
        action("menuauto")->setChecked(true);
        command6Click();
    } else {
        action("menuauto")->setChecked(false);
    }
    action("menumat3")->setText(desde2000());
    command5_->setToolTip(desde2000());
    command2Click();
}

void MatriculasWindow::command2Click()
{
    labeln9_->setText(texto(slot::MatriculasUltimaActualizacion) +
                      matriculas::fechaDatos(matriculas::inglesCargado()));
    setWindowTitle(texto(slot::MatriculasTitulo));
    label1_->setText(texto(slot::SeleccioneTipoMatricula));
    command6_->setText(texto(slot::MatriculasActualizar));
    picture5_->escribirTextos();
    picture2_->escribirTextos();
    picture4_->escribirTextos();
    for (const MenuRow &row : kMenus) {
        if (row.slot <= 0)
            continue;
        QString text = texto(row.slot);
        if (row.slot == slot::AcercaDe)
            text += QStringLiteral("...");
        if (QAction *entry = action(row.name))
            entry->setText(text);
    }
    provincial_.matriculadoEn = texto(slot::CocheMatriculadoEn);
    provincial_.antesDe1914 = texto(slot::AntesDe1914);
    provincial_.colonias = texto(slot::AntiguasColonias);
    label2_->clear();
    // Where the sentence of Label1 ends in each language, so that the dots follow it.
    int left = 10000;
    switch (matriculas::idiomaCargado()) {
    case 1:
        left = 6200;
        break;
    case 2:
        left = 5750;
        break;
    case 4:
        left = 6130;
        break;
    default:
        break;
    }
    label2_->move(twipsToPixelsX(left), label2_->y());
}

void MatriculasWindow::timer2Timer()
{
    const QString t = label2_->text();
    if (t.isEmpty())
        label2_->setText(QStringLiteral("."));
    else if (t == QLatin1String("."))
        label2_->setText(QStringLiteral(".."));
    else if (t == QLatin1String(".."))
        label2_->setText(QStringLiteral("..."));
    else if (t == QLatin1String("..."))
        label2_->clear();
    else
        label2_->setText(QStringLiteral("."));
}

QList<QWidget *> MatriculasWindow::panes() const
{
    return {picture2_, picture4_, picture5_};
}

void MatriculasWindow::mostrarPanel(QWidget *panel)
{
    for (QWidget *pane : panes())
        pane->setVisible(pane == panel);
}

void MatriculasWindow::command1Click()
{
    paneActual_ = QStringLiteral("0");
    mostrarPanel(picture4_);
    provincial_.indice = QStringLiteral("-1");
}

void MatriculasWindow::command4Click()
{
    paneActual_ = QStringLiteral("0");
    mostrarPanel(picture2_);
    provincial_.indice = QStringLiteral("-1");
}

void MatriculasWindow::command5Click()
{
    paneActual_ = QStringLiteral("1");
    mostrarPanel(picture5_);
    command3Click();
}

void MatriculasWindow::command3Click()
{
    picture5_->cargarTabla();
}

void MatriculasWindow::command6Click()
{
    Q_EMIT actualizacionIniciada();
    startPlatesUpdate(*this);
}

void MatriculasWindow::marcarIdioma(int codigo)
{
    const int elegido = (codigo == 2 || codigo == 4) ? codigo : 1;
    action("menuespanol")->setChecked(elegido == 1);
    action("menuingles")->setChecked(elegido == 2);
    action("menuvalenciano")->setChecked(elegido == 4);
}

void MatriculasWindow::elegirIdioma(int codigo)
{
    marcarIdioma(codigo);
    matriculas::cargarIdioma(codigo);
    label1_->clear();
    command2Click();
    // The window's own language: the suite's stays as it was.
    writeConfig(QStringLiteral("idioma"), CStr(codigo), QString::fromUtf16(matriculas::kSubclave));
}

void MatriculasWindow::menuespanolClick()
{
    elegirIdioma(1);
}

void MatriculasWindow::menuinglesClick()
{
    elegirIdioma(2);
}

void MatriculasWindow::menuvalencianoClick()
{
    elegirIdioma(4);
}

void MatriculasWindow::menuautoClick()
{
    // The entry checks itself when triggered; the step decides from the state before.
    QAction *autoEntry = action("menuauto");
    const bool estaba = !autoEntry->isChecked();
    autoEntry->setChecked(!estaba);
    writeConfig(QStringLiteral("auto"), estaba ? QStringLiteral("0") : QStringLiteral("1"),
                QString::fromUtf16(matriculas::kSubclave));
}

void MatriculasWindow::menuimportarClick()
{
    showPlatesImport();
}

void MatriculasWindow::menuwebClick()
{
    services().desktop->openUrl(QString::fromUtf16(product::kMakerSite));
}

void MatriculasWindow::menuacercaClick()
{
    forms().show(QStringLiteral("matacercade"));
}

void MatriculasWindow::menucerrarClick()
{
    const bool porSuCuenta = !bajoElIndice();
    unloadMe();
    if (porSuCuenta)
        services().desktop->endProgram(0);
}

} // namespace zafro
