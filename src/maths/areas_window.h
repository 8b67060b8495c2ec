#pragma once

#include "maths/areas.h"
#include "shell/form.h"

#include <array>

class QLabel;
class QLineEdit;
class QPushButton;

namespace zafro {

class ToolFrame;

// 24 buttons choose a figure, show its drawing and label the fields; Calcular works out
// the area of the figure whose number Label56 holds.
class AreasWindow : public Form {
    Q_OBJECT
public:
    AreasWindow();

    void formLoad() override;

    void elegirFigura(const FiguraArea &figura); // the click of the figure's button
    void command3Click();                        // calcular
    void command98Click();                       // borrar
    void textClick(int campo);                   // 1 to 4
    void formClick();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    ToolFrame *frame_ = nullptr;
    QLabel *label99_; // title
    QLabel *label55_; // the chosen figure's caption
    QLabel *label56_; // its number: all the window remembers
    std::array<QLabel *, 4> etiquetas_{};
    std::array<QLineEdit *, 4> campos_{};
    std::array<QPushButton *, kFigurasArea> botones_{};
    std::array<QLabel *, kFigurasArea> imagenes_{};
    QLineEdit *text99_;
    QPushButton *command3_;
    QPushButton *command98_;
    QPushButton *command1_;
    QPushButton *command2_;
};

} // namespace zafro
