// The pictures show up on every background, tell their looks apart, and the picture buttons show the right one.
#include "forms/qt/pictures.h"

#include <gtest/gtest.h>

#include <QPalette>
#include <QSignalSpy>
#include <QTest>
#include <array>

#include "forms/qt/pictureButton.h"

namespace {
const QPalette Light(QColor(239, 239, 239));
const QPalette Dark(QColor(45, 45, 48), QColor(45, 45, 48));

QImage Drawn(Picture picture, Look look, double ratio = 1, const QPalette& palette = Light) {
    return DrawPicture(picture, look, {24, 24}, ratio, palette).toImage().convertToFormat(QImage::Format_ARGB32);
}

/// How many pixels stand out clearly from the background.
int Legible(const QImage& image, const QColor& background) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            if (pixel.alpha() > 200 && std::abs(pixel.lightness() - background.lightness()) > 60) ++count;
        }
    return count;
}
}  // namespace

TEST(Pictures, StandOutOnLightAndDarkAtEveryScaling) {
    for (int k = 0; k <= static_cast<int>(Picture::Unchecked); ++k)
        for (const Look look : {Look::Normal, Look::Hover, Look::Pressed, Look::Exists})
            for (const QPalette& palette : {Light, Dark})
                for (const double ratio : {1.0, 1.5, 2.0}) {
                    const QImage image = Drawn(static_cast<Picture>(k), look, ratio, palette);
                    EXPECT_EQ(image.deviceIndependentSize(), QSizeF(24, 24));
                    EXPECT_GT(Legible(image, palette.color(QPalette::Window)), 30 * ratio * ratio)
                        << "picture " << k << " look " << static_cast<int>(look) << " at " << ratio;
                }
}

TEST(Pictures, DifferWhereTheyMustBeToldApart) {
    for (const Picture picture :
         {Picture::Month, Picture::SixMonths, Picture::Year, Picture::Advance, Picture::OpenNotes}) {
        EXPECT_NE(Drawn(picture, Look::Normal), Drawn(picture, Look::Hover));
        EXPECT_NE(Drawn(picture, Look::Hover), Drawn(picture, Look::Pressed));
    }
    for (const Picture picture : {Picture::Advance, Picture::OpenNotes})
        EXPECT_NE(Drawn(picture, Look::Normal), Drawn(picture, Look::Exists));
    for (const auto& [one, other] : {std::array{Picture::NoAlerts, Picture::Alerts},
                                     {Picture::NoBirthdays, Picture::Birthdays},
                                     {Picture::Checked, Picture::Unchecked}})
        EXPECT_NE(Drawn(one, Look::Normal), Drawn(other, Look::Normal));
    EXPECT_TRUE(DrawPicture(Picture::Help, Look::Normal, {0, 24}, 1, Light).isNull());
}

TEST(Pictures, ProgramIconHasEverySizeFromTheTitleBarToTheTaskSwitcher) {
    for (const int size : {16, 32, 48, 128}) {
        const QPixmap icon = ProgramIcon().pixmap(QSize(size, size), 1.0);
        ASSERT_EQ(icon.size(), QSize(size, size));
        EXPECT_GT(Legible(icon.toImage(), Qt::white), size * size / 10);
    }
}

TEST(PictureButton, ShowsItsStateAndIsPressedByKey) {
    PictureButton button(Picture::OpenNotes, QStringLiteral("Open Notes for Selected Date"));
    QSignalSpy clicks(&button, &QAbstractButton::clicked);
    std::vector<Look> seen{button.look()};
    const auto after = [&](const auto& change) { change(), seen.push_back(button.look()); };
    after([&] { button.setHasContent(true); });
    after([&] { button.setLatched(true); });
    after([&] { button.setLatched(false), button.setEnabled(false); });
    after([&] { button.setEnabled(true), QTest::keyPress(&button, Qt::Key_Space); });
    after([&] { QTest::keyRelease(&button, Qt::Key_Space); });
    EXPECT_EQ(seen,
              (std::vector{Look::Normal, Look::Exists, Look::Pressed, Look::Disabled, Look::Pressed, Look::Exists}));
    EXPECT_TRUE((button.focusPolicy() & Qt::TabFocus) && clicks.count() == 1);
}
