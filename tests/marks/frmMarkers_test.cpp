// The window of displayed categories.
#include "marks/frmMarkers.h"

#include "marks/modMarkerDisplay.h"
#include "tests/support/calendar.h"
#include "tests/support/window_test.h"

namespace {
struct MarkersWindow : WindowTest {
    frmMarkers* window = nullptr;

    MarkersWindow() {
        PutCategories(folder);
        folder.put("Marker Colors.dat", Replaced(folder.get("Marker Colors.dat"), "5\r\nBirthday", "5*\r\nBirthday"));
        ReadMarkerColors();
        window = ShowWindow<frmMarkers>();
    }
    int checked() const {
        return static_cast<int>(std::count_if(window->chkMarker.begin(), window->chkMarker.end(),
                                              [](const QCheckBox* box) { return box->isChecked(); }));
    }
};
}  // namespace

TEST_F(MarkersWindow, LongCaptionsLeaveTheWindowOnTheScreen) {
    for (auto& caption : MarkerCaption) caption = std::string(300, 'x');
    ShowCategories();
    QCoreApplication::processEvents();
    EXPECT_LE(window->sizeHint().width(), 800);
    EXPECT_EQ(window->chkMarker[0]->accessibleName().size(), 300);
}

TEST_F(MarkersWindow, BoxesAndTablesFollowEachOther) {
    EXPECT_EQ(checked(), 13);
    window->chkMarker[11]->click();
    EXPECT_TRUE(MarkerHidden[TodaysDateCategory]);
    ShowCategory(3, true);
    EXPECT_TRUE(window->chkMarker[3]->isChecked());
    window->cmdCheck[1]->click();
    EXPECT_TRUE(checked() == 14 && TodayShown);
    window->cmdCheck[0]->click();
    EXPECT_TRUE(checked() == 0 && !TodayShown);
    dialogs.expect("Marker Colors Saved.");
    window->cmdSave->click();
    const std::string file = folder.get("Marker Colors.dat");
    EXPECT_EQ(std::count(file.begin(), file.end(), '*'), 14);
}
