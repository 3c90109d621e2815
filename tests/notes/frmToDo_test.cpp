// The to-do window and the main window's panel.
#include "notes/frmToDo.h"

#include "notes/frmToDoPanel.h"
#include "tests/support/window_test.h"

namespace {
const std::string Rows = "\xF3one\r\n\xF5two\r\n\xF5\r\n\xF5\r\n\xF5\r\n\xF5\r\n\xF5\r\n\xF5\r\n\xF5\r\n\xF5\r\n";

struct ToDoWindow : WindowTest {
    ToDoPanel panel;
    frmToDo* window = nullptr;

    void SetUp() override {
        folder.put("To Do.dat", Rows);
        OpenToDoList();
        window = OpenedWindow<frmToDo>();
        ASSERT_NE(window, nullptr);
        ASSERT_TRUE(QTest::qWaitForWindowActive(window));
    }
    void clickMenu(const char* name) const { window->item(QString::fromLatin1(name))->trigger(); }
    QColor colourOf(std::size_t row) const { return window->txt.at(row)->palette().color(QPalette::Base); }
};
}  // namespace

TEST_F(ToDoWindow, SavesWhatIsShownAndThePanelFollows) {
    EXPECT_EQ(window->txt[1]->text(), QStringLiteral("two"));
    EXPECT_EQ(window->imgChkBox[0]->property("tag"), QStringLiteral("True"));
    panel.resize(panel.sizeHint());
    panel.show();
    EXPECT_EQ(panel.lblToDo[2]->text(), QStringLiteral("two"));
    EXPECT_EQ(panel.imgChkBox[1]->picture(), Picture::Checked);

    QTest::mouseClick(window->imgChkBox[1], Qt::LeftButton);
    EXPECT_EQ(window->imgChkBox[1]->property("tag"), QStringLiteral("True"));
    QTest::mouseClick(window->cmdDelete[0], Qt::LeftButton);
    dialogs.expect("To Do List Saved.");
    clickMenu("mnuFileSave");
    EXPECT_TRUE(folder.get("To Do.dat").starts_with("\xF3\r\n\xF3two\r\n\xF5\r\n"));
    EXPECT_EQ(panel.lblToDo[1]->text(), QString());
    EXPECT_EQ(panel.imgChkBox[2]->picture(), Picture::Checked);
    EXPECT_FALSE(panel.lstOtherToDo->isVisible());
}

TEST_F(ToDoWindow, KeysMoveBetweenRowsAndColoursTell) {
    EXPECT_EQ(QApplication::focusWidget(), window->txt[0]);
    EXPECT_EQ(colourOf(0), QColor(Qt::cyan));
    using Row = std::pair<Qt::Key, std::size_t>;
    for (const auto& [key, row] : {Row{Qt::Key_Up, 0}, {Qt::Key_Down, 1}, {Qt::Key_Return, 2}, {Qt::Key_Up, 1}}) {
        QTest::keyClick(QApplication::focusWidget(), key);
        EXPECT_EQ(QApplication::focusWidget(), window->txt[row]);
    }
    window->txt[9]->setFocus();
    QTest::keyClick(window->txt[9], Qt::Key_Enter);
    EXPECT_EQ(QApplication::focusWidget(), window->txt[9]);
    for (const int length : {61, 60}) {
        window->txt[9]->setFocus();
        window->txt[9]->setText(QString(length, QLatin1Char('x')));
        window->txt[0]->setFocus();
        EXPECT_EQ(colourOf(9), length == 61 ? QColor(Qt::red) : window->palette().color(QPalette::Base));
    }
    dialogs.expect("To Do List has been changed.", Answer::No);
    EXPECT_TRUE(window->close());
    EXPECT_FALSE(TaskListChanged);
    EXPECT_EQ(folder.get("To Do.dat"), Rows);
}

TEST_F(ToDoWindow, ClosingLosesNothing) {
    QTest::mouseClick(window->imgChkBox[4], Qt::LeftButton);
    window->txt[2]->setText(QString::fromUtf8("\u041F\u0438\u0441\u044C\u043C\u043E"));
    dialogs.expect("has been changed", Answer::Cancel);
    EXPECT_FALSE(window->close());
    dialogs.expect("has been changed", Answer::Yes).expect("cannot be saved");
    EXPECT_FALSE(window->close()) << "what cannot be saved stays in its box";
    clickMenu("mnuOptMoveDown");
    EXPECT_EQ(window->txt[3]->text(), QString::fromUtf8("\u041F\u0438\u0441\u044C\u043C\u043E"));
    EXPECT_EQ(window->imgChkBox[5]->property("tag"), QStringLiteral("True"));
    OpenToDoList();
    EXPECT_TRUE(TaskListChanged) << "opening it again keeps the edits";
    window->txt[3]->setText(QStringLiteral("a\nb"));
    dialogs.expect("has been changed", Answer::Yes).expect("To Do List Saved.");
    EXPECT_TRUE(window->close());
    EXPECT_TRUE(folder.get("To Do.dat")
                    .starts_with("\xF5\r\n\xF3one\r\n\xF5two\r\n\xF5"
                                 "a b\r\n\xF5\r\n\xF3\r\n"));
}
