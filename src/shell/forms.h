#pragma once

// The window model.
//
// Every window of the suite is a single instance known by its original name.
// show() creates it at the first use (construct, prepare, formLoad) and raises it
// afterwards; unload() closes and deletes it so that the next show loads it afresh.
// The process lives while any window is loaded, hidden or not: when the last one
// unloads, the suite ends.

#include <QHash>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <functional>

namespace zafro {

class Form;

class Forms {
public:
    using Factory = std::function<Form *()>;

    void registerForm(const QString &name, Factory factory);
    bool isRegistered(const QString &name) const;

    // loads at the first show (construct, prepare, formLoad), raises after
    QWidget *show(const QString &name, const std::function<void(QWidget *)> &prepare = {});
    // loads without showing, as a reference to a window that is not loaded does
    QWidget *load(const QString &name, const std::function<void(QWidget *)> &prepare = {});
    QWidget *find(const QString &name) const; // the live window, or nullptr
    void unload(const QString &name);         // closes and deletes; next show loads afresh

    QStringList loadedNames() const;
    // Drops every window without ending the program (tests, the end itself).
    void unloadAll();

    // Called by a form whose unload went through.
    void formUnloaded(Form *form);

private:
    Form *create(const QString &name, const std::function<void(QWidget *)> &prepare);

    QHash<QString, Factory> factories_;
    QHash<QString, QPointer<Form>> live_;
    bool droppingAll_ = false;
};

Forms &forms();

template <typename T> T *findForm(const QString &name)
{
    return qobject_cast<T *>(forms().find(name));
}

} // namespace zafro
