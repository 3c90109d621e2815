// Menus as tables: name, caption, parent, command.
#pragma once

#include <QHash>
#include <QKeySequence>
#include <QString>
#include <functional>
#include <vector>

class QAction;
class QMenu;
class QMenuBar;

struct MenuItem {
    QString name;                        // "mnuFileSave", "mnuEditMark(3)"
    QString caption;                     // with "&" before its access key
    QString parent;                      // the name of the item it sits under; empty on the menu bar
    std::function<void()> command = {};  // none: opens a submenu, or is shown disabled
    bool checkable = false;
    QKeySequence shortcut = {};
};

/// A row that opens a submenu, or has no command and never will: it is shown, disabled.
MenuItem Without(const char* name, const char* caption, const char* parent);
/// A row that runs a command.
MenuItem With(const char* name, const char* caption, const char* parent, std::function<void()> command,
              const QKeySequence& shortcut = {});
/// A row that runs a command and carries a check mark.
MenuItem Check(const char* name, const char* caption, const char* parent, std::function<void()> command);

/// The items of one window by their names.
class Menus {
  public:
    /// Builds the items in the order of the table. An item that is some other's parent opens a submenu. An item with
    /// neither command nor children is disabled for good.
    void build(QMenuBar* bar, const std::vector<MenuItem>& table);

    /// Throws std::out_of_range for a name that is not in the table.
    QAction* operator[](const QString& name) const;
    /// The submenu that an item opens.
    QMenu* menu(const QString& name) const;
    void enable(const QString& name, bool enabled) const;

  private:
    QHash<QString, QAction*> actions_;
};
