#include "formulas/coordenadas_ui.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>

namespace zafro::graficas {

namespace {

class KeyPressStep : public QObject {
public:
    KeyPressStep(QObject *parent, std::function<void(int &)> step)
        : QObject(parent), step_(std::move(step))
    {}

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() != QEvent::KeyPress)
            return false;
        const auto *key = static_cast<QKeyEvent *>(event);
        int keyAscii = -1;
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter)
            keyAscii = kEnter;
        else if (key->text().size() == 1)
            keyAscii = key->text().at(0).unicode();
        if (keyAscii < 0)
            return false;
        step_(keyAscii);
        return keyAscii == 0;
    }

private:
    std::function<void(int &)> step_;
};

} // namespace

void onKeyPress(QLineEdit *box, std::function<void(int &keyAscii)> step)
{
    box->installEventFilter(new KeyPressStep(box, std::move(step)));
}

void placeBesideCentre(Form *window)
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    if (!screen) {
        window->centreOnScreen();
        return;
    }
    const QRect area = screen->availableGeometry();
    const int left = std::min(area.center().x() + 40, area.right() - window->width());
    const int top = area.top() + std::max(0, (area.height() - window->height()) / 2);
    window->move(std::max(area.left(), left), top);
}

} // namespace zafro::graficas
