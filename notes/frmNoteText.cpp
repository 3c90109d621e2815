// The text box of the notes editor.
#include "notes/frmNoteText.h"

#include <QDragEnterEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPlainTextDocumentLayout>
#include <QTextBlock>
#include <QTextLayout>

#include "base/text.h"
#include "forms/qt/canvas.h"
#include "forms/qt/text.h"
#include "forms/qt/window.h"
#include "notes/modComplete.h"
#include "notes/modFUT.h"
#include "notes/modPrintNote.h"
#include "shell/modPreferences.h"

namespace {
bool IsLineBreak(QChar c) { return c == QChar::ParagraphSeparator || c == QChar::LineSeparator || c == u'\n'; }

/// True for a key that puts characters into the text, by the rule the box itself has.
bool TypesText(const QKeyEvent& event) {
    const QString text = event.text();
    const auto held = event.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier);
    if (text.isEmpty() || held == Qt::ControlModifier || held == Qt::AltModifier) return false;
    return text.at(0).isPrint() || text.at(0) == u'\t';
}

bool IsEnter(int key) { return key == Qt::Key_Return || key == Qt::Key_Enter; }
}  // namespace

NoteTextBox::NoteTextBox(QWidget* parent) : QPlainTextEdit(parent) {
    setFont(FromFont(NoteFont));
    setTabStopDistance(Pixels(NoteTabDistance));
}

// -- The text -------------------------------------------------------------------------------------------------------

void NoteTextBox::showNote(const std::string& text) {
    SuggestionGone();
    WordTracking = false;
    setPlainText(FromText(text));
    setCaret(0);
}

QString NoteTextBox::noteText() const {
    // Not toPlainText(), which would turn unbreakable blanks into plain ones.
    QString text = document()->toRawText();
    text.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
    return text.replace(u'\n', QStringLiteral("\r\n"));
}

int NoteTextBox::length() const { return document()->characterCount() - 1; }

char NoteTextBox::lastCharacter() const { return characterAt(length() - 1); }

char NoteTextBox::characterAt(int position) const {
    constexpr char Foreign = '\x01';  // equals nothing that a term begins with
    if (position < 0 || position >= length()) return '\0';
    const QChar c = document()->characterAt(position);
    if (IsLineBreak(c)) return '\n';
    const int code = CodeOf(c.unicode());
    return code <= 0 ? Foreign : static_cast<char>(code);
}

void NoteTextBox::append(const std::string& text) {
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    cursor.beginEditBlock();
    cursor.insertText(FromText(text));
    cursor.endEditBlock();
    setTextCursor(cursor);
    ensureCursorVisible();
}

bool NoteTextBox::selectPhrase(const QString& phrase, int from) {
    const auto at = document()->toRawText().indexOf(phrase, from, Qt::CaseInsensitive);
    if (at < 0 || phrase.isEmpty()) return false;
    QTextCursor cursor(document());
    cursor.setPosition(static_cast<int>(at));
    cursor.setPosition(static_cast<int>(at + phrase.size()), QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    return true;
}

void NoteTextBox::setCaret(int position) {
    QTextCursor cursor(document());
    cursor.setPosition(position);
    setTextCursor(cursor);
}

QStringList NoteTextBox::wrappedLines() const {
    const auto* layout = qobject_cast<QPlainTextDocumentLayout*>(document()->documentLayout());
    QStringList lines;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        layout->ensureBlockLayout(block);
        const QTextLayout* wrapped = block.layout();
        if (wrapped->lineCount() == 0) lines << block.text();
        for (int i = 0; i < wrapped->lineCount(); ++i) {
            const QTextLine line = wrapped->lineAt(i);
            lines << block.text().mid(line.textStart(), line.textLength()).remove(QChar::LineSeparator);
        }
    }
    return lines;
}

// -- Completion -----------------------------------------------------------------------------------------------------

bool NoteTextBox::suggestionIntact() const {
    const QTextCursor cursor = textCursor();
    return SuggestionShowing && document()->revision() == revisionOffered_ &&
           cursor.selectionStart() == WordStart + TypedLength && cursor.selectionEnd() == SuggestionEnd;
}

/// Takes the completion back out of the text, and out of what can be undone.
void NoteTextBox::retractSuggestion() {
    if (suggestionIntact()) {
        document()->undo();
        setCaret(WordStart + TypedLength);
    }
    SuggestionGone();
}

/// The keys that take the completion; a blank typed with Shift still has to be typed.
bool NoteTextBox::takesSuggestion(const QKeyEvent& event) {
    const bool shift = event.modifiers().testFlag(Qt::ShiftModifier);
    const bool control = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const int key = event.key();
    const bool taken =
        IsEnter(key) || key == Qt::Key_Right || (key == Qt::Key_Insert && !shift) || (key == Qt::Key_Space && shift);
    if (!taken || control || !AutoCompleteOn || !SuggestionShowing) return false;
    setCaret(SuggestionEnd);
    SuggestionGone();
    return true;
}

void NoteTextBox::offerTerm(int typed) {
    const QTextCursor cursor = textCursor();
    if (!AutoCompleteOn || typed < 1 || cursor.hasSelection()) return;
    if (OfferTerm(Terms.index, Terms.terms, AutoStartPosition, cursor.position(), typed,
                  [this](int position) { return characterAt(position); }))
        showSuggestion();
}

void NoteTextBox::showSuggestion() {
    const QString term = FromText(SuggestedTerm);
    QTextCursor cursor = textCursor();
    cursor.beginEditBlock();
    if (SuggestedTerm.starts_with(TypedFragment)) {
        cursor.insertText(term.mid(TypedLength));
    } else {
        cursor.setPosition(WordStart, QTextCursor::KeepAnchor);
        cursor.insertText(term);
    }
    cursor.endEditBlock();
    SuggestionShown();
    revisionOffered_ = document()->revision();
    cursor.setPosition(SuggestionEnd);
    cursor.setPosition(WordStart + TypedLength, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
}

// -- Events ---------------------------------------------------------------------------------------------------------

void NoteTextBox::keyPressEvent(QKeyEvent* event) {
    if (!suggestionIntact()) SuggestionGone();
    if (takesSuggestion(*event) && event->key() != Qt::Key_Space) return;
    const bool erases = event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Delete;
    if (erases && SuggestionShowing && event->modifiers() == Qt::NoModifier) {
        retractSuggestion();
        return;
    }
    const bool types = TypesText(*event);
    if (types) retractSuggestion();
    if (IsEnter(event->key()) && event->modifiers().testFlag(Qt::ShiftModifier)) {
        // The file knows one kind of line break only.
        QKeyEvent plain(event->type(), Qt::Key_Return, Qt::NoModifier, event->text());
        QPlainTextEdit::keyPressEvent(&plain);
        return;
    }
    QPlainTextEdit::keyPressEvent(event);
    if (types) offerTerm(static_cast<int>(event->text().size()));
}

void NoteTextBox::inputMethodEvent(QInputMethodEvent* event) {
    const bool composes = !event->preeditString().isEmpty();
    if (composes || !event->commitString().isEmpty() || event->replacementLength() > 0) retractSuggestion();
    QPlainTextEdit::inputMethodEvent(event);
    if (!composes && !event->commitString().contains(u'\n')) offerTerm(static_cast<int>(event->commitString().size()));
}

void NoteTextBox::insertFromMimeData(const QMimeData* source) {
    retractSuggestion();
    QPlainTextEdit::insertFromMimeData(source);
}

void NoteTextBox::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasFormat(QLatin1String(DraggedTermType)))
        event->acceptProposedAction();
    else
        QPlainTextEdit::dragEnterEvent(event);
}

void NoteTextBox::dragMoveEvent(QDragMoveEvent* event) {
    if (event->mimeData()->hasFormat(QLatin1String(DraggedTermType)))
        event->acceptProposedAction();
    else
        QPlainTextEdit::dragMoveEvent(event);
}

void NoteTextBox::dropEvent(QDropEvent* event) {
    if (!event->mimeData()->hasFormat(QLatin1String(DraggedTermType))) {
        QPlainTextEdit::dropEvent(event);
        return;
    }
    event->acceptProposedAction();
    Q_EMIT termDropped();
}
