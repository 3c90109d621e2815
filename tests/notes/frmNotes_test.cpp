// The notes editor: typing with completion, saving, closing, searching, printing.
#include "notes/frmNotes.h"

#include "notes/modFUT.h"
#include "notes/modNotes.h"
#include "shell/modPreferences.h"
#include "tests/support/window_pdf.h"
#include "tests/support/window_test.h"

namespace {
struct EditorTest : WindowTest {
    EditorTest() {
        InstallNoteEditor();
        Calendar.yearOnDisplay = 2026;
        folder.put("Work.fut", "budget\r\niPhone\r\nNew York");
        Preferences.termsFile = CurrentTermsFile = "Work.fut";
        AutoStartPosition = 0;
    }
    ~EditorTest() override { NoteEditor = {}; }

    frmNotes* open(int month = 10, int day = 5) {
        SelectDate(MakeDate(2026, month, day));
        DisplayThisNote();
        window = OpenedWindow<frmNotes>();
        box = window->txtNotes;
        EXPECT_TRUE(QTest::qWaitForWindowActive(window));
        return window;
    }
    void type(const char* keys) const { QTest::keyClicks(box, QString::fromLatin1(keys)); }
    void press(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) const { QTest::keyClick(box, key, held); }
    /// The text with what is selected in brackets.
    std::string shown() const {
        const QTextCursor cursor = box->textCursor();
        QString text = box->toPlainText();
        if (!cursor.hasSelection()) return text.insert(cursor.position(), u'|').toStdString();
        return text.insert(cursor.selectionEnd(), u']').insert(cursor.selectionStart(), u'[').toStdString();
    }
    std::string file() const { return folder.get("2026/Notes.dat"); }

    frmNotes* window = nullptr;
    NoteTextBox* box = nullptr;
};

TEST_F(EditorTest, OffersTakesAndRefusesACompletion) {
    using Row = std::tuple<const char*, Qt::Key, Qt::KeyboardModifiers, const char*>;
    open();
    for (const auto& [typed, key, held, expected] :
         {Row{"ne", Qt::Key_unknown, Qt::NoModifier, "ne[w york]"},
          Row{"Ne", Qt::Key_Right, Qt::NoModifier, "New York|"},
          Row{"NE", Qt::Key_Right, Qt::ShiftModifier, "NEW YORK|"},
          Row{"iP", Qt::Key_Insert, Qt::NoModifier, "iPhone|"}, Row{"b", Qt::Key_Return, Qt::NoModifier, "budget|"},
          Row{"b", Qt::Key_Space, Qt::ShiftModifier, "budget |"}, Row{"b", Qt::Key_Space, Qt::NoModifier, "b |"},
          Row{"bu", Qt::Key_Backspace, Qt::NoModifier, "bu|"}, Row{"bu", Qt::Key_Delete, Qt::NoModifier, "bu|"},
          Row{"bu", Qt::Key_Z, Qt::ControlModifier, "bu|"}, Row{"nEw", Qt::Key_unknown, Qt::NoModifier, "New[ York]"},
          Row{"nEw", Qt::Key_Z, Qt::ControlModifier, "nEw|"}, Row{"nEw", Qt::Key_X, Qt::NoModifier, "nEwx|"},
          Row{"bx", Qt::Key_Return, Qt::NoModifier, "bx\n|"}, Row{"bx", Qt::Key_Return, Qt::ShiftModifier, "bx\n|"},
          Row{"budge", Qt::Key_T, Qt::NoModifier, "budget|"},
          Row{"new y", Qt::Key_Right, Qt::NoModifier, "new york|"}}) {
        box->showNote("");
        type(typed);
        if (key != Qt::Key_unknown) press(key, held);
        EXPECT_EQ(shown(), expected) << typed;
    }
}

TEST_F(EditorTest, NeverLosesOrDoublesACharacterHoweverTheyCome) {
    open();
    for (int i = 0; i < 5; ++i) {  // a key held down
        QKeyEvent held(QEvent::KeyPress, Qt::Key_B, Qt::NoModifier, QStringLiteral("b"), i > 0);
        QApplication::sendEvent(box, &held);
    }
    EXPECT_EQ(shown(), "bbbbb|");
    box->showNote("");
    const auto compose = [&](const char16_t* preedit, const char16_t* commit) {
        QInputMethodEvent event(QString::fromUtf16(preedit), {});
        event.setCommitString(QString::fromUtf16(commit));
        QApplication::sendEvent(box, &event);
    };
    compose(u"", u"b");
    EXPECT_EQ(shown(), "b[udget]");
    compose(u"u", u"");  // composing replaces the completion, and completes nothing yet
    EXPECT_EQ(box->toPlainText(), QStringLiteral("b"));
    compose(u"", u"ud");
    EXPECT_EQ(shown(), "bud[get]");
    QApplication::clipboard()->setText(QStringLiteral("ne"));
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(shown(), "budne|");
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(shown(), "bud|");
    AutoCompleteOn = false;
    type(" b");
    EXPECT_EQ(shown(), "bud b|");
    while (box->document()->isUndoAvailable()) press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(shown(), "|");
}

TEST_F(EditorTest, SavesEveryCharacterOfTheCodePage) {
    open();
    std::string all = "\r\n";
    for (int code = 1; code < 256; ++code)
        if (code != '\r' && code != '\n' && code != 0xD2 && code != 0xD5) all += static_cast<char>(code);
    box->showNote("");
    box->append(all);
    EXPECT_TRUE(NotesChanged);
    dialogs.expect("Notes Saved");
    window->item(QStringLiteral("mnuFileSave"))->trigger();
    EXPECT_EQ(file(), "10/05/26:090101:" + EncodedLineBreaks(all) + "\r\n");
    EXPECT_FALSE(NotesChanged);
    type("\b");
    EXPECT_TRUE(NotesChanged);
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_FALSE(NotesChanged);  // the text is again what was saved
    type("12");
    dialogs.expect("The Notes have been changed", Answer::Yes);
    dialogs.expect("Notes Saved");
    AskAboutOpenNote(false);
    type("\b");
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_FALSE(NotesChanged);  // and again, after another way to save
    box->insertPlainText(QStringLiteral("\u4E2D"));
    dialogs.expect("\u4E2D");
    window->item(QStringLiteral("mnuFileSave"))->trigger();
    EXPECT_TRUE(NotesChanged);
    EXPECT_TRUE(box->toPlainText().contains(QChar(0x4E2D)));
}

TEST_F(EditorTest, ClosesThroughItsPrompt) {
    const auto change = [&](Answer answer) {
        open();
        type("x");
        dialogs.expect("Text has been changed. Do you want to save the changes?", answer);
    };
    change(Answer::Cancel);
    CalendarView = 0;
    press(Qt::Key_Escape);
    EXPECT_TRUE(OpenedWindow<frmNotes>() == window && CalendarView == 0);
    SelectDate(MakeDate(2026, 3, 1));
    dialogs.expect("Text has been changed", Answer::Cancel);
    DisplayThisNote();
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Notes for October 05, 2026"));
    dialogs.expect("Text has been changed", Answer::Yes);
    dialogs.expect("Notes Saved");
    press(Qt::Key_Escape);
    EXPECT_FALSE(OpenedWindow<frmNotes>() || NotesWindowOpen);
    EXPECT_EQ(CalendarView, 12);
    EXPECT_EQ(file(), "10/05/26:090101:x\r\n");
    change(Answer::No);
    EXPECT_TRUE(window->close());
    EXPECT_EQ(file(), "10/05/26:090101:x\r\n");
}

TEST_F(EditorTest, FindsThePhraseAgainAndAgain) {
    folder.put("2026/Notes.dat", "10/05/26:090101:Lunch\xD5\xD2lunch LUNCH\r\n");
    SearchActive = true;
    SearchPhrase = "lunch";
    open();
    auto* again = window->item(QStringLiteral("mnuEditSearchAgain"));
    EXPECT_EQ(shown(), "[Lunch]\nlunch LUNCH");
    again->trigger();
    again->trigger();
    EXPECT_EQ(shown(), "Lunch\nlunch [LUNCH]");
    dialogs.expect("No more occurences.");
    again->trigger();
    EXPECT_EQ(shown(), "|Lunch\nlunch LUNCH");
    SearchActive = false;
    open(10, 6);
    EXPECT_FALSE(window->item(QStringLiteral("mnuEdit"))->isEnabled());
}

TEST_F(EditorTest, TakesTheTimeLineAndDroppedTerms) {
    open();
    type("x");
    window->cmdFormat->click();
    EXPECT_TRUE(shown().starts_with("x\n06:00 AM - |\n\n06:30 AM - \n\n")) << shown();
    EXPECT_EQ(box->document()->blockCount(), 2 + 72);
    const auto drop = [&] {
        DraggedTerm = "vet";
        EXPECT_TRUE(DragAndDrop(box->viewport(), QPoint(5, 5), DraggedTermType, "vet"));
        return shown();
    };
    EXPECT_TRUE(drop().ends_with(" - \n\nvet|"));
    EXPECT_TRUE(drop().ends_with("\nvet vet|"));
}

TEST_F(EditorTest, PrintsLinesAsWrappedOnAsManyPagesAsTheyTake) {
    open();
    window->resize(500, 400);
    QString text = QStringLiteral("a\tb\n");
    for (int i = 0; i < 70; ++i) text += QStringLiteral("line %1\n").arg(i);
    text += QStringLiteral("word ").repeated(60);
    box->insertPlainText(text);
    dialogs.expect("Could not find Printer.");
    window->item(QStringLiteral("mnuFilePrint"))->trigger();
    const PdfPrinter printer(QString::fromStdString(folder.path().string()));
    window->item(QStringLiteral("mnuFilePrint"))->trigger();
    const QStringList pages = printer.pages();
    ASSERT_EQ(pages.size(), 2);
    EXPECT_TRUE(pages[0].trimmed().startsWith(QStringLiteral("Notes for Oct 05, 2026")));
    QStringList printed;
    for (const QString& line : pages.join(QString()).split(u'\n', Qt::SkipEmptyParts)) printed << line.simplified();
    QStringList wrapped;
    for (const QString& line : box->wrappedLines()) wrapped << line.simplified();
    EXPECT_GT(wrapped.size(), 73);
    EXPECT_EQ(printed.mid(1), wrapped);
}
}  // namespace
