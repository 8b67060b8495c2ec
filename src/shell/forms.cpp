#include "shell/forms.h"

#include "platform/services.h"
#include "shell/form.h"

#include <QDebug>

namespace zafro {

Forms &forms()
{
    static Forms registry;
    return registry;
}

void Forms::registerForm(const QString &name, Factory factory)
{
    factories_.insert(name, std::move(factory));
}

bool Forms::isRegistered(const QString &name) const
{
    return factories_.contains(name);
}

Form *Forms::create(const QString &name, const std::function<void(QWidget *)> &prepare)
{
    const auto factory = factories_.constFind(name);
    if (factory == factories_.constEnd()) {
        qWarning("zafro: no window is called %s", qPrintable(name));
        return nullptr;
    }
    Form *form = (*factory)();
    form->setObjectName(name);
    // Known before its load step runs, so that the load can reach itself by name.
    live_.insert(name, form);
    if (prepare)
        prepare(form);
    QPointer<Form> guard(form);
    form->formLoad();
    return guard.data();
}

QWidget *Forms::load(const QString &name, const std::function<void(QWidget *)> &prepare)
{
    if (QWidget *live = find(name))
        return live;
    return create(name, prepare);
}

QWidget *Forms::show(const QString &name, const std::function<void(QWidget *)> &prepare)
{
    Form *form = qobject_cast<Form *>(find(name));
    if (!form) {
        form = create(name, prepare);
        if (!form || !find(name) || !form->showAfterLoad())
            return form;
    }
    form->show();
    form->raise();
    form->activateWindow();
    return form;
}

QWidget *Forms::find(const QString &name) const
{
    const auto it = live_.constFind(name);
    return it == live_.constEnd() ? nullptr : it->data();
}

void Forms::unload(const QString &name)
{
    if (Form *form = qobject_cast<Form *>(find(name)))
        form->tryUnload(Form::UnloadMode::Code);
}

QStringList Forms::loadedNames() const
{
    QStringList names;
    for (auto it = live_.cbegin(); it != live_.cend(); ++it)
        if (!it->isNull())
            names << it.key();
    names.sort();
    return names;
}

void Forms::unloadAll()
{
    droppingAll_ = true;
    const auto live = live_;
    for (const QPointer<Form> &form : live)
        if (form)
            form->tryUnload(Form::UnloadMode::AppWindows);
    // Windows that would not go are dropped all the same.
    for (const QPointer<Form> &form : live_)
        if (form)
            form->deleteLater();
    live_.clear();
    droppingAll_ = false;
}

void Forms::formUnloaded(Form *form)
{
    const QString name = live_.key(form);
    if (!name.isEmpty())
        live_.remove(name);
    live_.removeIf([](const auto &entry) { return entry.value().isNull(); });
    // Deleted later: the unload may come from one of the window's own handlers.
    form->deleteLater();
    if (!droppingAll_ && live_.isEmpty() && services().desktop)
        services().desktop->endProgram(0);
}

} // namespace zafro
