#pragma once

#include "shell/form.h"
#include "shell/launcher_services.h"

#include <QHash>

#include <vector>

class QLabel;
class QPushButton;
class QTimer;

namespace zafro {

class ClickLabel;
class LauncherNews;
class ToolFrame;

// The short web address whose letters chase the mouse.
inline constexpr char kTextoWeb[] = "zafrosuite.com";

// The launcher: every tool as a coloured label on one shaped window, with the
// buttons of the shell. Its colours are its own, never the skin's.
class IndexWindow : public Form {
    Q_OBJECT
public:
    IndexWindow();

    void formLoad() override;

    void labelClick(const QString &name);     // Labelcom*_Click
    void labelMouseMove(const QString &name); // Labelcom*_MouseMove
    void formMouseMove();                     // the bare surface
    void label4MouseMove();
    void command2Click(); // tool labels back to yellow
    void command3Click(); // the product site, as Command11
    void command4Click();
    void command7Click();
    void command8Click();
    void command11Click();
    void command12Click();
    void command19Click();
    void command14Click(); // the hidden formula bench
    void label1Click();
    void label6Click();
    void timer5Timer();
    void timer6Timer();

    // The services: clock and date, the CD door, the popup, the chasing letters,
    // the hidden spots and the news panel's buttons.
    void command1Click(); // clock and date
    void label4Click();
    void label8Click();
    void command6Click(); // the hundredth visit
    void timer3Timer();
    void timer4Timer();
    void timer7Timer();
    void command9Click();
    void command10Click();
    void command13Click();
    void crearLetras(const QString &textoWeb);
    void tmrPosTimer();
    void secretoClick(int n); // Secreto1 to Secreto4

    double visitas() const { return visitas_; }
    const std::vector<PuntoTwips> &clip() const { return clip_; }
    LauncherNews *news() const { return news_; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    void buildServices();
    void ponerComentario();
    void ponerSaludo();

    QHash<QString, ClickLabel *> toolLabels_;
    ToolFrame *frame_ = nullptr;
    QTimer *timer5_;
    QTimer *timer6_;
    double hora_ = 0;
    double fecha_ = 0;
    double topopen_ = 0;
    double visitas_ = 0;

    RelojIndex reloj_;
    QTimer *timer2_ = nullptr;
    QTimer *timer3_ = nullptr;
    QTimer *timer4_ = nullptr;
    QTimer *timer7_ = nullptr;
    QTimer *tmrPos_ = nullptr;
    LauncherNews *news_ = nullptr;
    std::vector<PuntoTwips> clip_;
    std::vector<QLabel *> clipLabels_;
    int velocidad_ = 6;
    ClickLabel *secretos_[4] = {};
};

} // namespace zafro
