#include "frame/ChildWindows.h"

#include "core/numeric/RuntimeError.h"
#include "frame/platform/Form.h"

#include <QPointer>

#include <array>

namespace
{
struct Entry {
    Port<ChildFactory> factory;
    QPointer<Form> form;
};

Entry &EntryOf(ChildWindow window)
{
    static std::array<Entry, 6> entries;
    return entries.at(static_cast<std::size_t>(window));
}
} // namespace

Port<ChildFactory> &ChildFactoryPort(ChildWindow window)
{
    return EntryOf(window).factory;
}

bool HasChildFactory(ChildWindow window)
{
    return static_cast<bool>(*ChildFactoryPort(window));
}

Form &Child(ChildWindow window)
{
    if (Form *form = LoadedChild(window))
        return *form;
    Entry &entry = EntryOf(window);
    if (!HasChildFactory(window))
        throw RuntimeError(ErrorNumber::NoObject);
    entry.form = (*entry.factory)();
    return *entry.form;
}

Form *LoadedChild(ChildWindow window)
{
    // An unloaded form is gone, though its object may still wait for its end.
    Form *form = EntryOf(window).form;
    return Forms::All().contains(form) ? form : nullptr;
}
