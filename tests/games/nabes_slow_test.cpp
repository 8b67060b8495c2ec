#include "games/nabes_window.h"
#include "shell/forms.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QTimer>

namespace zafro {
namespace {

// Real seconds: the first ray after 3 s, then the two end delays racing.
TEST(NabesSlowTest, FirstRayThenOnlyOneEndWindow)
{
    auto *game = qobject_cast<NabesWindow *>(forms().show(QStringLiteral("nabes")));
    QTRY_VERIFY_WITH_TIMEOUT(game->findChild<QTimer *>(QStringLiteral("rayo1"))->isActive(), 5000);
    EXPECT_FALSE(game->findChild<QTimer *>(QStringLiteral("espera"))->isActive());
    EXPECT_EQ(game->state().boss.top, 4440); // the sweep waited
    // A ram arms the defeat; H in the wreck arms the victory just after it.
    while (!game->state().explosion3.visible && game->state().nave1.left < 14400)
        game->formKeyDown(39, 0);
    game->formKeyDown(72, 0);
    QTRY_VERIFY_WITH_TIMEOUT(forms().find(QStringLiteral("nabesp")), 5000);
    QTest::qWait(600);
    EXPECT_EQ(forms().loadedNames(), QStringList{"nabesp"});
}

} // namespace
} // namespace zafro
