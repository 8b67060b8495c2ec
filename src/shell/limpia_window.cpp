#include "shell/limpia_window.h"

#include "platform/services.h"
#include "shell/settings.h"
#include "shell/window_shape.h"

#include <QLabel>
#include <QPushButton>

namespace zafro {

LimpiaWindow::LimpiaWindow()
    : command1_(place(new QPushButton(QStringLiteral("LIMPIAR"), this), "Command1", 1320, 2040,
                      2160, 480)),
      command2_(place(new QPushButton(QStringLiteral("NO LIMPIAR"), this), "Command2", 4140, 2040,
                      2160, 480))
{
    setWindowTitle(QStringLiteral("Zafro Suite"));
    resizeTwips(7620, 2940);
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QStringLiteral(
        "zafro--LimpiaWindow { background: qlineargradient(x1:0, y1:0, x2:0, y2:1,"
        " stop:0 #1b4f85, stop:1 #0b2440); }"
        "QLabel { color: #ffffff; font-size: 9pt; }"
        "QLabel#Label2 { color: #d6e6f7; font-style: italic; }"
        "QPushButton { background: #dfe8f2; color: #10263d; font-weight: bold;"
        " border: 1px solid #6f8fb0; border-radius: 4px; }"
        "QPushButton#Command1 { background: #e0533d; color: #ffffff; border-color: #9c2a1a; }"));
    const struct {
        const char *name;
        int left;
        const char16_t *text;
    } explanations[] = {
        {"Label1", 420,
         u"Bienvenido al desinstalador de Zafro Suite. Mediante este pequeño complemento puede "
         u"limpiar Zafro y su configuración para poder instalar otra versión más actualizada."},
        {"Label2", 3930,
         u"Welcome to the Zafro Suite uninstaller. With this little component you can easily "
         u"clean all the Zafro configuration, so you can later install a newer version."},
    };
    for (const auto &e : explanations) {
        QLabel *label =
            place(new QLabel(QString::fromUtf16(e.text), this), e.name, e.left, 360, 3270, 1500);
        label->setWordWrap(true);
        label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        label->setAttribute(Qt::WA_TransparentForMouseEvents); // a press drags the window
    }
    command1_->setToolTip(QStringLiteral("Desinstalar - Uninstall"));
    command2_->setToolTip(QStringLiteral("Volver - Return"));
    for (QPushButton *button : {command1_, command2_})
        button->setCursor(Qt::PointingHandCursor);
    connect(command1_, &QPushButton::clicked, this, &LimpiaWindow::command1Click);
    connect(command2_, &QPushButton::clicked, this, &LimpiaWindow::command2Click);
    applyWindowShape(this, QStringLiteral("limpia"));
    centreOnScreen();
}

void LimpiaWindow::command1Click()
{
    // No question first: this window is the question.
    removeUninstallValues();
    services().dialogs->msgBox(QStringLiteral("Todas las entradas de Zafro Suite en el registro "
                                              "han sido borradas corréctamente. Un saludo"),
                               msg::OkOnly, QStringLiteral("Desinstalado"));
    unloadMe();
    services().desktop->endProgram(0);
}

void LimpiaWindow::command2Click()
{
    unloadMe();
}

} // namespace zafro
