// The pictures of the program, as strokes and fills on a board of 24 by 24 units.
#include "forms/qt/pictures.h"

#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmapCache>
#include <algorithm>
#include <cmath>

namespace {
constexpr double Units = 24;
const QColor Warm(0xF0, 0xA0, 0x30);

bool IsDark(const QPalette& palette) { return palette.color(QPalette::Window).lightness() < 128; }

QColor Mixed(const QColor& a, const QColor& b, double share) {
    const auto mix = [share](int x, int y) { return static_cast<int>(std::lround(x + (y - x) * share)); };
    return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

struct Inks {
    QColor line;    // outlines
    QColor accent;  // what the picture is about
    QColor paper;   // what pages are filled with
    QColor warm;    // what asks for attention
};

Inks InksOf(Look look, const QPalette& palette) {
    const QColor window = palette.color(QPalette::Window);
    const QColor accent = AccentColor(palette);
    Inks inks{Mixed(palette.color(QPalette::WindowText), window, 0.25), accent,
              IsDark(palette) ? Mixed(window, Qt::black, 0.25) : QColor(Qt::white), Warm};
    if (look == Look::Hover || look == Look::Pressed) inks.line = accent;
    if (look == Look::Pressed) inks.paper = Mixed(inks.paper, accent, 0.15);
    if (look == Look::Disabled) {
        inks.line = Mixed(inks.line, window, 0.55);
        inks.accent = inks.warm = inks.line;
    }
    return inks;
}

/// Draws on the board with every straight edge on a whole device pixel, so that lines are sharp at any scaling.
class Board {
  public:
    Board(QPainter& painter, double scale, const Inks& inks, bool filled)
        : painter_(painter),
          scale_(scale),
          stroke_(std::max(1L, std::lround(1.5 * scale))),
          inks_(inks),
          filled_(filled) {}

    const Inks& inks() const { return inks_; }
    /// The picture is to show that something is there.
    bool filled() const { return filled_; }

    void line(double x1, double y1, double x2, double y2, const QColor& color) {
        painter_.setPen(pen(color));
        painter_.drawLine(QPointF(middle(x1), middle(y1)), QPointF(middle(x2), middle(y2)));
    }
    void frame(const QRectF& units, double radius, const QColor& color, const QColor& fill) {
        painter_.setPen(pen(color));
        painter_.setBrush(fill);
        const QPointF from(middle(units.left()), middle(units.top()));
        const QPointF to(middle(units.right()), middle(units.bottom()));
        painter_.drawRoundedRect(QRectF(from, to), radius * scale_, radius * scale_);
    }
    void block(const QRectF& units, double radius, const QColor& color) {
        painter_.setPen(Qt::NoPen);
        painter_.setBrush(color);
        const QPointF from(edge(units.left()), edge(units.top()));
        const QPointF to(std::max(edge(units.right()), from.x() + 1), std::max(edge(units.bottom()), from.y() + 1));
        painter_.drawRoundedRect(QRectF(from, to), radius * scale_, radius * scale_);
    }
    void curve(const QPainterPath& units, const QColor& color, const QBrush& fill = Qt::NoBrush) {
        painter_.setPen(pen(color));
        painter_.setBrush(fill);
        painter_.drawPath(QTransform::fromScale(scale_, scale_).map(units));
    }
    void shape(const QPainterPath& units, const QColor& color) {
        painter_.fillPath(QTransform::fromScale(scale_, scale_).map(units), color);
    }

  private:
    QPen pen(const QColor& color) const {
        return QPen(color, static_cast<double>(stroke_), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    }
    double edge(double units) const { return static_cast<double>(std::lround(units * scale_)); }
    double middle(double units) const {
        const double half = static_cast<double>(stroke_) / 2;
        return static_cast<double>(std::lround(units * scale_ - half)) + half;
    }

    QPainter& painter_;
    double scale_;
    long stroke_;
    Inks inks_;
    bool filled_;
};

QRectF Box(double left, double top, double right, double bottom) {
    return {QPointF(left, top), QPointF(right, bottom)};
}

/// A calendar page: frame, coloured header and two rings. The body, from (5, 10) to (19, 19), is free.
void DrawPage(Board& board) {
    const Inks& inks = board.inks();
    board.frame(Box(4, 5, 20, 20), 2, inks.line, board.filled() ? Mixed(inks.paper, inks.accent, 0.25) : inks.paper);
    board.block(Box(5, 6, 19, 9), 0, inks.accent);
    board.line(4, 9, 20, 9, inks.line);
    board.line(8, 3, 8, 6, inks.line);
    board.line(16, 3, 16, 6, inks.line);
}

void DrawMonth(Board& board) {
    DrawPage(board);
    for (int row = 0; row < 2; ++row)
        for (int column = 0; column < 3; ++column) {
            const double x = 7 + 4 * column;
            const double y = 12 + 4 * row;
            const bool marked = row == 1 && column == 1;
            board.block(Box(x, y, x + 2, y + 2), 0, marked ? board.inks().accent : board.inks().line);
        }
}

/// Small months side by side, each with its header.
void DrawTiles(Board& board, int columns, int rows, QSizeF tile, QSizeF gap) {
    const double left = (Units - columns * tile.width() - (columns - 1) * gap.width()) / 2;
    const double top = (Units - rows * tile.height() - (rows - 1) * gap.height()) / 2;
    const QColor body = Mixed(board.inks().line, board.inks().paper, 0.62);
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column) {
            const double x = left + column * (tile.width() + gap.width());
            const double y = top + row * (tile.height() + gap.height());
            const double header = tile.height() / 3;
            board.block(Box(x, y, x + tile.width(), y + header), 0, board.inks().accent);
            board.block(Box(x, y + header, x + tile.width(), y + tile.height()), 0, body);
        }
}

void DrawSixMonths(Board& board) { DrawTiles(board, 3, 2, {6, 8}, {2, 3}); }
void DrawYear(Board& board) { DrawTiles(board, 4, 3, {4, 5}, {2, 2}); }

void DrawAdvance(Board& board) {
    DrawPage(board);
    const QColor& accent = board.inks().accent;
    QPainterPath head(QPointF(12.5, 11.5));
    head.lineTo(15.8, 14.5);
    head.lineTo(12.5, 17.5);
    board.line(8, 15, 15, 15, accent);
    board.curve(head, accent);
}

QPainterPath Sheet() {
    QPainterPath sheet(QPointF(14.5, 3.5));
    sheet.lineTo(6.5, 3.5);
    sheet.quadTo(5, 3.5, 5, 5);
    sheet.lineTo(5, 19);
    sheet.quadTo(5, 20.5, 6.5, 20.5);
    sheet.lineTo(17.5, 20.5);
    sheet.quadTo(19, 20.5, 19, 19);
    sheet.lineTo(19, 8);
    sheet.closeSubpath();
    return sheet;
}

void DrawNotes(Board& board) {
    const Inks& inks = board.inks();
    const bool filled = board.filled();
    QPainterPath fold(QPointF(14.5, 3.5));
    fold.lineTo(14.5, 8);
    fold.lineTo(19, 8);
    board.curve(Sheet(), filled ? inks.accent : inks.line, filled ? inks.accent : inks.paper);
    const QColor lines = filled ? inks.paper : inks.accent;
    board.curve(fold, filled ? inks.paper : inks.line);
    board.line(9, 12, 16, 12, lines);
    board.line(9, 16, 14, 16, lines);
}

void DrawPlanner(Board& board) {
    const Inks& inks = board.inks();
    board.frame(Box(6, 4, 20, 21), 2, inks.line, inks.paper);
    board.block(Box(10, 8, 17, 12), 0.5, inks.accent);
    for (const double y : {8.0, 13.0, 18.0}) board.line(4, y, 8, y, inks.line);
}

QPainterPath Bell() {
    QPainterPath bell(QPointF(4.5, 17.5));
    bell.cubicTo(6.5, 15.5, 6.5, 14, 6.5, 10.5);
    bell.cubicTo(6.5, 7, 9, 4.5, 12, 4.5);
    bell.cubicTo(15, 4.5, 17.5, 7, 17.5, 10.5);
    bell.cubicTo(17.5, 14, 17.5, 15.5, 19.5, 17.5);
    bell.closeSubpath();
    return bell;
}

void DrawBell(Board& board, const QColor& line, const QBrush& fill) {
    QPainterPath clapper;
    clapper.moveTo(9.8, 20);
    clapper.quadTo(12, 22.4, 14.2, 20);
    board.line(12, 3, 12, 4.5, line);
    board.curve(Bell(), line, fill);
    board.curve(clapper, line);
}

void DrawNoAlerts(Board& board) { DrawBell(board, board.inks().line, board.inks().paper); }

void DrawAlerts(Board& board) {
    const QColor edge = Mixed(board.inks().warm, Qt::black, 0.25);
    DrawBell(board, edge, board.inks().warm);
    QPainterPath rings;
    rings.moveTo(3.2, 9.5);
    rings.cubicTo(3.4, 7, 4.4, 5, 6, 3.4);
    rings.moveTo(20.8, 9.5);
    rings.cubicTo(20.6, 7, 19.6, 5, 18, 3.4);
    board.curve(rings, edge);
}

void DrawCake(Board& board, const QColor& body, const QColor& icing, bool lit) {
    const QColor& line = board.inks().line;
    for (const double x : {8.0, 12.0, 16.0}) {
        board.line(x, 8, x, 11, line);
        if (!lit) continue;
        QPainterPath flame(QPointF(x, 2.2));
        flame.cubicTo(x + 2.2, 4.6, x + 1.4, 6.4, x, 6.4);
        flame.cubicTo(x - 1.4, 6.4, x - 2.2, 4.6, x, 2.2);
        board.shape(flame, board.inks().warm);
    }
    board.frame(Box(4, 12, 20, 20), 1.5, line, body);
    QPainterPath wave(QPointF(4, 15));
    for (int k = 0; k < 4; ++k) wave.quadTo(6 + 4 * k, k % 2 == 0 ? 18 : 13, 8 + 4 * k, 15.5);
    board.curve(wave, icing);
    board.line(2.5, 20, 21.5, 20, line);
}

void DrawNoBirthdays(Board& board) { DrawCake(board, board.inks().paper, board.inks().line, false); }

void DrawBirthdays(Board& board) {
    DrawCake(board, Mixed(board.inks().paper, board.inks().accent, 0.35), board.inks().accent, true);
}

void DrawHelp(Board& board) {
    const Inks& inks = board.inks();
    QPainterPath ring;
    ring.addEllipse(QPointF(12, 12), 9, 9);
    board.curve(ring, inks.accent, inks.paper);
    QPainterPath hook(QPointF(9.2, 9.8));
    hook.cubicTo(9.2, 6.2, 14.8, 6.2, 14.8, 9.6);
    hook.cubicTo(14.8, 11.8, 12, 11.8, 12, 14);
    board.curve(hook, inks.accent);
    QPainterPath dot;
    dot.addEllipse(QPointF(12, 17.2), 1.15, 1.15);
    board.shape(dot, inks.accent);
}

void DrawUnchecked(Board& board) { board.frame(Box(4, 4, 20, 20), 2.5, board.inks().line, board.inks().paper); }

void DrawChecked(Board& board) {
    const Inks& inks = board.inks();
    board.frame(Box(4, 4, 20, 20), 2.5, inks.accent, inks.accent);
    QPainterPath tick(QPointF(8, 12.2));
    tick.lineTo(11, 15.2);
    tick.lineTo(16.2, 9);
    board.curve(tick, inks.paper);
}

void DrawOn(Board& board, Picture picture) {
    switch (picture) {
        case Picture::Month:
            return DrawMonth(board);
        case Picture::SixMonths:
            return DrawSixMonths(board);
        case Picture::Year:
            return DrawYear(board);
        case Picture::Advance:
            return DrawAdvance(board);
        case Picture::OpenNotes:
        case Picture::Notes:
            return DrawNotes(board);
        case Picture::NoAlerts:
            return DrawNoAlerts(board);
        case Picture::Alerts:
            return DrawAlerts(board);
        case Picture::NoBirthdays:
            return DrawNoBirthdays(board);
        case Picture::Birthdays:
            return DrawBirthdays(board);
        case Picture::Planner:
            return DrawPlanner(board);
        case Picture::Help:
            return DrawHelp(board);
        case Picture::Checked:
            return DrawChecked(board);
        case Picture::Unchecked:
            return DrawUnchecked(board);
    }
}

/// The program's icon, `pixels` wide: a page with a header, rings and marked days; fewer days where there is less room.
QPixmap DrawProgramIcon(int pixels) {
    QPixmap pixmap(pixels, pixels);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    const double s = pixels / Units;
    const auto at = [s](double units) { return static_cast<double>(std::lround(units * s)); };
    const QColor blue(0x2B, 0x6C, 0xB0);
    const QRectF page(QPointF(at(2), at(3)), QPointF(at(22), at(22.5)));

    QPainterPath outline;
    outline.addRoundedRect(page, 3 * s, 3 * s);
    QLinearGradient paper(page.topLeft(), page.bottomLeft());
    paper.setColorAt(0, Qt::white);
    paper.setColorAt(1, QColor(0xE8, 0xEE, 0xF5));
    painter.fillPath(outline, paper);
    painter.setClipPath(outline);
    QLinearGradient header(page.topLeft(), QPointF(page.left(), at(9)));
    header.setColorAt(0, QColor(0x3E, 0x86, 0xD0));
    header.setColorAt(1, blue);
    painter.fillRect(QRectF(page.topLeft(), QPointF(page.right(), at(9))), header);
    painter.setClipping(false);

    painter.setPen(QPen(QColor(0x1F, 0x4F, 0x86), std::max(1.0, 0.6 * s)));
    painter.setBrush(Qt::NoBrush);
    const double half = painter.pen().widthF() / 2;
    painter.drawRoundedRect(page.adjusted(half, half, -half, -half), 3 * s, 3 * s);

    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xF4, 0xF7, 0xFA));
    for (const double x : {7.0, 17.0})
        painter.drawRoundedRect(QRectF(QPointF(at(x - 1), at(1)), QPointF(at(x + 1), at(6))), s, s);

    const QColor plain(0xB7, 0xC4, 0xD3);
    const QColor marks[] = {QColor(0xF0, 0xA0, 0x30), QColor(0xD6, 0x45, 0x45), QColor(0x3C, 0x9D, 0x6B)};
    const int columns = pixels < 32 ? 3 : 4;
    const double cell = pixels < 32 ? 4 : 3;
    const double pitch = pixels < 32 ? 5.5 : 4.25;
    const double left = 12 - ((columns - 1) * pitch + cell) / 2;
    const int rows = pixels < 32 ? 2 : 3;
    const double top = 15.6 - ((rows - 1) * (pitch - 0.4) + cell) / 2;
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column) {
            const int k = row * columns + column;
            const int mark = k == 1 ? 0 : k == columns + columns - 1 ? 1 : k == 2 * columns ? 2 : -1;
            const QPointF from(at(left + column * pitch), at(top + row * (pitch - 0.4)));
            painter.setBrush(mark >= 0 ? marks[mark] : plain);
            painter.drawRoundedRect(QRectF(from, from + QPointF(at(cell), at(cell))), 0.7 * s, 0.7 * s);
        }
    return pixmap;
}
}  // namespace

QColor AccentColor(const QPalette& palette) {
    return IsDark(palette) ? QColor(0x74, 0xB4, 0xF0) : QColor(0x2B, 0x6C, 0xB0);
}

QPixmap DrawPicture(Picture picture, Look look, QSize size, double pixelRatio, const QPalette& palette) {
    const QSize device(static_cast<int>(std::lround(size.width() * pixelRatio)),
                       static_cast<int>(std::lround(size.height() * pixelRatio)));
    if (device.isEmpty()) return {};
    const QString key = QStringLiteral("Picture %1 %2 %3 %4 %5 %6 %7")
                            .arg(static_cast<int>(picture))
                            .arg(static_cast<int>(look))
                            .arg(device.width())
                            .arg(device.height())
                            .arg(pixelRatio)
                            .arg(palette.color(QPalette::Window).rgba())
                            .arg(palette.color(QPalette::WindowText).rgba());
    QPixmap pixmap;
    if (QPixmapCache::find(key, &pixmap)) return pixmap;
    pixmap = QPixmap(device);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    const int side = std::min(device.width(), device.height());
    painter.translate(QPoint((device.width() - side) / 2, (device.height() - side) / 2));
    Board board(painter, side / Units, InksOf(look, palette), look == Look::Exists);
    DrawOn(board, picture);
    painter.end();
    pixmap.setDevicePixelRatio(pixelRatio);
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

QIcon ProgramIcon() {
    QIcon icon;
    for (const int pixels : {16, 24, 32, 48, 64, 128}) icon.addPixmap(DrawProgramIcon(pixels));
    return icon;
}

PictureLabel::PictureLabel(Picture picture, QWidget* parent) : QWidget(parent), picture_(picture) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void PictureLabel::setPicture(Picture picture) {
    picture_ = picture;
    update();
}

void PictureLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Look look = isEnabled() ? Look::Normal : Look::Disabled;
    painter.drawPixmap(0, 0, DrawPicture(picture_, look, size(), devicePixelRatioF(), palette()));
}
