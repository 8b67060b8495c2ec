#pragma once

#include "shell/form.h"

#include <array>

class QFrame;
class QLabel;
class QPushButton;
class QRadioButton;

namespace zafro {

// The skin choice: nine built-in skins, a sample, and the way to the custom skin.
// The shell's own windows never take the skin, so a bad one can always be mended here.
class ColoresWindow : public Form {
    Q_OBJECT
public:
    ColoresWindow();

    void formLoad() override;
    bool queryUnload(UnloadMode mode) override { return !isProgramReason(mode); }

    // The hidden skin buttons, one per built-in skin, that store it.
    void command1Click();
    void command2Click();
    void command3Click();
    void command8Click();
    void command7Click();
    void command6Click();
    void command9Click();
    void command10Click();
    void command11Click();
    void nigunoClick();
    void command12Click();
    void command4Click();
    void command5Click();
    void commandejemClick();
    void optionClick(int tipo);

private:
    void paintSample(const QColor &back, const QColor &title, const QColor &text,
                     const QColor &button);

    std::array<QRadioButton *, 9> options_{};
    QFrame *shape10_;
    QLabel *labelejem1_;
    QLabel *labelejem2_;
    QPushButton *commandejem_;
    QLabel *label1_;
    QLabel *label2_;
    QPushButton *command12_;
    QPushButton *command4_;
    QPushButton *command5_;
};

} // namespace zafro
