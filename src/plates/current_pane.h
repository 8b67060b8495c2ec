#pragma once

// The pane of the plates window for the national format (four digits and three
// consonants, since September 2000): the month table, the calculation and the
// behaviour of its four boxes.

#include "plates/matriculas.h"

#include <QPixmap>
#include <QWidget>

#include <functional>

class QLabel;
class QLineEdit;
class QPushButton;

namespace zafro {

class ClickLabel;

class PanelActual : public QWidget {
    Q_OBJECT
public:
    // startUpdate runs when Load table finds that no data set was ever stored.
    PanelActual(QWidget *parent, std::function<void()> startUpdate);

    void cargarTabla();    // Load table: the month table and the data date
    void aCommand1Click(); // Calculate
    void escribirTextos(); // the pane's share of the window's texts
    void olvidarLetras();  // the window's opening forgets the first two letter values

    void aText1Change();
    void aText5Change();
    void aText6Change();
    void aText7Change();
    void aImage1Click();
    void aLabel6Click();
    void aLabel6MouseMove();
    void picture5MouseMove();

    const matriculas::Acumulados &acumulados() const { return acumulados_; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    void escribirFechaDatos();
    void letraChange(QLineEdit *box, int mensaje, QLineEdit *siguiente);
    int leerLetra(QLineEdit *box, int mensaje);
    void resaltarLabel6(bool encima);

    std::function<void()> startUpdate_;
    matriculas::Acumulados acumulados_{};
    int letras_[3] = {0, 0, 0};

    QLabel *aLabel1_;
    ClickLabel *aImage1_;
    QLineEdit *aText1_;
    QLineEdit *aText5_;
    QLineEdit *aText6_;
    QLineEdit *aText7_;
    QPushButton *aCommand1_;
    QLabel *aLabel2_;
    QLabel *aLabel3_;
    QLabel *aLabel5_;
    QLabel *aLabel7_;
    QLabel *aLabel4_;
    ClickLabel *aLabel6_;
};

// A drawing of a plate of the national format, for the pane and its button.
QPixmap dibujoMatricula(const QSize &size, const QString &texto);

} // namespace zafro
