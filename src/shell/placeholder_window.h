#pragma once

#include "shell/form.h"

class QLabel;

namespace zafro {

// Stands in for a window whose own tool is not part of the suite yet: it can be
// shown and unloaded, and says what it is.
class PlaceholderWindow : public Form {
    Q_OBJECT
public:
    explicit PlaceholderWindow(const QString &title);

    void formLoad() override;

private:
    QLabel *label_;
};

} // namespace zafro
