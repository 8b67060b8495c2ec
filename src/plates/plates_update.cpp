#include "plates/plates_update.h"

#include "online/fetch_cycle.h"
#include "plates/matriculas_window.h"
#include "plates/plates_fetch.h"
#include "shell/forms.h"

#include <QLabel>
#include <QTimer>

namespace zafro {

DescargaMatriculas *platesUpdateOf(const MatriculasWindow &window)
{
    return window.findChild<DescargaMatriculas *>(QStringLiteral("descargaMatriculas"),
                                                  Qt::FindDirectChildrenOnly);
}

void startPlatesUpdate(MatriculasWindow &window)
{
    DescargaMatriculas *descarga = platesUpdateOf(window);
    if (!descarga) {
        auto *status = window.findChild<QLabel *>(QStringLiteral("Labeln9"));
        MatriculasWindow *w = &window;
        descarga =
            new DescargaMatriculas(w, FetchUserKind::Plates, status, [w] { platesTimer1Tick(*w); });
    }
    descarga->start(platesSource());
}

void platesTimer1Tick(MatriculasWindow &window)
{
    DescargaMatriculas *descarga = platesUpdateOf(window);
    if (!descarga)
        return;
    // Off first: the pane's reload may itself start work that shows messages.
    descarga->timer1()->stop();
    window.findChild<QLabel *>(QStringLiteral("Labeln9"))
        ->setText(DescargaMatriculas::textoActualizado());
    if (window.paneActual() == QLatin1String("1"))
        window.command5Click();
}

void showPlatesImport()
{
    forms().show(QStringLiteral("matimportacion"));
}

} // namespace zafro
