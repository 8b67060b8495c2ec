#include "shell/placeholder_window.h"

#include "shell/language.h"

#include <QLabel>
#include <QVBoxLayout>

namespace zafro {

PlaceholderWindow::PlaceholderWindow(const QString &title) : label_(new QLabel(this))
{
    setWindowTitle(title);
    label_->setObjectName(QStringLiteral("Label1"));
    label_->setAlignment(Qt::AlignCenter);
    QFont font = label_->font();
    font.setPointSize(16);
    font.setBold(true);
    label_->setFont(font);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(label_);
    resizeTwips(6000, 3000);
    centreOnScreen();
}

void PlaceholderWindow::formLoad()
{
    label_->setText(QStringLiteral("Zafro Suite\n%1").arg(windowTitle()));
}

} // namespace zafro
