// Editable lists of a few short texts.
#include "forms/qt/picker.h"

#include <QCompleter>
#include <QLineEdit>
#include <QStyleOptionComboBox>
#include <utility>

Picker::Picker(const QStringList& items, QString longest, bool completing, QWidget* parent)
    : QComboBox(parent), longest_(std::move(longest)), completing_(completing) {
    addItems(items);
    setCurrentIndex(-1);  // no text is laid out that nobody will see
    auto* edit = new QLineEdit(this);
    QCompleter none;  // a line edit that has one is given no other
    edit->setCompleter(&none);
    setLineEdit(edit);
    edit->setCompleter(nullptr);
    setInsertPolicy(QComboBox::NoInsert);
}

QSize Picker::sizeHint() const {
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const QSize text(fontMetrics().horizontalAdvance(longest_), fontMetrics().height() + 2);
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, text, this);
}

void Picker::focusInEvent(QFocusEvent* event) {
    if (completing_ && completer() == nullptr) {
        auto* completer = new QCompleter(model(), this);
        completer->setCaseSensitivity(Qt::CaseInsensitive);
        completer->setCompletionMode(QCompleter::InlineCompletion);
        setCompleter(completer);
    }
    QComboBox::focusInEvent(event);
}
