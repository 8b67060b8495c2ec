#pragma once

#include "shell/form.h"

#include <QDate>

class QLabel;
class QLineEdit;
class QPushButton;

namespace zafro {

class ClickLabel;
class FetchCycle;
class ToolFrame;

// Takes the day's reference rates from the central bank's feed through the
// fetch cycle and stores them for the converter. The user leaves by its buttons
// only: a close by the frame is refused.
class DivisasActWindow : public Form {
    Q_OBJECT
public:
    DivisasActWindow();

    void formLoad() override;
    bool queryUnload(UnloadMode mode) override;
    void formUnload() override;

    void command1Click(); // actualizar con servidor
    void command2Click(); // cerrar: the converter goes too
    void command3Click(); // aceptar: back to the converter
    void label2Click();

    FetchCycle *cycle() const { return cycle_; }

private:
    void storeRate(const QString &currency, const QString &rate);
    void beforeWalk();
    void closingWork();

    ToolFrame *frame_ = nullptr;
    FetchCycle *cycle_ = nullptr;
    QDate fechaHoy_;
    QLabel *label3_;
    QLabel *label8_;
    QLabel *label1_;
    QLabel *label9_;
    ClickLabel *label2_;
    QPushButton *command1_;
    QPushButton *command3_;
    QPushButton *command2_;
    QPushButton *command7_;
    QLineEdit *text1_;
};

} // namespace zafro
