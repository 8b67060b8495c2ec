#pragma once

// Small controls that behave like the original toolkit's: labels and pictures
// that take clicks, and timers built from their design values.

#include <QLabel>
#include <QTimer>

#include <functional>

namespace zafro {

// A label or picture box: it has a click, and reports the mouse moving over it.
class ClickLabel : public QLabel {
    Q_OBJECT
public:
    explicit ClickLabel(QWidget *parent = nullptr, const QString &name = {});

Q_SIGNALS:
    void clicked();
    void mouseMoved(Qt::MouseButtons buttons, QPoint pos);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    bool pressed_ = false;
};

// A timer control: named, with its design interval, enabled or not at design.
QTimer *makeTimer(QObject *owner, const QString &name, int intervalMs, bool enabled,
                  std::function<void()> onTick);

} // namespace zafro
