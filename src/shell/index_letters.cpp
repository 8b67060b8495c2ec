// The chasing letters: the web address spread over the control array `clip`, each
// letter easing after the one before it, the first after the cursor.

#include "shell/index_window.h"

#include "platform/services.h"
#include "shell/settings.h"

#include <QLabel>

namespace zafro {

void IndexWindow::crearLetras(const QString &textoWeb)
{
    QLabel *design = clipLabels_.front();
    const PuntoTwips start = clip_.front();
    // One member for each letter and one more that stays empty.
    for (qsizetype i = 1; i <= textoWeb.size() + 1; ++i) {
        auto *letter = new QLabel(textoWeb.mid(i - 1, 1), this);
        letter->setObjectName(QStringLiteral("clip_%1").arg(i));
        letter->setGeometry(design->geometry());
        letter->setPalette(design->palette());
        letter->setFont(design->font());
        letter->show();
        clipLabels_.push_back(letter);
        clip_.push_back(start);
    }
}

void IndexWindow::tmrPosTimer()
{
    // Read at every tick: a change in the store wakes or stops the letters at once.
    if (readConfigNumber(QStringLiteral("perseguir")) != 1)
        return;
    pasoPersecucion(clip_, services().desktop->cursorPos(), velocidad_);
    for (std::size_t i = 0; i < clip_.size(); ++i)
        clipLabels_[i]->move(twipsToPixelsX(qRound(clip_[i].left)),
                             twipsToPixelsY(qRound(clip_[i].top)));
}

} // namespace zafro
