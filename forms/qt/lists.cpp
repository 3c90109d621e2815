// List boxes as pictures of tables.
#include "forms/qt/lists.h"

#include <QKeyEvent>
#include <QSignalBlocker>
#include <algorithm>

#include "base/listEntries.h"
#include "forms/qt/text.h"

void ListBox::keyPressEvent(QKeyEvent* event) {
    const bool arrow = event->key() == Qt::Key_Down || event->key() == Qt::Key_Up;
    if (arrow && currentRow() >= 0 && SelectedRow(this) < 0)
        setCurrentRow(currentRow(), QItemSelectionModel::ClearAndSelect);
    else
        QListWidget::keyPressEvent(event);
}

void ShowEntries(QListWidget* list, const std::vector<std::string>& entries) {
    const QSignalBlocker quiet(list);
    const int row = list->currentRow();
    QStringList shown;
    shown.reserve(static_cast<qsizetype>(entries.size()));
    for (const auto& entry : entries) shown << FromText(VisibleText(entry));
    list->clear();
    list->addItems(shown);
    const QSignalBlocker noRepaint(list->model());  // an entry behind its row changes nothing that is seen
    for (int i = 0; i < list->count(); ++i)
        list->item(i)->setData(Qt::UserRole, QByteArray::fromStdString(entries[static_cast<std::size_t>(i)]));
    list->setCurrentRow(std::min(row, list->count() - 1));
}

std::string EntryAt(const QListWidget* list, int row) {
    const QListWidgetItem* item = list->item(row);
    return item == nullptr ? std::string() : item->data(Qt::UserRole).toByteArray().toStdString();
}

int SelectedRow(const QListWidget* list) {
    const auto selected = list->selectionModel()->selectedRows();
    return selected.isEmpty() ? -1 : selected.first().row();
}
