// The text box of the notes editor: a plain text box that completes words as they are typed.
#pragma once

#include <QPlainTextEdit>
#include <QStringList>
#include <string>

/// The kind under which a term is dragged from the terms window.
inline constexpr const char* DraggedTermType = "application/x-tasmoro-term";

class NoteTextBox : public QPlainTextEdit {
    Q_OBJECT

  public:
    explicit NoteTextBox(QWidget* parent = nullptr);

    /// Shows a note (Windows-1252): nothing to undo, the caret at its start.
    void showNote(const std::string& text);
    /// All of the text, lines parted by CR LF, every character as it was shown.
    QString noteText() const;
    /// How many characters the text has, a line break counting as one.
    int length() const;
    /// The last character: '\n' for a line break, 0 for an empty text, 1 for one that the files do not have.
    char lastCharacter() const;

    /// Appends in one undo step. The caret comes to stand at the end.
    void append(const std::string& text);
    /// Selects the phrase's first occurrence at or after a position, ignoring case. False if there is none.
    bool selectPhrase(const QString& phrase, int from);
    void setCaret(int position);

    /// The lines as the box wraps them.
    QStringList wrappedLines() const;

  Q_SIGNALS:
    /// A term was dropped from the terms window.
    void termDropped();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    char characterAt(int position) const;
    bool suggestionIntact() const;
    bool takesSuggestion(const QKeyEvent& event);
    void retractSuggestion();
    void offerTerm(int typed);
    void showSuggestion();

    int revisionOffered_ = -1;  // of the document, when the completion was put into it
};
