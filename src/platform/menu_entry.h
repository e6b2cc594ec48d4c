#pragma once

#include <QAction>
#include <QMenu>
#include <QString>

namespace quillet
{

// Adds an entry that calls the handler, a member of the receiver or a function.
template <typename Receiver, typename Handler>
QAction* addEntry(QMenu& menu, const QString& name, const QString& caption, Receiver& receiver,
                  Handler handler)
{
    QAction* entry = menu.addAction(caption);
    entry->setObjectName(name);
    // Otherwise some desktops move entries with certain captions to another menu.
    entry->setMenuRole(QAction::NoRole);
    QObject::connect(entry, &QAction::triggered, &receiver, handler);
    return entry;
}

} // namespace quillet
