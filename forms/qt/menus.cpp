// Menus built from a table.
#include "forms/qt/menus.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <algorithm>
#include <stdexcept>
#include <utility>

#include "forms/qt/window.h"

namespace {
bool HasChildren(const std::vector<MenuItem>& table, const QString& name) {
    return std::any_of(table.begin(), table.end(), [&](const MenuItem& item) { return item.parent == name; });
}
}  // namespace

MenuItem Without(const char* name, const char* caption, const char* parent) {
    return {QString::fromLatin1(name), QString::fromLatin1(caption), QString::fromLatin1(parent)};
}

MenuItem With(const char* name, const char* caption, const char* parent, std::function<void()> command,
              const QKeySequence& shortcut) {
    MenuItem item = Without(name, caption, parent);
    item.command = std::move(command);
    item.shortcut = shortcut;
    return item;
}

MenuItem Check(const char* name, const char* caption, const char* parent, std::function<void()> command) {
    MenuItem item = With(name, caption, parent, std::move(command));
    item.checkable = true;
    return item;
}

void Menus::build(QMenuBar* bar, const std::vector<MenuItem>& table) {
    for (const MenuItem& item : table) {
        QWidget* owner = item.parent.isEmpty() ? static_cast<QWidget*>(bar) : menu(item.parent);
        QAction* action = nullptr;
        if (HasChildren(table, item.name)) {
            auto* submenu = Named(new QMenu(item.caption, owner), item.name + QStringLiteral("_menu"),
                                  WithoutMnemonic(item.caption));
            submenu->setToolTipsVisible(true);
            action = submenu->menuAction();
            owner->addAction(action);
        } else {
            action = new QAction(item.caption, owner);
            owner->addAction(action);
            action->setEnabled(static_cast<bool>(item.command));
            action->setProperty("hasCommand", static_cast<bool>(item.command));
            if (item.command) QObject::connect(action, &QAction::triggered, owner, item.command);
        }
        action->setObjectName(item.name);
        action->setCheckable(item.checkable);
        if (!item.shortcut.isEmpty()) action->setShortcut(item.shortcut);
        actions_.insert(item.name, action);
    }
}

QAction* Menus::operator[](const QString& name) const {
    const auto found = actions_.find(name);
    if (found == actions_.end()) throw std::out_of_range("no menu item " + name.toStdString());
    return *found;
}

QMenu* Menus::menu(const QString& name) const { return (*this)[name]->menu(); }
void Menus::enable(const QString& name, bool enabled) const { (*this)[name]->setEnabled(enabled); }
