#include "plates/provincial_pane.h"

#include "plates/matriculas.h"
#include "platform/services.h"
#include "runtime/convert.h"
#include "runtime/numtext.h"
#include "shell/controls.h"
#include "shell/form.h"
#include "shell/language.h"

#include <QComboBox>
#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

namespace zafro {

namespace {

const QString kEligeProvincia = QStringLiteral("Elige una provincia de la lista");

QComboBox *oculto(QComboBox *combo, const QString &nombre, const QStringList &entradas)
{
    combo->setObjectName(nombre);
    combo->addItems(entradas);
    combo->hide();
    return combo;
}

QStringList anos(int desde, int hasta)
{
    QStringList lista;
    for (int ano = desde; ano <= hasta; ++ano)
        lista << CStr(ano);
    return lista;
}

QLineEdit *caja(QLineEdit *box, int maximo)
{
    setBold(box, 12);
    box->setAlignment(Qt::AlignCenter);
    box->setMaxLength(maximo);
    return box;
}

} // namespace

PanelProvincial::PanelProvincial(QWidget *parent, EstadoProvincial &estado, char prefijo,
                                 const char *boton, const QString &titulo)
    : QWidget(parent), estado_(estado), prefijo_(prefijo)
{
    titulo_ = place(new QLabel(titulo, this), nombre("Label1"), 240, 240, 7560, 480);
    etiquetaProvincia_ = place(new QLabel(this), nombre("Label3"), 240, 1140, 2640, 345);
    combo1_ = place(new QComboBox(this), nombre("Combo1"), 3000, 1110, 3300, 405);
    text7_ = place(new QLineEdit(this), nombre("Text7"), 1740, 1920, 840, 405);
    calcular_ = place(new QPushButton(this), QLatin1String(boton), 0, 0, 1320, 435);
    label5_ = place(new QLabel(this), nombre("Label5"), 240, 3000, 7560, 960);
    label2_ =
        place(new QLabel(CStr(provincias::kSinProvincia), this), nombre("Label2"), 0, 0, 600, 300);
    label2_->hide();

    QStringList nombres;
    QStringList codigos;
    for (int i = 0; i < provincias::kProvincias; ++i) {
        nombres << QString::fromUtf16(provincias::provincia(i).nombre);
        codigos << QLatin1String(provincias::provincia(i).codigo);
    }
    combo1_->addItems(nombres);
    combo1_->setCurrentIndex(-1);
    combo2_ = oculto(new QComboBox(this), nombre("Combo2"), codigos);
    combo4_ = oculto(new QComboBox(this), nombre("Combo4"), {});

    setBold(titulo_, 14);
    titulo_->setAlignment(Qt::AlignCenter);
    etiquetaProvincia_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    caja(text7_, 3)->setReadOnly(true);
    text7_->setToolTip(kEligeProvincia);
    setBold(label5_, 14);
    label5_->setAlignment(Qt::AlignCenter);
    label5_->setWordWrap(true);
    calculaConIntro(text7_);
    calculaConIntro(combo1_);

    connect(combo1_, &QComboBox::currentIndexChanged, this, &PanelProvincial::combo1Click);
    connect(calcular_, &QPushButton::clicked, this, [this] { calcular(); });
}

QString PanelProvincial::nombre(const char *control) const
{
    return QLatin1Char(prefijo_) + QLatin1String(control);
}

void PanelProvincial::textoInicial(QLineEdit *box, const QString &inicial)
{
    box->setText(inicial);
    iniciales_.insert(box, inicial);
}

void PanelProvincial::calculaConIntro(QWidget *control)
{
    conIntro_ << control;
    control->installEventFilter(this);
}

void PanelProvincial::escribirTextos()
{
    etiquetaProvincia_->setText(texto(slot::Provincia));
    calcular_->setText(texto(slot::ProvinciasCalcular));
    label5_->clear();
}

void PanelProvincial::combo1Click()
{
    const int i = combo1_->currentIndex();
    if (i < 0)
        return;
    text7_->setText(combo2_->itemText(i));
    label2_->setText(CStr(i));
}

int PanelProvincial::elegida() const
{
    return int(Val(label2_->text()));
}

void PanelProvincial::mensaje(int slot, const QString &titulo)
{
    services().dialogs->msgBox(texto(slot), 0, titulo);
}

bool PanelProvincial::antesDelPaso(QLineEdit *cifras, const QString &ceros)
{
    if (Val(cifras->text()) == 0) {
        mensaje(slot::PongaNumero);
        cifras->setText(ceros);
    }
    if (elegida() == provincias::kSinProvincia) {
        mensaje(slot::SeleccioneProvincia);
        return false;
    }
    return true;
}

void PanelProvincial::mostrarResultado(const provincias::Hallazgo &hallazgo, double numero,
                                       double factor)
{
    switch (hallazgo.tipo) {
    case provincias::Hallazgo::Parada:
        break;
    case provincias::Hallazgo::NoExiste:
        label5_->setText(texto(slot::NoExisteEn) + provincias::nombreEnMensaje(elegida()));
        break;
    case provincias::Hallazgo::Encontrado: {
        const int mes = provincias::mesEstimado(numero, hallazgo.p, hallazgo.c, factor);
        label5_->setText(estado_.matriculadoEn + texto(slot::Enero + mes).toLower() +
                         texto(slot::MesDeAno) + combo4_->itemText(hallazgo.ano));
        break;
    }
    }
}

bool PanelProvincial::eventFilter(QObject *watched, QEvent *event)
{
    auto *box = qobject_cast<QLineEdit *>(watched);
    const auto inicial = iniciales_.constFind(watched);
    switch (event->type()) {
    case QEvent::FocusIn:
        if (box && inicial != iniciales_.cend() && box->text() == *inicial)
            box->clear();
        break;
    case QEvent::FocusOut:
        if (box && inicial != iniciales_.cend() && box->text().isEmpty())
            box->setText(*inicial);
        break;
    case QEvent::KeyPress: {
        const int key = static_cast<QKeyEvent *>(event)->key();
        if (conIntro_.contains(watched) && (key == Qt::Key_Return || key == Qt::Key_Enter)) {
            calcular();
            return true;
        }
        break;
    }
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

// --- 1971 - 2000 -------------------------------------------------------------------

Panel1971::Panel1971(QWidget *parent, EstadoProvincial &estado)
    : PanelProvincial(parent, estado, 'b', "bCommand2", QStringLiteral("1971 - 2000")),
      bText1_(place(new QLineEdit(this), "bText1", 2700, 1920, 1200, 405)),
      bText5_(place(new QLineEdit(this), "bText5", 4020, 1920, 720, 405)),
      bText4_(place(new QLineEdit(this), "bText4", 0, 0, 1200, 405)),
      bCommand1_(
          place(new QPushButton(QStringLiteral("Calcular 2"), this), "bCommand1", 0, 0, 1320, 435))
{
    setObjectName(QStringLiteral("Picture2"));
    calcular_->move(twipsToPixelsX(4980), twipsToPixelsY(1905));
    combo4_->addItems(anos(1971, 2000));
    bText4_->hide();
    bCommand1_->hide();
    caja(bText1_, 4);
    caja(bText5_, 2);
    textoInicial(bText1_, QStringLiteral("1234"));
    textoInicial(bText5_, QStringLiteral("AA"));
    calculaConIntro(bText1_);
    calculaConIntro(bText5_);
    connect(bText1_, &QLineEdit::textChanged, this, &Panel1971::bText1Change);
    connect(bCommand1_, &QPushButton::clicked, this, &Panel1971::bCommand1Click);
}

void Panel1971::bText1Change()
{
    // A leading zero is what the zero-filling writes back, so it must not move on.
    const QString t = bText1_->text();
    if (t.size() == 4 && !t.startsWith(u'0'))
        bText5_->setFocus();
}

void Panel1971::bCommand2Click()
{
    bText1_->setText(matriculas::rellenarCifras(bText1_->text()));
    bText5_->setText(bText5_->text().toUpper());
    const QString letras = bText5_->text();
    if (letras.size() != 1 && letras.size() != 2)
        return;
    int valores[2] = {0, 0};
    bool validas = true;
    for (qsizetype k = 0; k < letras.size(); ++k) {
        valores[k] = provincias::valorLetra(letras.at(k));
        if (valores[k] < 0) {
            mensaje(slot::LetraValida, QString::fromUtf16(matriculas::kTituloError));
            validas = false;
        }
    }
    if (!validas) {
        label5_->clear();
        return;
    }
    const double digitos = Val(bText1_->text());
    const double numero = letras.size() == 2
                              ? provincias::numeroCoche(digitos, valores[0], valores[1])
                              : provincias::numeroCoche(digitos, valores[0]);
    bText4_->setText(CStr(numero));
    bCommand1Click();
}

void Panel1971::bCommand1Click()
{
    const int i = elegida();
    const QStringList lista =
        i >= 0 && i < provincias::kProvincias
            ? provincias::lista(QLatin1String(provincias::provincia(i).lista1971))
            : QStringList();
    const double numero = Val(bText4_->text());
    const auto hallazgo = provincias::buscarAno(lista, numero, estado_.indice, [this] {
        return antesDelPaso(bText1_, QStringLiteral("0000"));
    });
    // kept: the format ended in September 2000, so that year's share is of 7.5 months.
    const double factor = hallazgo.ano == provincias::kAnos1971 - 1 ? 7.5 : 11;
    mostrarResultado(hallazgo, numero, factor);
}

// --- 1900 - 1971 -------------------------------------------------------------------

Panel1900::Panel1900(QWidget *parent, EstadoProvincial &estado)
    : PanelProvincial(parent, estado, 'c', "cCommand1", QStringLiteral("1900 - 1971")),
      cText1_(place(new QLineEdit(this), "cText1", 3000, 1920, 1560, 405))
{
    setObjectName(QStringLiteral("Picture4"));
    text7_->move(twipsToPixelsX(2040), text7_->y());
    calcular_->move(twipsToPixelsX(4680), twipsToPixelsY(1905));
    // The blank entry closes the provinces; the former territories follow it.
    combo1_->addItem(QString());
    combo2_->addItem(QString());
    for (int i = 0; i < provincias::kTerritorios; ++i) {
        combo1_->addItem(QString::fromUtf16(provincias::territorio(i).nombre));
        combo2_->addItem(QLatin1String(provincias::territorio(i).codigo));
    }
    combo1_->setCurrentIndex(-1);
    // kept: there never was a 1914 entry; "before 1914" covers it.
    combo4_->addItem(QStringLiteral("Antes de 1914"));
    combo4_->addItems(anos(1915, 1971));
    caja(cText1_, 6);
    textoInicial(cText1_, QStringLiteral("123456"));
    calculaConIntro(cText1_);
}

void Panel1900::cCommand1Click()
{
    const int i = elegida();
    if (i > provincias::kSinProvincia) {
        antesDelPaso(cText1_, QStringLiteral("000000"));
        label5_->setText(i == provincias::kSinProvincia + 1 ? texto(slot::Posterior1952)
                                                            : estado_.colonias);
        estado_.indice = QStringLiteral("-1");
        return;
    }
    const QStringList lista =
        i >= 0 && i < provincias::kProvincias
            ? provincias::lista(QLatin1String(provincias::provincia(i).lista1900))
            : QStringList();
    const double numero = Val(cText1_->text());
    const auto hallazgo = provincias::buscarAno(lista, numero, estado_.indice, [this] {
        return antesDelPaso(cText1_, QStringLiteral("000000"));
    });
    if (hallazgo.tipo == provincias::Hallazgo::Encontrado && hallazgo.ano == 0)
        label5_->setText(estado_.antesDe1914);
    else
        mostrarResultado(hallazgo, numero, 11);
}

} // namespace zafro
