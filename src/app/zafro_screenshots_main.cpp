// Pictures of the suite for its documentation: starts the suite as usual, opens the
// launcher and a few tools with results showing, and saves each window as a PNG whose
// outline keeps the window's shape.   zafro-screenshots <folder> [suffix] [shot...]

#include "platform/qt_services.h"
#include "shell/accessibility.h"
#include "shell/application.h"
#include "shell/forms.h"
#include "shell/register_forms.h"
#include "shell/settings.h"
#include "shell/skins.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QEventLoop>
#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QTimer>

#include <cstdio>

namespace {

struct Step {
    enum Kind { Type, Choose, Click } kind;
    const char *control;
    const char *text;
};

struct Shot {
    const char *file;
    const char *opens;   // the window shown first
    const char *grabbed; // the window photographed, when the steps open another
    std::initializer_list<Step> steps;
};

const Shot kShots[] = {
    {"launcher", "index", "index", {}},
    {"seggrado",
     "seggrado",
     "seggrado",
     {{Step::Type, "Text1", "2"},
      {Step::Type, "Text2", "-3"},
      {Step::Type, "Text3", "-5"},
      {Step::Click, "Command3", ""}}},
    {"graphs",
     "coordenadas1",
     "coordenadas2",
     {{Step::Choose, "Combo1", "Elipse"},
      {Step::Type, "d", "1"},
      {Step::Type, "e", "4"},
      {Step::Type, "c", "2"},
      {Step::Click, "Command1", ""}}},
    {"nif", "nif", "nif", {{Step::Type, "Text10", "87654321"}}},
    {"prestamo",
     "prestamo",
     "prestamo",
     {{Step::Type, "Capital", "12000"},
      {Step::Type, "InteresesGenerados", "4.5"},
      {Step::Type, "Meses", "36"},
      {Step::Click, "CalCularDatos", ""}}},
};

void settle(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

bool perform(QWidget *window, const Step &step)
{
    QWidget *control = window->findChild<QWidget *>(QLatin1String(step.control));
    const QString text = QString::fromUtf8(step.text);
    if (auto *box = qobject_cast<QLineEdit *>(control); box && step.kind == Step::Type)
        box->setText(text);
    else if (auto *combo = qobject_cast<QComboBox *>(control); combo && step.kind == Step::Choose)
        combo->setCurrentIndex(combo->findText(text));
    else if (auto *button = qobject_cast<QAbstractButton *>(control);
             button && step.kind == Step::Click)
        button->click();
    else
        return false;
    settle(100);
    return true;
}

// The window as drawn, transparent outside its shape.
QImage picture(QWidget *window)
{
    QImage image = window->grab().toImage().convertToFormat(QImage::Format_ARGB32);
    const QRegion shape = window->mask();
    if (shape.isEmpty())
        return image;
    QImage outline(image.size(), QImage::Format_ARGB32);
    outline.setDevicePixelRatio(image.devicePixelRatio());
    outline.fill(Qt::transparent);
    QPainter painter(&outline);
    painter.setClipRegion(shape);
    painter.drawImage(QPoint(0, 0), image);
    return outline;
}

} // namespace

int main(int argc, char **argv)
{
    zafro::Application app(argc, argv);
    zafro::Application::setApplicationName(QStringLiteral("zafro"));
    zafro::Application::setApplicationDisplayName(QStringLiteral("Zafro Suite"));
    const QStringList arguments = zafro::Application::arguments().mid(1);
    if (arguments.isEmpty()) {
        std::fputs("usage: zafro-screenshots <folder> [suffix] [shot...]\n", stderr);
        return 2;
    }
    const QDir folder(arguments[0]);
    const QString suffix = arguments.value(1);
    const QStringList wanted = arguments.mid(2);

    zafro::installQtServices();
    zafro::installAccessibilityPass();
    zafro::registerForms();
    // A settled start: Spanish, no splash, a returning user with the first skin.
    zafro::writeConfig(QStringLiteral("idioma"), QStringLiteral("1"));
    zafro::writeConfig(QStringLiteral("precarga"), QStringLiteral("1"));
    zafro::writeConfig(QStringLiteral("Visitado"), QStringLiteral("41"));
    zafro::guardarSkin(1);
    zafro::forms().show(QStringLiteral("inicio"));
    settle(1500);

    int failures = 0;
    for (const Shot &shot : kShots) {
        if (!wanted.isEmpty() && !wanted.contains(QLatin1String(shot.file)))
            continue;
        QWidget *window = zafro::forms().show(QLatin1String(shot.opens));
        settle(500);
        for (const Step &step : shot.steps)
            if (!window || !perform(window, step))
                std::fprintf(stderr, "%s: no %s\n", shot.file, step.control);
        settle(1200);
        QWidget *grabbed = zafro::forms().find(QLatin1String(shot.grabbed));
        const QString file = folder.filePath(QLatin1String(shot.file) + suffix + ".png");
        if (!grabbed || !picture(grabbed).save(file)) {
            std::fprintf(stderr, "%s: not saved\n", qPrintable(file));
            ++failures;
            continue;
        }
        std::printf("%s\n", qPrintable(file));
        std::fflush(stdout);
        if (grabbed != zafro::forms().find(QStringLiteral("index")))
            zafro::forms().unloadAll(); // the next tool on a fresh launcher
        if (!zafro::forms().find(QStringLiteral("index")))
            zafro::forms().show(QStringLiteral("index"));
    }
    return failures == 0 ? 0 : 1;
}
