#pragma once

// What the small calculator windows share in building their controls and in telling
// a click on their background from a click on a control.

#include "shell/form.h"

#include <QFont>
#include <QLineEdit>
#include <QMouseEvent>
#include <QWidget>

namespace zafro::calculators {

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

} // namespace zafro::calculators
