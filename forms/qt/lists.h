// List boxes as pictures of tables.
#pragma once

#include <QListWidget>
#include <string>
#include <vector>

/// A list box. One that gets the focus by Tab has a current row that is not selected: the first arrow key selects that
/// row instead of passing it.
class ListBox : public QListWidget {
    Q_OBJECT

  public:
    using QListWidget::QListWidget;

  protected:
    void keyPressEvent(QKeyEvent* event) override;
};

/// Shows the entries; of those that stand for records only the visible text. The whole entry stays with its row
/// (EntryAt). Keeps the current row where it can. Fires no event.
void ShowEntries(QListWidget* list, const std::vector<std::string>& entries);

/// The whole entry of a row; "" for a row that is not there.
std::string EntryAt(const QListWidget* list, int row);

/// The row that is selected, the first of several; -1 for none. A list that gets the focus by Tab has a current row
/// without a selected one.
int SelectedRow(const QListWidget* list);
