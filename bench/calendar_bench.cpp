// The year's picture: drawing all of it, and one marked day, against a naive drawing of the same year.
//
// 2026-11-23, Debian 12, four virtual cores, offscreen, release build:
//   the year: 0.19 to 0.20 of the naive drawing (0.19 ms against 0.97 ms; aim: 0.3); one day: 0.0005 of it (aim: 0.01).
//   Some hours later on the same machine, the same program and older ones a third slower: 0.25 to 0.26.
#include <QGuiApplication>
#include <QPainter>
#include <array>
#include <deque>

#include "base/clock.h"
#include "base/files.h"
#include "bench/pairs.h"
#include "calendar/modCalendar.h"
#include "calendar/modPaint.h"
#include "calendar/modShell.h"
#include "calendar/modViews.h"
#include "forms/qt/canvas.h"
#include "marks/modCategories.h"
#include "marks/modMarks.h"

namespace {
constexpr QSize MonthSize(180, 128);  // of a month in the year view at its own size, pixels
constexpr int BenchYear = 2026;
constexpr int MarkedDays = 90;

/// Twelve canvases of the year view, with the year of the bench drawn once and 90 of its days marked.
std::deque<PictureCanvas>& YearOnCanvases() {
    static std::deque<PictureCanvas> canvases;
    if (!canvases.empty()) return canvases;
    static int argc = 1;
    static std::array<char, 6> name{"bench"};
    static std::array<char*, 2> argv{name.data(), nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QGuiApplication application(argc, argv.data());
    SetDataFolder(std::filesystem::temp_directory_path());  // has no planner's files
    for (int i = 0; i < 12; ++i) canvases.emplace_back().resize(MonthSize, 1);
    Shell.openView = [](int) {
        std::vector<Canvas*> all;
        for (auto& canvas : canvases) all.push_back(&canvas);
        return all;
    };
    Calendar.startedOn = MakeDate(BenchYear, 11, 22);
    for (int k = 0; k < CategoryCount; ++k)
        MarkerColor[static_cast<std::size_t>(k)] = MarkerPalette[static_cast<std::size_t>(k)];
    SelectDate(Calendar.startedOn);
    Show1YearCalendar();
    for (int n = 0; n < MarkedDays; ++n) {
        const Cell cell = CellOf(MakeDate(BenchYear, 1, 1) + n * 4);
        MarkFlag[cell] = true;
        MarkColor[cell] = MarkerPalette[static_cast<std::size_t>(n % 14)];
    }
    return canvases;
}

void DrawNaively(QImage& image, int month) {
    image.fill(Qt::white);
    QPainter painter(&image);
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(11);
    painter.setFont(font);
    const double x = MonthSize.width() / GridWidth;
    const double y = MonthSize.height() / GridHeight;
    for (int column = 0; column < ColumnsInGrid; ++column)
        painter.drawText(QRectF(column * x, 0, x, 0.75 * y), Qt::AlignCenter,
                         QString::fromLatin1(WeekdayNames.at(static_cast<std::size_t>(column))).left(2));
    painter.setPen(QColor(200, 200, 200));
    for (int column = 1; column < ColumnsInGrid; ++column)
        painter.drawLine(QPointF(column * x, 0.75 * y), QPointF(column * x, MonthSize.height()));
    for (int row = 0; row < RowsInGrid; ++row)
        painter.drawLine(QPointF(0, (row + 0.75) * y), QPointF(MonthSize.width(), (row + 0.75) * y));
    for (int day = 1; day <= DaysInMonth(BenchYear, month + 1); ++day) {
        const Cell cell = CellOf(MakeDate(BenchYear, month + 1, day));
        if (MarkFlag[cell])
            painter.fillRect(QRectF((cell.column + 0.1) * x, (cell.row + 0.85) * y, 0.8 * x, 0.8 * y),
                             FromColor(MarkColor[cell]));
        painter.setPen(MarkFlag[cell] ? Qt::white : Qt::black);
        painter.drawText(QRectF(cell.column * x, (cell.row + 0.85) * y, x, 0.8 * y), Qt::AlignCenter,
                         QString::number(day));
    }
}

void DrawYearNaively() {
    static std::array<QImage, 12> images = [] {
        std::array<QImage, 12> made;
        made.fill(QImage(MonthSize, QImage::Format_RGB32));
        return made;
    }();
    for (int month = 0; month < 12; ++month) DrawNaively(images[static_cast<std::size_t>(month)], month);
}

void YearAgainstNaive(benchmark::State& state) {
    YearOnCanvases();
    RunPairs(state, 200, 0.30, RepaintCalendar, DrawYearNaively);
}
BENCHMARK(YearAgainstNaive)->Iterations(1)->Unit(benchmark::kMillisecond);

void OneDayAgainstNaiveYear(benchmark::State& state) {
    YearOnCanvases();
    const Cell cell = CellOf(MakeDate(BenchYear, 6, 15));
    Color color = 0x0000FF;
    RunPairs(
        state, 200, 0.01,
        [&] {
            color ^= 0xFFFFFF;
            PaintDay(ThisYear, cell, 15, color);
        },
        DrawYearNaively);
}
BENCHMARK(OneDayAgainstNaiveYear)->Iterations(1)->Unit(benchmark::kMillisecond);
}  // namespace
