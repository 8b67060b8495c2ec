#include "plates/matimportacion_window.h"

#include "plates/matriculas_window.h"
#include "plates/plates_fetch.h"
#include "platform/services.h"
#include "shell/forms.h"
#include "shell/language.h"
#include "shell/product.h"

#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

namespace zafro {

namespace {

const QString kArchivoDatos = QStringLiteral("zafromdata.zfx");

} // namespace

bool existeEntrada(const QString &path)
{
    if (services().desktop->fileExists(path))
        return true;
    const QFileInfo info(path);
    const QString pattern = info.fileName();
    if (!pattern.contains(u'*') && !pattern.contains(u'?'))
        return false;
    const QDir folder = info.dir();
    return !folder
                .entryList({pattern},
                           QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot)
                .isEmpty();
}

MatimportacionWindow::MatimportacionWindow()
    : label1_(place(new QLabel(this), "Label1", 240, 240, 6480, 720)),
      text1_(place(new QLineEdit(this), "Text1", 240, 1080, 6480, 315)),
      command1_(place(new QPushButton(this), "Command1", 5160, 1560, 1560, 435)),
      labeln9_(place(new QLabel(this), "Labeln9", 240, 1620, 4800, 300))
{
    setWindowTitle(QStringLiteral("Zafro Matrículas"));
    resizeTwips(6960, 2280);
    label1_->setWordWrap(true);
    label1_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    QFont bold = labeln9_->font();
    bold.setBold(true);
    labeln9_->setFont(bold);
    descarga_ =
        new DescargaMatriculas(this, FetchUserKind::PlateFile, labeln9_, [this] { timer1Timer(); });
    connect(command1_, &QPushButton::clicked, this, &MatimportacionWindow::command1Click);
    centreOnScreen();
}

void MatimportacionWindow::formLoad()
{
    // The data file where this copy of the suite keeps it: beside the program in a
    // build tree, under share/ once installed.
    text1_->setText(QDir::cleanPath(services().desktop->dataFile(kArchivoDatos)));
    command1_->setText(texto(slot::Importar));
    label1_->setText(texto(slot::ImportarInstrucciones));
}

void MatimportacionWindow::command1Click()
{
    const QString path = text1_->text();
    if (!existeEntrada(path)) {
        services().dialogs->msgBox(
            texto(slot::FicheroNoExiste) + QString::fromUtf16(product::kMakerSite), 0, QString());
        return;
    }
    labeln9_->setText(texto(slot::ImportarActualizando));
    descarga_->start(path);
}

void MatimportacionWindow::timer1Timer()
{
    descarga_->timer1()->stop();
    labeln9_->setText(DescargaMatriculas::textoActualizado());
    // The plates window takes the new data date on its labels; its month table is
    // left alone until its pane is opened again.
    if (auto *plates =
            qobject_cast<MatriculasWindow *>(forms().load(QStringLiteral("matriculasselect"))))
        plates->command2Click();
    unloadMe();
    forms().show(QStringLiteral("matriculasselect"));
}

} // namespace zafro
