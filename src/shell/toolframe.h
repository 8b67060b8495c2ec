#pragma once

// The frame every tool window shares: the load step that paints the window from
// the current skin and takes its captions, the animated title, the close and
// about buttons.

#include <QColor>
#include <QObject>
#include <QString>
#include <QStringList>

class QAbstractButton;
class QLineEdit;
class QTimer;
class QWidget;

namespace zafro {

class Form;

// What the frame needs to know of a window, by its name.
struct FrameSpec {
    QStringList titleLabels; // painted with the title colour instead of the text colour
    int titleInterval = 100; // ms; 0 for a window without an animated title
    bool painted = true;     // some windows keep their own design colours
    bool paintOnlyTitleAndButtons = false;
};

FrameSpec frameSpecFor(const QString &window);

// A skin colour as stored (decimal or "&H" text) read with the strict conversion:
// an absent or bad colour is a run-time error, as at the original's load.
QColor skinColour(const QString &valueName);

class ToolFrame : public QObject {
    Q_OBJECT
public:
    // Installs the title timer (`Timer1`) on the window.
    explicit ToolFrame(Form *window);

    // Colours first, each read anew for each control; the captions are the window's.
    void paint();
    void connectClose(QAbstractButton *button);
    void connectAbout(QAbstractButton *button);

    void timer1Timer();
    QString pasoTitulo() const { return pasoTitulo_; }
    QTimer *timer() const { return timer1_; }

private:
    Form *window_;
    FrameSpec spec_;
    QTimer *timer1_ = nullptr;
    QString pasoTitulo_;
};

// Passes a text box's keys through solooonumeros.
void filterNumericKeys(QLineEdit *box);

} // namespace zafro
