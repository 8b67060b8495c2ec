#pragma once

#include <QWidget>

namespace zafro {

// A window of the suite: created by the forms registry, loaded once per life by
// formLoad(), and unloaded either by the program or by the user's close.
class Form : public QWidget {
    Q_OBJECT
public:
    // Why a window is being closed, numbered as the original's unload modes.
    enum class UnloadMode { ControlMenu = 0, Code = 1, AppWindows = 2, TaskManager = 3 };

    explicit Form(QWidget *parent = nullptr);

    // Runs once per load, after construction and the registry's prepare step.
    virtual void formLoad() {}
    // Return true to cancel the unload.
    virtual bool queryUnload(UnloadMode mode);
    virtual void formUnload() {}
    // A few windows only work in the background and must never appear.
    virtual bool showAfterLoad() const { return true; }

    void unloadMe(); // the program's own "Unload Me"

    // Windows that refuse the user's close accept only these reasons.
    static bool isProgramReason(UnloadMode mode) { return mode != UnloadMode::ControlMenu; }

    // Runs the unload steps for the given reason; false when the window refused.
    bool tryUnload(UnloadMode mode);

    // Design geometry in twips, converted with the screen's logical density.
    void setGeometryTwips(int left, int top, int width, int height);
    void resizeTwips(int width, int height);
    void centreOnScreen();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    bool unloaded_ = false;
};

// 15 twips to the pixel at 96 dpi; the screen's own logical density elsewhere.
int twipsPerPixelX();
int twipsPerPixelY();
int twipsToPixelsX(int twips);
int twipsToPixelsY(int twips);
QRect twipsRect(int left, int top, int width, int height);

// Names a control after its original and places it in design twips.
template <typename T> T *place(T *w, const QString &name, int left, int top, int width, int height)
{
    w->setObjectName(name);
    w->setGeometry(twipsRect(left, top, width, height));
    return w;
}
template <typename T> T *place(T *w, const char *name, int left, int top, int width, int height)
{
    return place(w, QLatin1String(name), left, top, width, height);
}

// A bold font of the given size, as the tools' designs use for titles and results.
void setBold(QWidget *w, int pointSize);

} // namespace zafro
