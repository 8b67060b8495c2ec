#include "shell/command_line.h"
#include "shell/forms.h"
#include "shell/index_window.h"
#include "shell/launcher.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QTimer>

namespace zafro {

namespace {

// Waits for the launcher's first show, whatever chain of windows (language choice,
// splash, welcome) comes before it, then clicks the tool's label once.
class ToolOpener : public QObject {
public:
    explicit ToolOpener(const QString &label) : QObject(qApp), label_(label)
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show && watched->isWidgetType() &&
            watched->objectName() == QLatin1String("index") &&
            static_cast<QWidget *>(watched)->isWindow()) {
            qApp->removeEventFilter(this);
            // After the show has finished, so that the tool comes up over the launcher.
            QTimer::singleShot(0, this, [this] {
                if (auto *index = findForm<IndexWindow>(QStringLiteral("index")))
                    index->labelClick(label_);
                deleteLater();
            });
        }
        return false;
    }

private:
    QString label_;
};

} // namespace

void openToolOnceLauncherShows(const QString &window)
{
    for (const LauncherLabel &label : launcherLabels())
        if (window == QLatin1String(label.opens)) {
            new ToolOpener(QLatin1String(label.name));
            return;
        }
}

} // namespace zafro
