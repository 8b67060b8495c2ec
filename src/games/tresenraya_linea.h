#pragma once

#include "games/tresenraya.h"

#include <QWidget>

namespace zafro {

// A line control of the board: its ends in twips of the window, painted over the
// pieces and transparent to clicks.
class LineaTablero : public QWidget {
    Q_OBJECT
    Q_PROPERTY(int X1 READ x1)
    Q_PROPERTY(int Y1 READ y1)
    Q_PROPERTY(int X2 READ x2)
    Q_PROPERTY(int Y2 READ y2)
public:
    LineaTablero(QWidget *parent, const QString &name);
    void set(const Linea &linea);
    int x1() const { return linea_.x1; }
    int y1() const { return linea_.y1; }
    int x2() const { return linea_.x2; }
    int y2() const { return linea_.y2; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Linea linea_;
};

} // namespace zafro
