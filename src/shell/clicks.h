#pragma once

// Telling a click on a window's background from a click on one of its controls, and
// a click in a text box, which the tools answer by emptying or filling boxes.

#include "shell/form.h"

#include <QMouseEvent>
#include <QWidget>

namespace zafro {

// A left click that ends on the window's own surface. A press on a label passes up
// to the window too, but then the label lies under the point.
inline bool isBackgroundClick(QWidget *window, const QMouseEvent *event)
{
    return event->button() == Qt::LeftButton &&
           window->rect().contains(event->position().toPoint()) &&
           window->childAt(event->position().toPoint()) == nullptr;
}

// A left-button release in a text box: its click.
inline bool isBoxClick(const QEvent *event)
{
    return event->type() == QEvent::MouseButtonRelease &&
           static_cast<const QMouseEvent *>(event)->button() == Qt::LeftButton;
}

} // namespace zafro
