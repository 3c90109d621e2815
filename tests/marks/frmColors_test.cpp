// The windows of the categories: captions and colours, and which are displayed.
#include "marks/frmColors.h"
#include "marks/frmMarkers.h"
#include "marks/modMarkerDisplay.h"

#include "tests/support/window_test.h"

namespace {
struct CategoryWindows : WindowTest {
    std::string file;

    CategoryWindows() {
        for (std::size_t k = 0; k < CategoryCount; ++k)
            file += MarkerCaption[k] + ":" + std::to_string(MarkerPalette[k]) + (k == 3 ? "*" : "") + CrLf;
        folder.put("Marker Colors.dat", file);
        ReadMarkerColors();
    }
};

struct ColorsWindow : CategoryWindows {
    frmColors* window = ShowWindow<frmColors>();

    void click(int label) const {
        QTest::mouseClick(window->lblMarker[static_cast<std::size_t>(label)], Qt::LeftButton);
    }
    void type(const QString& caption) const {
        window->txtEdit->selectAll();
        window->txtEdit->insert(caption);
    }
};
}  // namespace

TEST_F(ColorsWindow, ClickSelectsALabelForEditing) {
    QTest::mouseClick(window->cmdColor[15], Qt::LeftButton);
    click(9);
    EXPECT_EQ(window->txtEdit->selectedText(), QStringLiteral("Meeting"));
    click(7);
    EXPECT_TRUE(window->lblMarker[7]->hasBorder() && !window->lblMarker[9]->hasBorder());
    QTest::mouseClick(window->cmdColor[15], Qt::LeftButton);
    QApplication::clipboard()->setText(QStringLiteral("F\u00EAte\r\n& more"));
    window->txtEdit->paste();
    EXPECT_EQ(window->lblMarker[7]->text(), QStringLiteral("F\u00EAte & more")) << "one line of the file";
    dialogs.expect("Marker Colors Saved.");
    window->cmdSave->click();
    EXPECT_EQ(folder.get("Marker Colors.dat"),
              Replaced(Replaced(file, "Event:32768", "F\xEAte & more:8421504"), "*", ""));
    EXPECT_EQ(OpenedWindow<frmColors>(), nullptr);
    EXPECT_FALSE(MarkersLoaded);
}

TEST_F(ColorsWindow, FixedCaptionsCannotBeEdited) {
    for (const auto& [label, enabled, readOnly] :
         {std::tuple{8, false, false}, {11, false, false}, {10, true, true}, {4, true, false}}) {
        click(label);
        EXPECT_EQ(window->txtEdit->isEnabled(), enabled) << label;
        EXPECT_EQ(window->txtEdit->isReadOnly(), readOnly) << label;
    }
    type(QStringLiteral("Holiday"));
    EXPECT_FALSE(window->txtEdit->isEnabled());
    window->cmdExit->click();
}

TEST_F(ColorsWindow, ArrowKeysWalkOverTheLabels) {
    window->lblMarker[0]->setFocus();
    for (const auto& [key, label] :
         {std::pair{Qt::Key_Up, 0}, {Qt::Key_Down, 1}, {Qt::Key_Right, 8}, {Qt::Key_Right, 8}, {Qt::Key_Left, 1}}) {
        QTest::keyClick(window->focusWidget(), key);
        EXPECT_EQ(window->focusWidget(), window->lblMarker[static_cast<std::size_t>(label)]);
    }
    window->cmdColor[0]->setFocus();
    QTest::keyClick(window->focusWidget(), Qt::Key_Down);
    QTest::keyClick(window->focusWidget(), Qt::Key_Right);
    QTest::keyClick(window->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(window->lblMarker[1]->backColor(), MarkerPalette[5]);
}

TEST_F(ColorsWindow, EditsOutliveRefusedSavesASaveFromElsewhereAndACancelledClosing) {
    click(0);
    for (const auto& [caption, message] :
         {std::pair{QStringLiteral("a:b"), "separates the caption"}, {QStringLiteral("\u4F60"), "cannot be saved"}}) {
        type(caption);
        dialogs.expect(message);
        window->cmdSave->click();
        EXPECT_EQ(window->lblMarker[0]->text(), caption);
    }
    EXPECT_EQ(folder.get("Marker Colors.dat"), file);
    dialogs.expect("Marker Colors Saved.");
    SaveHiddenMarks = true;
    EXPECT_TRUE(SaveMarkerColors());
    ReadMarkerColors();
    EXPECT_EQ(window->lblMarker[0]->text(), QStringLiteral("\u4F60"));
    dialogs.expect("save the changes", Answer::Cancel);
    EXPECT_FALSE(window->close());
    dialogs.expect("save the changes", Answer::No);
    EXPECT_TRUE(window->close());
    EXPECT_EQ(ShowWindow<frmColors>()->lblMarker[0]->text(), QStringLiteral("Account Payable"));
    EXPECT_EQ(folder.get("Marker Colors.dat"), file);
}

TEST_F(CategoryWindows, BoxesAndTablesFollowEachOther) {
    const auto* window = ShowWindow<frmMarkers>();
    const auto& boxes = window->chkMarker;
    const auto checked = [&] { return std::count_if(boxes.begin(), boxes.end(), std::mem_fn(&QCheckBox::isChecked)); };
    EXPECT_EQ(checked(), 13);
    boxes[11]->click();
    EXPECT_TRUE(MarkerHidden[TodaysDateCategory]);
    ShowCategory(3, true);
    EXPECT_TRUE(boxes[3]->isChecked());
    window->cmdCheck[1]->click();
    EXPECT_TRUE(checked() == 14 && TodayShown);
    window->cmdCheck[0]->click();
    EXPECT_TRUE(checked() == 0 && !TodayShown);
    dialogs.expect("Marker Colors Saved.");
    window->cmdSave->click();
    const std::string saved = folder.get("Marker Colors.dat");
    EXPECT_EQ(std::count(saved.begin(), saved.end(), '*'), 14);
}

TEST_F(CategoryWindows, LongCaptionsLeaveTheWindowOnTheScreen) {
    const auto* window = ShowWindow<frmMarkers>();
    for (auto& caption : MarkerCaption) caption = std::string(300, 'x');
    ShowCategories();
    QCoreApplication::processEvents();
    EXPECT_LE(window->sizeHint().width(), 800);
    EXPECT_EQ(window->chkMarker[0]->accessibleName().size(), 300);
}
