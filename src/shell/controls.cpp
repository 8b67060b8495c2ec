#include "shell/controls.h"

#include <QMouseEvent>

namespace zafro {

ClickLabel::ClickLabel(QWidget *parent, const QString &name) : QLabel(parent)
{
    setObjectName(name);
    setMouseTracking(true);
}

void ClickLabel::mousePressEvent(QMouseEvent *event)
{
    pressed_ = event->button() == Qt::LeftButton;
    QLabel::mousePressEvent(event);
    // The press is the label's own: the window behind must not start a drag with it.
    event->accept();
}

void ClickLabel::mouseReleaseEvent(QMouseEvent *event)
{
    const bool wasPressed = pressed_;
    pressed_ = false;
    QLabel::mouseReleaseEvent(event);
    if (wasPressed && event->button() == Qt::LeftButton &&
        rect().contains(event->position().toPoint()))
        Q_EMIT clicked();
}

void ClickLabel::mouseMoveEvent(QMouseEvent *event)
{
    QLabel::mouseMoveEvent(event);
    // Kept from the window behind, whose own mouse-move step would undo this one.
    event->accept();
    Q_EMIT mouseMoved(event->buttons(), event->position().toPoint());
}

QTimer *makeTimer(QObject *owner, const QString &name, int intervalMs, bool enabled,
                  std::function<void()> onTick)
{
    auto *timer = new QTimer(owner);
    timer->setObjectName(name);
    timer->setInterval(intervalMs);
    QObject::connect(timer, &QTimer::timeout, owner, std::move(onTick));
    if (enabled)
        timer->start();
    return timer;
}

} // namespace zafro
