#include "shell/form.h"

#include "shell/forms.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QScreen>
#include <cmath>

namespace zafro {

Form::Form(QWidget *parent) : QWidget(parent) {}

bool Form::queryUnload(UnloadMode)
{
    return false;
}

void Form::unloadMe()
{
    forms().unload(objectName());
}

bool Form::tryUnload(UnloadMode mode)
{
    if (unloaded_)
        return true;
    if (queryUnload(mode))
        return false;
    unloaded_ = true;
    formUnload();
    hide();
    forms().formUnloaded(this);
    return true;
}

void Form::closeEvent(QCloseEvent *event)
{
    // A close that reaches us here comes from the user (the window manager's
    // button); the program unloads through the registry instead.
    if (tryUnload(UnloadMode::ControlMenu))
        event->accept();
    else
        event->ignore();
}

void Form::setGeometryTwips(int left, int top, int width, int height)
{
    setGeometry(twipsRect(left, top, width, height));
}

void Form::resizeTwips(int width, int height)
{
    resize(twipsToPixelsX(width), twipsToPixelsY(height));
}

void Form::centreOnScreen()
{
    if (const QScreen *screen = QGuiApplication::primaryScreen()) {
        QRect frame(QPoint(), size());
        frame.moveCenter(screen->availableGeometry().center());
        move(frame.topLeft());
    }
}

namespace {
int twipsPerPixel(bool horizontal)
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    const double dpi =
        screen ? (horizontal ? screen->logicalDotsPerInchX() : screen->logicalDotsPerInchY())
               : 96.0;
    if (dpi <= 0)
        return 15;
    return std::max(1, static_cast<int>(std::lround(1440.0 / dpi)));
}
} // namespace

int twipsPerPixelX()
{
    return twipsPerPixel(true);
}
int twipsPerPixelY()
{
    return twipsPerPixel(false);
}
int twipsToPixelsX(int twips)
{
    return static_cast<int>(std::lround(double(twips) / twipsPerPixelX()));
}
int twipsToPixelsY(int twips)
{
    return static_cast<int>(std::lround(double(twips) / twipsPerPixelY()));
}

QRect twipsRect(int left, int top, int width, int height)
{
    return QRect(twipsToPixelsX(left), twipsToPixelsY(top), twipsToPixelsX(width),
                 twipsToPixelsY(height));
}

void setBold(QWidget *w, int pointSize)
{
    QFont font = w->font();
    font.setBold(true);
    font.setPointSize(pointSize);
    w->setFont(font);
}

} // namespace zafro
