#pragma once

// The two provincial panes of the plates window: 1971-2000 (code, four digits and
// one or two letters) and 1900-1971 (code and a number). Both choose a province
// from a list, look the plate's ordinal up year by year and write the estimated
// month and year.

#include "plates/provincias.h"

#include <QHash>
#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace zafro {

// What the provincial panes share with their window: the search counter, kept as
// text, and the result texts the window takes with the language.
struct EstadoProvincial {
    QString indice = QStringLiteral("-1");
    QString matriculadoEn;
    QString antesDe1914;
    QString colonias;
};

class PanelProvincial : public QWidget {
    Q_OBJECT
public:
    void escribirTextos(); // captions in the loaded language; the result is emptied
    virtual void calcular() = 0;

protected:
    // prefijo names the controls ('b' or 'c'); boton is the Calculate button's name.
    PanelProvincial(QWidget *parent, EstadoProvincial &estado, char prefijo, const char *boton,
                    const QString &titulo);

    QString nombre(const char *control) const;
    // A box that empties its starting text on focus and gets it back when left empty.
    void textoInicial(QLineEdit *box, const QString &inicial);
    // Enter in the control runs Calculate and goes no further.
    void calculaConIntro(QWidget *control);

    void combo1Click(); // the chosen province's code and index
    int elegida() const;
    // The checks that open every step of the search; false stops it.
    bool antesDelPaso(QLineEdit *cifras, const QString &ceros);
    void mostrarResultado(const provincias::Hallazgo &hallazgo, double numero, double factor);
    void mensaje(int slot, const QString &titulo = {});

    bool eventFilter(QObject *watched, QEvent *event) override;

    EstadoProvincial &estado_;
    QLabel *titulo_;
    QLabel *etiquetaProvincia_;
    QComboBox *combo1_;
    QComboBox *combo2_;
    QComboBox *combo4_;
    QLineEdit *text7_;
    QPushButton *calcular_;
    QLabel *label2_;
    QLabel *label5_;

private:
    char prefijo_;
    QHash<QObject *, QString> iniciales_;
    QList<QObject *> conIntro_;
};

// Picture2: plates of 1971-2000.
class Panel1971 : public PanelProvincial {
    Q_OBJECT
public:
    Panel1971(QWidget *parent, EstadoProvincial &estado);

    void calcular() override { bCommand2Click(); }
    void bCommand2Click(); // Calculate
    void bCommand1Click(); // the search
    void bText1Change();

private:
    QLineEdit *bText1_;
    QLineEdit *bText5_;
    QLineEdit *bText4_;
    QPushButton *bCommand1_;
};

// Picture4: plates before 1971, and the former territories.
class Panel1900 : public PanelProvincial {
    Q_OBJECT
public:
    Panel1900(QWidget *parent, EstadoProvincial &estado);

    void calcular() override { cCommand1Click(); }
    void cCommand1Click(); // Calculate and the search at once

private:
    QLineEdit *cText1_;
};

} // namespace zafro
