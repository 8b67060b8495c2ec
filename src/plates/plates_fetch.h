#pragma once

// The download machinery the plates window and the import window share: the fetch
// cycle with its hidden controls, the store of each row under "Matriculas", and the
// closing work that marks the data as entered and arms the window's `Timer1`.
//
// What `Timer1` does 500 ms later differs between the two windows, so each passes
// its own step.

#include "online/fetch_cycle.h"

#include <QObject>

#include <functional>

class QLabel;
class QPlainTextEdit;
class QPushButton;
class QTimer;
class QWidget;

namespace zafro {

class DescargaMatriculas : public QObject {
    Q_OBJECT
public:
    // The hidden console, go button, identity label and `Timer1` are made on the
    // window; the status line is the window's own.
    DescargaMatriculas(QWidget *window, FetchUserKind kind, QLabel *statusLine,
                       std::function<void()> timer1Tick);

    // A new start replaces the document; timers already running go on.
    void start(const QString &source);

    FetchCycle *cycle() const { return cycle_; }
    QTimer *timer1() const { return timer1_; }

    // Stores one row as it comes: its name and text are taken as they are.
    static void guardarFila(const QString &mes, const QString &coches);
    // "Actualizado a " and the data's date, month first in English.
    static QString textoActualizado();

private:
    void closingWork();

    QLabel *statusLine_;
    QPlainTextEdit *textn2_;
    QPushButton *commandn1_;
    QLabel *labeln3_;
    QTimer *timer1_;
    FetchCycle *cycle_;
};

} // namespace zafro
