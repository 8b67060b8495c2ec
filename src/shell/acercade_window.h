#pragma once

#include "shell/form.h"

class QLabel;
class QTimer;

namespace zafro {

class ClickLabel;

// The about window every tool opens: version, the product site and the credits
// rolling up behind a window in its face.
class AcercadeWindow : public Form {
    Q_OBJECT
public:
    AcercadeWindow();

    void formLoad() override;

    void label2Click(); // Aceptar
    void label5Click(); // the product site
    void label6Click(); // pause and resume
    void timer1Timer();

    // The credits' top inside their window, in twips: a tick moves them less than a pixel.
    int label3Top() const { return label3Top_; }
    int label3HeightTwips() const;

private:
    void placeLabel3();

    QLabel *label1_;
    ClickLabel *label2_;
    QLabel *label3_;
    QLabel *label4_;
    ClickLabel *label5_;
    ClickLabel *label6_;
    QTimer *timer1_;
    int label3Top_ = 1440;
};

} // namespace zafro
