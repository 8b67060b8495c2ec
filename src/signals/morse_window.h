#pragma once

#include "shell/form.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QScrollBar;
class QTimer;

namespace zafro {

class ToolFrame;
class TonePlayer;

// Text to Morse and back, and the code played as tones at the ticks of Timer2.
class MorseWindow : public Form {
    Q_OBJECT
public:
    MorseWindow();

    void formLoad() override;
    void formUnload() override;

    void cmdcodeClick();
    void cmddecodeClick();
    void command1Click(); // the explanation
    void command2Click(); // play, stop, continue
    void hsFreqChange();
    void hScroll1Change();
    void timer2Timer();

    QString posicionMorse() const { return posicionMorse_; }
    bool tonoEnCurso() const; // a tone is sounding or has yet to report its end

private:
    void tonoTerminado();
    void avanzar();

    ToolFrame *frame_ = nullptr;
    TonePlayer *player_;
    QLabel *label1_;
    QLabel *label2_;
    QLabel *label3_;
    QLabel *lblFreq_;
    QLineEdit *txttext_;
    QLineEdit *txtmorse_;
    QPushButton *cmdcode_;
    QPushButton *cmddecode_;
    QPushButton *command1_;
    QPushButton *command2_;
    QPushButton *command7_;
    QPushButton *command8_;
    QScrollBar *hsFreq_;
    QScrollBar *hScroll1_;
    QTimer *timer2_;
    QString posicionMorse_ = QStringLiteral("0");
    bool tickEnEspera_ = false;
};

} // namespace zafro
