#pragma once

#include "shell/form.h"

class QCheckBox;
class QLabel;
class QPushButton;

namespace zafro {

// The user's flags in the store: ticked as read at load, all written back by Apply.
// Its colours are its own, never the skin's.
class PreferenciasWindow : public Form {
    Q_OBJECT
public:
    PreferenciasWindow();

    void formLoad() override;

    void command1Click(); // the skins
    void command2Click(); // the language
    void command3Click(); // the uninstaller
    void command7Click(); // close
    void command8Click(); // apply

    QString rutaPrograma() const { return rutaPrograma_; }

private:
    QLabel *label1_;
    QCheckBox *check1_; // the product site as the browser's start page
    QCheckBox *check2_; // animated titles
    QCheckBox *check3_; // start with the session
    QCheckBox *check4_; // preload: ticked means no skipping of the splash
    QCheckBox *check5_; // ask before closing
    QPushButton *command1_;
    QPushButton *command2_;
    QPushButton *command3_;
    QPushButton *command7_;
    QPushButton *command8_;
    QString rutaPrograma_;
};

} // namespace zafro
