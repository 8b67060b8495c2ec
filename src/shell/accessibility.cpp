#include "shell/accessibility.h"

#include "shell/form.h"
#include "shell/settings.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

#include <algorithm>
#include <climits>

namespace zafro {

namespace {

// The launcher's hidden spots: a name would give them away.
bool isHiddenSpot(const QWidget *w)
{
    return w->objectName().startsWith(QLatin1String("Secreto"));
}

// Inner parts of a combined control (the edit line of a combo, the bars of a list)
// belong to it: it is named and ordered as one.
bool isPartOfAnother(const QWidget *w, const QWidget *window)
{
    for (const QWidget *p = w->parentWidget(); p && p != window; p = p->parentWidget())
        if (qobject_cast<const QComboBox *>(p) || qobject_cast<const QAbstractSpinBox *>(p) ||
            qobject_cast<const QAbstractScrollArea *>(p) || isHiddenSpot(p))
            return true;
    return false;
}

bool isBox(const QWidget *w)
{
    return qobject_cast<const QLineEdit *>(w) || qobject_cast<const QAbstractSpinBox *>(w) ||
           qobject_cast<const QComboBox *>(w) || qobject_cast<const QTextEdit *>(w) ||
           qobject_cast<const QPlainTextEdit *>(w) || qobject_cast<const QAbstractItemView *>(w) ||
           qobject_cast<const QAbstractSlider *>(w);
}

bool isReadOnly(const QWidget *w)
{
    if (auto *line = qobject_cast<const QLineEdit *>(w))
        return line->isReadOnly();
    if (auto *text = qobject_cast<const QTextEdit *>(w))
        return text->isReadOnly();
    if (auto *text = qobject_cast<const QPlainTextEdit *>(w))
        return text->isReadOnly();
    return false;
}

// What a control is, in the language of the suite, for a control that shows no text
// of its own and has no label beside it.
QString roleName(const QWidget *w)
{
    const int language = static_cast<int>(readConfigNumber(QStringLiteral("idioma")));
    const auto say = [language](const char *es, const char *en, const char *va) {
        return QString::fromUtf8(language == 2 ? en : language == 4 ? va : es);
    };
    if (qobject_cast<const QAbstractButton *>(w))
        return say("Botón", "Button", "Botó");
    if (qobject_cast<const QComboBox *>(w))
        return say("Desplegable", "Drop-down list", "Desplegable");
    if (qobject_cast<const QAbstractItemView *>(w))
        return say("Lista", "List", "Llista");
    if (qobject_cast<const QAbstractSlider *>(w))
        return say("Barra de desplazamiento", "Scroll bar", "Barra de desplaçament");
    if (isReadOnly(w))
        return say("Resultado", "Result", "Resultat");
    return say("Entrada", "Input", "Entrada");
}

QRect inWindow(const QWidget *w, const QWidget *window)
{
    return QRect(w->mapTo(window, QPoint(0, 0)), w->size());
}

QString plainText(QString text)
{
    return text.remove(u'&').simplified();
}

// The caption that labels a box: the nearest label ending left of it on its row, or
// else standing just above it.
QString labelFor(const QWidget *box, const QWidget *window, const QList<QLabel *> &labels)
{
    const QRect b = inWindow(box, window);
    QString best;
    int bestDistance = INT_MAX;
    for (const QLabel *label : labels) {
        const QString text = plainText(label->text());
        if (text.isEmpty() || label->textFormat() == Qt::RichText || !label->pixmap().isNull())
            continue;
        const QRect l = inWindow(label, window);
        int distance = INT_MAX;
        const bool sameRow = l.top() < b.bottom() && b.top() < l.bottom();
        const bool sameColumn = l.left() < b.right() && b.left() < l.right();
        if (sameRow && l.right() <= b.left() + 2)
            distance = b.left() - l.right();
        else if (sameColumn && l.bottom() <= b.top() + 2 && b.top() - l.bottom() <= b.height())
            distance = 2 * (b.top() - l.bottom()) + 1; // a label beside wins a tie
        if (distance < bestDistance) {
            bestDistance = distance;
            best = text;
        }
    }
    return best;
}

void nameControls(QWidget *window, const QList<QWidget *> &controls)
{
    const QList<QLabel *> labels = window->findChildren<QLabel *>();
    for (QWidget *w : controls) {
        if (!w->accessibleName().isEmpty())
            continue;
        if (auto *button = qobject_cast<QAbstractButton *>(w)) {
            // A caption is read from the button itself, so it stays right when the
            // caption changes; only a bare button needs a name of its own.
            if (plainText(button->text()).isEmpty())
                w->setAccessibleName(!w->toolTip().isEmpty() ? w->toolTip() : roleName(w));
            continue;
        }
        const QString label = labelFor(w, window, labels);
        w->setAccessibleName(!label.isEmpty()          ? label
                             : !w->toolTip().isEmpty() ? w->toolTip()
                                                       : roleName(w));
    }
}

void orderTabs(QList<QWidget *> focusable, QWidget *window)
{
    std::stable_sort(focusable.begin(), focusable.end(), [window](QWidget *a, QWidget *b) {
        return inWindow(a, window).center().y() < inWindow(b, window).center().y();
    });
    // Rows: a control whose middle lies above the bottom of a row's first control
    // stands in that row.
    QList<QWidget *> ordered;
    for (qsizetype start = 0; start < focusable.size();) {
        const int rowBottom = inWindow(focusable[start], window).bottom();
        qsizetype end = start + 1;
        while (end < focusable.size() && inWindow(focusable[end], window).center().y() < rowBottom)
            ++end;
        QList<QWidget *> row = focusable.mid(start, end - start);
        std::stable_sort(row.begin(), row.end(), [window](QWidget *a, QWidget *b) {
            return inWindow(a, window).left() < inWindow(b, window).left();
        });
        ordered += row;
        start = end;
    }
    // The chain is a ring through the window: the first control follows the window,
    // so that Tab from a window with nothing focused starts at its top left.
    // Qt links only focusable widgets, so the window takes Tab focus for a moment.
    if (!ordered.isEmpty()) {
        const Qt::FocusPolicy policy = window->focusPolicy();
        window->setFocusPolicy(Qt::TabFocus);
        QWidget::setTabOrder(window, ordered.first());
        window->setFocusPolicy(policy);
    }
    for (qsizetype i = 1; i < ordered.size(); ++i)
        QWidget::setTabOrder(ordered[i - 1], ordered[i]);
}

class AccessibilityPass : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show)
            if (auto *form = qobject_cast<Form *>(watched); form && form->isWindow())
                makeAccessible(form);
        return false;
    }
};

} // namespace

void makeAccessible(QWidget *window)
{
    QList<QWidget *> controls;
    QList<QWidget *> focusable;
    for (QWidget *w : window->findChildren<QWidget *>()) {
        if (isHiddenSpot(w))
            w->setFocusPolicy(Qt::NoFocus); // Tab must not find them either
        if (w->window() != window || isHiddenSpot(w) || isPartOfAnother(w, window))
            continue;
        if (qobject_cast<QAbstractButton *>(w) || isBox(w))
            controls << w;
        if (w->focusPolicy() & Qt::TabFocus)
            focusable << w;
    }
    nameControls(window, controls);
    orderTabs(focusable, window);
}

void installAccessibilityPass()
{
    qApp->installEventFilter(new AccessibilityPass(qApp));
}

} // namespace zafro
