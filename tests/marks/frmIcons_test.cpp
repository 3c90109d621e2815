// The picture library as built, the palette, the manager of its slots, and icons dragged on the month.
#include "marks/frmIcons.h"

#include "calendar/modPaint.h"
#include "forms/qt/iconPictures.h"
#include "marks/frmIconTag.h"
#include "marks/frmPlacedIcons.h"
#include "marks/modIcons.h"
#include "tests/support/window_test.h"

namespace {
struct IconWindows : WindowTest {
    IconWindows() { std::filesystem::copy(TASMORO_ICONS, folder.path(), std::filesystem::copy_options::recursive); }
};

TEST_F(IconWindows, TheLibraryHasEveryPictureAndTakesItInItsOwnSizeWhereThereIsOne) {
    for (int picture = 0; picture < LibrarySize; ++picture) {
        QSet<int> sides;
        for (const QImage& image : ReadPictures(PictureFile(picture))) sides.insert(image.width());
        EXPECT_EQ(sides, (QSet<int>{16, 24, 32, 48})) << picture;
    }
    ReadIconTags();
    std::set<std::string> captions(IconCaption.begin(), IconCaption.end());
    EXPECT_TRUE(captions.size() == PaletteSize && !captions.contains(""));
    EXPECT_TRUE(folder.has("Images/License of the pictures.txt"));
    const auto pictures = ReadPictures(PictureFile(12));
    for (const int side : {16, 24, 32, 48, 20, 40}) EXPECT_EQ(PictureOfSide(pictures, side).width(), side);
    EXPECT_EQ(PictureOfSide(pictures, 24), pictures[1]);
    EXPECT_EQ(IconPixmap(12, 24, 1.5).size(), QSize(36, 36));
}

TEST_F(IconWindows, WhatIsNoPictureIsReportedAndTheOthersShow) {
    folder.put("Images/7.ico", "no picture at all");
    std::filesystem::remove(folder.path() / "Images" / "9.ico");
    dialogs.expect("(the file \"Images\\7.ico\")");
    ShowPaletteWindow();
    auto* palette = OpenedWindow<frmIcons>();
    palette->grab();
    EXPECT_EQ(palette->findChild<IconImage*>(QStringLiteral("imgIcon(95)"))->toolTip(), QStringLiteral("Important"));
    EXPECT_NE(IconPixmap(7, 24, 1).toImage(), IconPixmap(8, 24, 1).toImage());
    EXPECT_EQ(IconPixmap(7, 24, 1).toImage(), IconPixmap(9, 24, 1).toImage());
}

TEST_F(IconWindows, TheManagerChangesASlotAndNothingIsDraggedWithoutAMonth) {
    ShowPaletteWindow();
    auto* dentist = OpenedWindow<frmIcons>()->findChild<IconImage*>(QStringLiteral("imgIcon(12)"));
    dialogs.expect("Icons can only be inserted on the 1 Month Calendar.\r\nRight Click on any Icon");
    QTest::mouseClick(dentist, Qt::LeftButton);
    EXPECT_EQ(DragKind, Drag::None);
    QTest::mouseClick(dentist, Qt::RightButton);
    auto* manager = OpenedWindow<frmIconTag>();
    auto* caption = manager->findChild<QLineEdit*>(QStringLiteral("txtTag"));
    EXPECT_EQ(caption->selectedText(), QStringLiteral("Dentist"));

    caption->setText(QString(QChar(0x4E2D)));  // a character that the files do not have
    dialogs.expect("cannot be saved");
    auto* save = manager->findChild<QPushButton*>(QStringLiteral("cmdSave"));
    save->click();
    EXPECT_EQ(OpenedWindow<frmIconTag>(), manager);

    QGuiApplication::clipboard()->setText(QStringLiteral("Dr. Müller:\r\nteeth"));
    caption->selectAll();
    caption->paste();
    SetDisk({.write = [](const Path&, std::string_view) { throw Error(DiskFull); }});
    dialogs.expect("An error occurred in SaveIconTags.");
    save->click();
    EXPECT_EQ(IconCaption[12], "Dentist") << "what was not saved is not shown";
    SetDisk({});
    QTest::mouseClick(manager->findChild<IconImage*>(QStringLiteral("imgIcon(143)")), Qt::LeftButton);
    dialogs.expect("Icon Has Changed", Answer::Cancel);
    QTest::keyClick(manager, Qt::Key_Escape);
    dialogs.expect("Icon Has Changed", Answer::Cancel);
    ShowIconTag(13);
    save->click();
    EXPECT_EQ(OpenedWindow<frmIconTag>(), nullptr);
    EXPECT_TRUE(dentist->toolTip() == QStringLiteral("Dr. Müller: teeth") && dentist->picture() == 143);
    EXPECT_NE(folder.get("Icon Tags.dat").find("143:Dr. M\xFCller: teeth\r\n013:"), std::string::npos);
}

TEST_F(IconWindows, DropsShowTheIconOnItsDay) {
    PictureBox month;
    month.resize(593, 467);
    month.canvas().setScale(GridWidth, GridHeight);
    auto* icons = new PlacedIcons(&month);
    ResetMonthIcons(MakeDate(2026, 4, 1));

    BeginDragFromPalette(12);
    // Tuesday, April 7th: the third column of the second row.
    EXPECT_TRUE(DragAndDrop(&month, QPoint(2.5 * 593 / 7, 2.25 * 467 / 6.75), "application/x-tasmoro-icon", "12"));
    EXPECT_EQ(MonthIconLines[0], "06:00 Index:12");
    EXPECT_EQ(icons->placeOf(0), QRect(173, 170, 20, 20));
    const QPoint middle = icons->placeOf(0).center();
    EXPECT_EQ(icons->iconAt(middle), 0);
    EXPECT_NE(month.grab().toImage().pixelColor(middle), QColor(Qt::white));

    int clicks = 0;  // that reach the month beneath
    QObject::connect(&month, &PictureBox::mouseDown, [&] { ++clicks; });
    QTest::mousePress(icons, Qt::RightButton, {}, middle);
    EXPECT_EQ(clicks, 0);
    RemoveSelectedIcon();
    EXPECT_EQ(icons->iconAt(middle), -1);
    QTest::mousePress(icons, Qt::RightButton, {}, middle);
    EXPECT_EQ(clicks, 1);
}
}  // namespace
