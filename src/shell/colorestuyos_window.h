#pragma once

#include "shell/form.h"

#include <array>

class QCheckBox;
class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;
class QScrollBar;

namespace zafro {

class ClickLabel;

// The custom skin: twelve components in four groups, each with its scroll bar,
// its text field and a swatch, and a sample of the four colours.
class ColorestuyosWindow : public Form {
    Q_OBJECT
public:
    enum Group { Fondo, Texto, Titulo, Boton };

    ColorestuyosWindow();

    void formLoad() override;
    bool queryUnload(UnloadMode mode) override { return !isProgramReason(mode); }

    void scrollChange(Group group, int channel); // Fondob1_Change and its eleven siblings
    void textChange(Group group, int channel);   // Fondot1_Change and its eleven siblings
    void command1Click();
    void command3Click();
    void command4Click();
    void swatchClick();
    void commandejemClick();

    int field(Group group, int channel) const { return fields_[group][std::size_t(channel)]; }

private:
    void paintGroup(Group group);

    std::array<std::array<int, 3>, 4> fields_{}; // fondoRojo .. botonAzul
    std::array<std::array<QScrollBar *, 3>, 4> bars_{};
    std::array<std::array<QLineEdit *, 3>, 4> boxes_{};
    std::array<ClickLabel *, 4> swatches_{};
    QFrame *shape4_;
    QLabel *labelejem1_;
    QLabel *labelejem2_;
    QPushButton *commandejem_;
    QPushButton *command1_;
    QPushButton *command3_;
    QPushButton *command4_;
    QCheckBox *check1_;
};

} // namespace zafro
