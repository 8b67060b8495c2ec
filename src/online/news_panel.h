#pragma once

// The news panel of the launcher: a tall text inside a clipping frame, scrolled by
// hovering over two drawn arrows, filled by the fetch cycle's news user. Its
// controls are made directly on the launcher, under their own names.

#include "online/fetch_cycle.h"
#include "online/news.h"
#include "shell/launcher_hooks.h"

#include <QColor>
#include <QObject>
#include <QWidget>

class QLabel;
class QPlainTextEdit;
class QPushButton;
class QTimer;

namespace zafro {

class ClickLabel;

// A line control: a straight stroke in its colour across its box.
class NewsLine : public QWidget {
    Q_OBJECT
public:
    NewsLine(QWidget *parent, const QString &name, QPoint from, QPoint to);
    QColor colour() const { return colour_; }
    void setColour(const QColor &colour);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPoint from_, to_;
    QColor colour_{Qt::white};
};

class NewsPanel : public QObject, public LauncherNews {
    Q_OBJECT
public:
    explicit NewsPanel(QWidget *launcher);

    void start() override;
    void surfaceMoved() override; // with Command5
    void sinLimite() override;    // Command13

    void image1MouseMove();
    void image2MouseMove();
    void commandn4Click(); // one step up
    void commandn5Click(); // one step down
    void command5Click();  // the six lines back to white

    FetchCycle *cycle() const { return cycle_; }
    const LimiteNoticias &limite() const { return limite_; }
    int top() const { return topTwips_; }

private:
    void arrowUp(bool on);
    void arrowDown(bool on);
    void paint(int first, const QColor &colour);
    void setTop(int twips);
    void closingWork();

    QWidget *launcher_;
    QWidget *picture1_;
    QPlainTextEdit *textn2_;
    QString text_;
    ClickLabel *image1_;
    ClickLabel *image2_;
    NewsLine *lines_[6];
    QLabel *labeln1_;
    QLabel *labeln9_;
    QLabel *labeln3_;
    QPushButton *commandn1_;
    QTimer *timern14_;
    QTimer *timern15_;
    FetchCycle *cycle_;
    LimiteNoticias limite_;
    int topTwips_ = kNoticiasTopInicial;
    int heightTwips_ = kNoticiasAltura;
};

} // namespace zafro
