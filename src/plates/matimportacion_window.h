#pragma once

// The import window `matimportacion`: the plates document saved as a local file
// (zafromdata.zfx) read through the same fetch cycle as the server update. Unlike
// that update it leaves the month table of the plates window as it is: the new
// counts are read the next time the current-format pane opens.

#include "shell/form.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace zafro {

class DescargaMatriculas;

class MatimportacionWindow : public Form {
    Q_OBJECT
public:
    MatimportacionWindow();

    void formLoad() override;

    void command1Click(); // Importar
    void timer1Timer();

    DescargaMatriculas *descarga() const { return descarga_; }

private:
    QLabel *label1_;
    QLineEdit *text1_;
    QPushButton *command1_;
    QLabel *labeln9_;
    DescargaMatriculas *descarga_;
};

// Whether a path names an entry on disk, as a find-first of it answers: a path with
// wildcards counts when anything in its folder matches them.
bool existeEntrada(const QString &path);

} // namespace zafro
