#include "games/nabes_window.h"
#include "platform/qt_services.h"
#include "shell/application.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/register_forms.h"
#include "shell/settings.h"
#include "shell/skins.h"
#include <QApplication>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
using namespace zafro;
static QString prefix;
static void shot(const QString &name)
{
    QTest::qWait(250);
    QProcess::execute("import", {"-window", "root", prefix + name + ".png"});
}
int main(int argc, char **argv)
{
    Application app(argc, argv);
    QTemporaryDir dir;
    useSettingsFile(dir.filePath("r.sqlite3"));
    installQtServices();
    registerForms();
    const int skin = atoi(argv[1]);
    const bool english = QString(argv[2]) == "en";
    prefix = QString("/tmp/i17-s%1-%2-").arg(skin).arg(english ? "en" : "es");
    guardarSkin(skin);
    if (english)
        CargarIngles();
    else
        CargarEspanol();
    writeConfig("idioma", english ? "2" : "1");
    int boxes = 0;
    QTimer dismiss;
    QObject::connect(&dismiss, &QTimer::timeout, [&] {
        if (QWidget *box = QApplication::activeModalWidget()) {
            dismiss.stop();
            shot(QString("msg%1").arg(boxes++));
            box->close();
            dismiss.start(400);
        }
    });
    dismiss.start(400);
    auto *game = qobject_cast<NabesWindow *>(forms().show("nabes"));
    game->move(0, 0);
    shot("1start");
    game->formKeyDown(39, 1);
    game->formKeyDown(32, 1);
    shot("2shield");
    game->formKeyUp(0, 0);
    game->formKeyDown(65, 0);
    for (int i = 0; i < 8; ++i)
        game->rayo1Timer();
    shot("3ray");
    while (game->state().nave1.top > game->state().boss.top + 100)
        game->formKeyDown(38, 0);
    while (game->state().nave1.top < game->state().boss.top - 100)
        game->formKeyDown(40, 0);
    while (!game->state().explosion3.visible)
        game->formKeyDown(39, 0);
    shot("4explosion");
    game->timer2Timer();
    shot("5ganaste");
    QTest::mouseClick(forms().find("nabesg")->findChild<QPushButton *>("Command2"), Qt::LeftButton);
    QTest::qWait(1500);
    game = qobject_cast<NabesWindow *>(forms().find("nabes"));
    while (!game->state().explosion3.visible)
        game->formKeyDown(39, 0);
    game->timer1Timer();
    shot("6perdiste");
    return 0;
}
