#include "shell/toolframe.h"

#include "runtime/convert.h"
#include "shell/controls.h"
#include "shell/form.h"
#include "shell/forms.h"
#include "shell/frame_logic.h"
#include "shell/settings.h"
#include "shell/skin_sample.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QHash>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

namespace zafro {

FrameSpec frameSpecFor(const QString &window)
{
    static const QHash<QString, FrameSpec> specs{
        {QStringLiteral("trigo"), {{QStringLiteral("Label1")}}},
        {QStringLiteral("nif"), {{QStringLiteral("Label1")}}},
        {QStringLiteral("areas"), {{QStringLiteral("Label99")}, 200}},
        {QStringLiteral("pi"), {{QStringLiteral("Label10")}}},
        {QStringLiteral("diferencial"), {{QStringLiteral("Label1")}}},
        {QStringLiteral("sucesiones"), {{QStringLiteral("Label1")}}},
        {QStringLiteral("moviles"), {{QStringLiteral("Label1")}}},
        {QStringLiteral("numletras"), {{QStringLiteral("Label1")}}},
        {QStringLiteral("bisiesto"), {{QStringLiteral("Label1")}}},
        {QStringLiteral("romanos"), {{QStringLiteral("Label2")}, 0}},
        {QStringLiteral("prestamo"), {{QStringLiteral("Label5")}}},
        {QStringLiteral("morse"), {{QStringLiteral("Label1")}}},
        {QStringLiteral("ISBN"), {{QStringLiteral("Label1")}}},
        {QStringLiteral("radian"), {{QStringLiteral("Label1")}}},
        {QStringLiteral("temperatura"), {{QStringLiteral("Label10")}}},
        {QStringLiteral("loga"), {{QStringLiteral("Label1")}}},
        {QStringLiteral("visas"),
         {{QStringLiteral("Label1"), QStringLiteral("Label7"), QStringLiteral("Label9")}, 0}},
        {QStringLiteral("divisas"), {{QStringLiteral("Label3"), QStringLiteral("Label6")}, 200}},
        {QStringLiteral("divisasact"), {{QStringLiteral("Label3")}, 200}},
        {QStringLiteral("calculadora"), {{QStringLiteral("Label3")}, 200}},
        {QStringLiteral("matrices"), {{QStringLiteral("Label10"), QStringLiteral("Label11")}}},
        {QStringLiteral("cronometro"), {{QStringLiteral("Label3")}, 100, true, true}},
        {QStringLiteral("seggrado"), {{}}},
        {QStringLiteral("coordenadas1"), {{}, 0}},
        {QStringLiteral("polares1"), {{}, 0}},
        // Not painted from the skin: the games, the graphs and the plates windows.
        {QStringLiteral("tresenraya"), {{}, 100, false}},
        {QStringLiteral("parejass"), {{}, 100, false}},
        {QStringLiteral("nabes"), {{}, 0, false}},
        {QStringLiteral("coordenadas2"), {{}, 0, false}},
        {QStringLiteral("polares2"), {{}, 0, false}},
        {QStringLiteral("matriculasselect"), {{}, 0, false}},
    };
    return specs.value(window, FrameSpec{});
}

QColor skinColour(const QString &valueName)
{
    const qint32 number = CLng(readConfig(valueName, QStringLiteral("Colores")));
    return colourFromNumber(static_cast<quint32>(number));
}

ToolFrame::ToolFrame(Form *window)
    : QObject(window), window_(window), spec_(frameSpecFor(window->objectName()))
{
    if (spec_.titleInterval > 0)
        timer1_ = makeTimer(window, QStringLiteral("Timer1"), spec_.titleInterval, true,
                            [this] { timer1Timer(); });
}

void ToolFrame::paint()
{
    if (!spec_.painted)
        return;
    window_->setAutoFillBackground(true);
    setPaletteRole(window_, QPalette::Window, skinColour(QStringLiteral("BackColor")));
    for (QLabel *label : window_->findChildren<QLabel *>()) {
        const bool title = spec_.titleLabels.contains(label->objectName());
        if (spec_.paintOnlyTitleAndButtons && !title)
            continue;
        setPaletteRole(
            label, QPalette::WindowText,
            skinColour(title ? QStringLiteral("TituloForeColor") : QStringLiteral("ForeColor")));
    }
    const auto boxes = [this] {
        QList<QWidget *> all;
        for (QWidget *w : window_->findChildren<QWidget *>())
            if (qobject_cast<QLineEdit *>(w) || qobject_cast<QComboBox *>(w) ||
                qobject_cast<QCheckBox *>(w))
                all << w;
        return all;
    }();
    if (!spec_.paintOnlyTitleAndButtons)
        for (QWidget *box : boxes) {
            const QPalette::ColorRole role =
                qobject_cast<QCheckBox *>(box) ? QPalette::WindowText : QPalette::Text;
            setPaletteRole(box, role, skinColour(QStringLiteral("ForeColor")));
        }
    for (QPushButton *button : window_->findChildren<QPushButton *>())
        setPaletteRole(button, QPalette::Button, skinColour(QStringLiteral("CommandBackColor")));
    if (!spec_.paintOnlyTitleAndButtons)
        for (QWidget *box : boxes) {
            const bool check = qobject_cast<QCheckBox *>(box) != nullptr;
            box->setAutoFillBackground(check);
            if (check)
                box->setBackgroundRole(QPalette::Window); // a button's role fills it otherwise
            setPaletteRole(box, check ? QPalette::Window : QPalette::Base,
                           skinColour(QStringLiteral("BackColor")));
            // The style draws a box's edge in a shade of the colour behind it, which
            // hides the box on a dark skin; its text colour keeps it apart from a label.
            if (qobject_cast<QLineEdit *>(box))
                setPaletteRole(box, QPalette::Window, box->palette().color(QPalette::Text));
        }
}

void ToolFrame::connectClose(QAbstractButton *button)
{
    connect(button, &QAbstractButton::clicked, window_, &Form::unloadMe);
}

void ToolFrame::connectAbout(QAbstractButton *button)
{
    connect(button, &QAbstractButton::clicked, window_,
            [] { forms().show(QStringLiteral("acercade")); });
}

void ToolFrame::timer1Timer()
{
    if (readConfigNumber(QStringLiteral("tituloanimado")) != 1) {
        window_->setWindowTitle(QStringLiteral("Zafro Suite"));
        return;
    }
    pasoTitulo_ = siguientePasoTitulo(pasoTitulo_);
    window_->setWindowTitle(tituloAnimado(pasoTitulo_.toInt()));
}

namespace {

class NumericKeys : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        const QString text = static_cast<QKeyEvent *>(event)->text();
        if (text.size() != 1)
            return false; // arrows, Delete and the like type nothing
        const int key = text.at(0).unicode();
        if (key < 32 && key != 8)
            return false; // Enter, Tab, Escape are not typed characters
        return solooonumeros(key) == 0;
    }
};

} // namespace

void filterNumericKeys(QLineEdit *box)
{
    box->installEventFilter(new NumericKeys(box));
}

} // namespace zafro
