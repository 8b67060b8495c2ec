#pragma once

// The plates window `matriculasselect`: three format buttons, the panes behind
// them, its own menu bar, language and status line. Under the launcher the hidden
// label `ls` reads "1"; any other text makes it a program of its own, with its own
// language menu and an end of the whole program at Cerrar.

#include "plates/provincial_pane.h"
#include "shell/form.h"

class QAction;
class QLabel;
class QMenu;
class QMenuBar;
class QPushButton;
class QTimer;

namespace zafro {

class PanelActual;
class ToolFrame;

class MatriculasWindow : public Form {
    Q_OBJECT
public:
    MatriculasWindow();

    void formLoad() override;

    void command1Click(); // 1900 - 1971
    void command4Click(); // 1971 - 2000
    void command5Click(); // 2000 on
    void command6Click(); // the server update
    void command2Click(); // every text of the window
    void command3Click(); // Load table of the current-format pane
    void timer2Timer();

    void menuespanolClick();
    void menuinglesClick();
    void menuvalencianoClick();
    void menuautoClick();
    void menuimportarClick();
    void menuwebClick();
    void menuacercaClick();
    void menucerrarClick();

    QString paneActual() const { return paneActual_; }
    QString indice() const { return provincial_.indice; }

    // Texts of the provincial panes, taken with the language.
    QString textoMatriculadoEn() const { return provincial_.matriculadoEn; }
    QString textoAntesDe1914() const { return provincial_.antesDe1914; }
    QString textoColonias() const { return provincial_.colonias; }

Q_SIGNALS:
    // Every start of the server update passes here, whatever asked for it.
    void actualizacionIniciada();

private:
    void buildMenus();
    QAction *action(const char *name) const;
    void elegirIdioma(int codigo);
    void marcarIdioma(int codigo);
    bool bajoElIndice() const;
    void mostrarPanel(QWidget *panel);
    QList<QWidget *> panes() const;

    ToolFrame *frame_ = nullptr;
    QMenuBar *menuBar_;
    QWidget *client_;
    QPushButton *command1_;
    QPushButton *command4_;
    QPushButton *command5_;
    QPushButton *command6_;
    QLabel *label1_;
    QLabel *label2_;
    QLabel *labeln9_;
    QLabel *ls_;
    EstadoProvincial provincial_;
    Panel1971 *picture2_;
    Panel1900 *picture4_;
    PanelActual *picture5_;
    QTimer *timer2_;
    QMenu *menuidioma_ = nullptr;

    QString paneActual_ = QStringLiteral("0");
};

} // namespace zafro
