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
        folder.put(
            "Work.fut",
            "zebra two\r\nagenda\r\nbudget\r\niPad\r\niPhone\r\nNew Jersey\r\nNew York\r\nZebra one\r\n\xC4rzte");
        Preferences.termsFile = CurrentTermsFile = "Work.fut";
        AutoStartPosition = 0;
    }

    void open() {
        SelectDate(MakeDate(2026, 10, 5));
        DisplayThisNote();
        window = OpenedWindow<frmNotes>();
        box = window->txtNotes;
        ASSERT_TRUE(QTest::qWaitForWindowActive(window));
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

TEST_F(EditorTest, OffersTheFirstTermThatFitsInTheCaseThatIsTyped) {
    using Row = std::tuple<std::string, const char*, int, const char*>;  // the caret stands at "|"
    open();
    for (auto& [text, keys, startPosition, expected] :
         {// in the case that is typed
          Row{"|", "ne", 0, "ne[w jersey]"}, Row{"|", "Ne", 0, "Ne[w Jersey]"}, Row{"|", "NE", 0, "NE[W JERSEY]"},
          Row{"|", "Bu", 0, "Bu[dget]"}, Row{"|", "iPh", 0, "iPh[one]"}, Row{"|", "nEw", 0, "New[ Jersey]"},
          // in the order of the file
          Row{"|", "ze", 0, "ze[bra two]"},
          // from the start position on, while something fits
          Row{"|", "b", 0, "b[udget]"}, Row{"|", "bu", 2, "bu|"}, Row{"|", "bud", 2, "bud[get]"},
          Row{"|", "budget", 0, "budget|"}, Row{"|", "bux", 0, "bux|"}, Row{"|", "bux\bd", 0, "bud[get]"},
          // where a word begins and none goes on
          Row{"a |", "bu", 0, "a bu[dget]"}, Row{"a\n|", "bu", 0, "a\nbu[dget]"}, Row{"(|", "bu", 0, "(bu|"},
          Row{"b|", "u", 0, "bu|"}, Row{"|dget", "bu", 0, "bu|dget"}, Row{"| x", "bu", 0, "bu[dget] x"},
          Row{"|\nx", "bu", 0, "bu[dget]\nx"},
          // over a blank, not over a line break
          Row{"|", "new ", 0, "new [jersey]"}, Row{"|", "new y", 0, "new y[ork]"}, Row{"|", "new b", 0, "new b[udget]"},
          Row{"|", "new\b\ry", 0, "new\ny|"}}) {
        const auto caret = text.find('|');
        box->showNote(text.substr(0, caret) + text.substr(caret + 1));
        box->setCaret(static_cast<int>(caret));
        AutoStartPosition = startPosition;
        type(keys);
        EXPECT_EQ(shown(), expected) << text << keys;
    }
}

TEST_F(EditorTest, TakesAndRefusesACompletion) {
    using Row = std::tuple<const char*, Qt::Key, Qt::KeyboardModifiers, const char*>;
    open();
    for (const auto& [typed, key, held, expected] :
         {Row{"Ne", Qt::Key_Right, Qt::NoModifier, "New Jersey|"},
          Row{"NE", Qt::Key_Right, Qt::ShiftModifier, "NEW JERSEY|"},
          Row{"iPh", Qt::Key_Insert, Qt::NoModifier, "iPhone|"}, Row{"b", Qt::Key_Return, Qt::NoModifier, "budget|"},
          Row{"b", Qt::Key_Space, Qt::ShiftModifier, "budget |"}, Row{"b", Qt::Key_Space, Qt::NoModifier, "b |"},
          Row{"bu", Qt::Key_Backspace, Qt::NoModifier, "bu|"}, Row{"bu", Qt::Key_Delete, Qt::NoModifier, "bu|"},
          Row{"bu", Qt::Key_Z, Qt::ControlModifier, "bu|"}, Row{"nEw", Qt::Key_Z, Qt::ControlModifier, "nEw|"},
          Row{"nEw", Qt::Key_X, Qt::NoModifier, "nEwx|"}, Row{"bx", Qt::Key_Return, Qt::NoModifier, "bx\n|"},
          Row{"bx", Qt::Key_Return, Qt::ShiftModifier, "bx\n|"}}) {
        box->showNote("");
        type(typed);
        press(key, held);
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
    compose(u"", u"\u00E4R");
    EXPECT_EQ(shown(), "\u00C4r[zte]");
    box->showNote("");
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
    box->append(all);
    dialogs.expect("Notes Saved");
    window->item(QStringLiteral("mnuFileSave"))->trigger();
    EXPECT_EQ(file(), "10/05/26:090101:" + EncodedLineBreaks(all) + "\r\n");
    type("12");
    dialogs.expect("The Notes have been changed", Answer::Yes).expect("Notes Saved");
    AskAboutOpenNote(false);
    type("\b");
    EXPECT_TRUE(NotesChanged);
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_FALSE(NotesChanged) << "the text is again what was saved";
    box->insertPlainText(QStringLiteral("\u4E2D\u200B\u202F"));
    dialogs.expect("\u4E2D U+200B U+202F");
    window->item(QStringLiteral("mnuFileSave"))->trigger();
    EXPECT_TRUE(NotesChanged);
    EXPECT_TRUE(box->toPlainText().contains(QChar(0x4E2D)));
    for (char16_t character = 0x4E2D; character < 0x4F00; ++character) box->insertPlainText(QChar(character));
    dialogs.expect(QString(QChar(0x4E2D + 37)).toStdString() + " ...\r\n");  // the first 40, two of them above
    window->item(QStringLiteral("mnuFileSave"))->trigger();
}

TEST_F(EditorTest, ClosesThroughItsPrompt) {
    for (const Answer answer : {Answer::Yes, Answer::Cancel, Answer::No}) {
        if (!NotesWindowOpen) open();
        type("x");
        CalendarView = 0;
        dialogs.expect("Text has been changed. Do you want to save the changes?", answer);
        if (answer == Answer::Yes) dialogs.expect("Notes Saved");
        press(Qt::Key_Escape);
        const bool stays = answer == Answer::Cancel;
        EXPECT_EQ(OpenedWindow<frmNotes>(), stays ? window : nullptr);
        EXPECT_EQ(NotesWindowOpen, stays);
        EXPECT_EQ(CalendarView, stays ? 0 : 12);
    }
    EXPECT_EQ(file(), "10/05/26:090101:x\r\n");
}

TEST_F(EditorTest, FindsThePhraseAgainAndAgain) {
    folder.put("2026/Notes.dat", "10/05/26:090101:Lunch\xD5\xD2lunch LUNCH\r\n");
    SearchActive = true;
    SearchPhrase = "lunch";
    open();
    for (const char* found : {"[Lunch]\nlunch LUNCH", "Lunch\n[lunch] LUNCH", "Lunch\nlunch [LUNCH]"}) {
        EXPECT_EQ(shown(), found);
        if (shown().ends_with("]")) dialogs.expect("No more occurences.");
        window->item(QStringLiteral("mnuEditSearchAgain"))->trigger();
    }
    EXPECT_EQ(shown(), "|Lunch\nlunch LUNCH");
}

TEST_F(EditorTest, TakesTheTimeLineAndDroppedTerms) {
    open();
    type("x");
    press(Qt::Key_I, Qt::AltModifier);  // the Tab key writes tabs here
    EXPECT_TRUE(QTest::qWaitFor([&] { return box->length() > 1; }));
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
