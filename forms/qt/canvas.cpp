// The canvas on the screen. Lines and boxes are filled rectangles; words are drawn once per font and scaling and then
// copied in their colour: a year shows the same 31 numbers and seven day names twelve times.
#include "forms/qt/canvas.h"

#include <QCache>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QTextLayout>
#include <algorithm>
#include <array>
#include <cmath>
#include <utility>
#include <vector>

#include "base/errors.h"
#include "forms/qt/iconPictures.h"
#include "forms/qt/text.h"

QColor FromColor(Color color) {
    return {static_cast<int>(color & 0xFF), static_cast<int>((color >> 8) & 0xFF),
            static_cast<int>((color >> 16) & 0xFF)};
}

namespace {
/// "MS Sans Serif" is the face of the windows' own texts, whatever that is here; Arial has substitutes of the same
/// widths, by their names on the systems there are.
QStringList Families(const std::string& family) {
    static const QStringList Arial{QStringLiteral("Arial"), QStringLiteral("Liberation Sans"),
                                   QStringLiteral("Helvetica")};
    if (family == "MS Sans Serif") return QGuiApplication::font().families();
    return family == "Arial" ? Arial : QStringList(FromText(family)) + Arial;
}
}  // namespace

QFont FromFont(const Font& font) {
    QFont shown(Families(font.family));
    // One point is 4/3 of a logical pixel whatever the screen claims of itself: positions are given at 96 to the inch.
    shown.setPixelSize(std::max(1, static_cast<int>(std::lround(font.points * 4 / 3))));
    shown.setBold(font.bold);
    shown.setUnderline(font.underlined);
    return shown;
}

namespace {
struct WordKey {
    std::string word;
    Font font;
    double ratio;
    bool operator==(const WordKey&) const = default;
};

size_t qHash(const WordKey& key, size_t seed) {
    return qHashMulti(seed, std::hash<std::string>()(key.word), key.font.points, key.font.bold, key.ratio);
}

/// A word without its colour.
struct Word {
    double width;            // logical pixels
    QRect place;             // from the text's corner, device pixels
    std::vector<uchar> ink;  // how much of each pixel it covers, 0..255, row by row: once for each byte of the pixel
};

/// The metrics of a font, kept: a month asks for the same ones again and again. A program uses few fonts, and finds
/// them faster by looking at each than by hashing their names.
const QFontMetricsF& MetricsOf(const Font& font) {
    static std::vector<std::pair<Font, QFontMetricsF>> known;
    const auto place = std::find_if(known.begin(), known.end(), [&](const auto& each) { return each.first == font; });
    if (place != known.end()) return place->second;
    constexpr std::size_t MostFonts = 64;  // a window dragged larger asks for many sizes, each for a moment
    if (known.size() == MostFonts) known.clear();
    return known.emplace_back(font, QFontMetricsF(FromFont(font))).second;
}

/// The part of a transparent picture that something is drawn on.
QRect InkOf(const QImage& image) {
    QRect ink;
    const int width = image.width();
    for (int y = 0; y < image.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        int first = 0, end = width;
        while (first < width && row[first] == 0) ++first;
        while (end > first && row[end - 1] == 0) --end;
        if (first < end) ink |= QRect(first, y, end - first, 1);
    }
    return ink;
}

Word DrawnWord(const WordKey& key) {
    QTextLayout layout(FromText(key.word), FromFont(key.font));
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    const QFontMetricsF& metrics = MetricsOf(key.font);
    // Room around the text for strokes that reach over its box.
    const QRectF room = QRectF(0, 0, line.horizontalAdvance(), metrics.height()).adjusted(-2, -1, 2, 1);
    QImage image((room.size() * key.ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    image.setDevicePixelRatio(key.ratio);
    QPainter painter(&image);
    layout.draw(&painter, QPointF(0, metrics.ascent() - line.ascent()) - room.topLeft());
    painter.end();
    // Half of a line's height is empty: only the ink is kept, to be copied sooner. Rows of whole steps of `Mix` are
    // best.
    QRect ink = InkOf(image);
    ink.setWidth(std::min((ink.width() + 3) / 4 * 4, image.width() - ink.left()));
    Word word{line.horizontalAdvance(), ink.translated((room.topLeft() * key.ratio).toPoint()), {}};
    word.ink.reserve(sizeof(QRgb) * static_cast<std::size_t>(ink.width() * ink.height()));
    for (int y = ink.top(); y <= ink.bottom(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = ink.left(); x <= ink.right(); ++x)
            word.ink.insert(word.ink.end(), sizeof(QRgb), static_cast<uchar>(qAlpha(row[x])));
    }
    return word;
}

/// Mixes paint and paper, byte by byte: in a loop that the compiler turns into wide instructions.
void Mix(uchar* paper, const uchar* paint, const uchar* ink, int bytes) {
    for (int i = 0; i < bytes; ++i) {
        const auto mixed = static_cast<quint16>(paint[i] * ink[i] + paper[i] * (255 - ink[i]) + 128);
        paper[i] = static_cast<uchar>((mixed + (mixed >> 8)) >> 8);  // divided by 255, rounded
    }
}

/// Lays a word over opaque pixels. It is a few dozen of them: a painter takes longer to make than this.
void LayOver(QImage& paper, const Word& word, QPoint corner, QRgb color) {
    const QRect place = word.place.translated(corner);
    const QRect part = place & paper.rect();
    constexpr int Step = 64;  // pixels mixed at a time
    std::array<QRgb, Step> paint;
    std::fill_n(paint.begin(), std::min(Step, part.width()), color);
    uchar* const pixels = paper.bits();
    const qsizetype stride = paper.bytesPerLine();
    for (int y = part.top(); y <= part.bottom(); ++y)
        for (int x = part.left(); x <= part.right(); x += Step) {
            const int at = (y - place.top()) * place.width() + x - place.left();
            Mix(pixels + y * stride + x * 4, reinterpret_cast<const uchar*>(paint.data()), word.ink.data() + at * 4,
                std::min(Step, part.right() + 1 - x) * 4);
        }
}

const Word& WordFor(const WordKey& key) {
    constexpr int Budget = 8 * 1024 * 1024;  // bytes of words kept
    static QCache<WordKey, Word> words(Budget);
    if (const Word* known = words.object(key)) return *known;
    auto* drawn = new Word(DrawnWord(key));
    static Word tooLarge;
    tooLarge = *drawn;
    words.insert(key, drawn, static_cast<int>(drawn->ink.size()));
    return tooLarge;
}
}  // namespace

// -- The picture ----------------------------------------------------------------------------------------------------

bool PictureCanvas::resize(QSize size, double pixelRatio, double zoom) {
    const QSize inDevice = (QSizeF(size) * pixelRatio).toSize().expandedTo({1, 1});
    if (inDevice == image_.size() && pixelRatio == ratio_ && zoom == zoom_) return false;
    ratio_ = pixelRatio;
    zoom_ = zoom;
    image_ = QImage(inDevice, QImage::Format_RGB32);
    clear();
    return true;
}

Font PictureCanvas::zoomed(const Font& font) const {
    Font larger = font;
    larger.points *= zoom_;
    return larger;
}

void PictureCanvas::setScale(double width, double height) {
    width_ = width;
    height_ = height;
}

void PictureCanvas::clear() {
    image_.fill(Qt::white);
    changed(image_.rect());
}

QRect PictureCanvas::deviceRect(double x1, double y1, double x2, double y2) const {
    const QPoint from(static_cast<int>(std::lround(toX(std::min(x1, x2)))),
                      static_cast<int>(std::lround(toY(std::min(y1, y2)))));
    const QPoint to(static_cast<int>(std::lround(toX(std::max(x1, x2)))),
                    static_cast<int>(std::lround(toY(std::max(y1, y2)))));
    return {from, to - QPoint(1, 1)};
}

void PictureCanvas::changed(const QRect& device) { changed_ |= device; }

void PictureCanvas::fillDevice(const QRect& device, Color color) {
    const QRect rect = device & image_.rect();
    if (rect.isEmpty()) return;
    const QRgb pixel = FromColor(color).rgb();
    const qsizetype stride = image_.bytesPerLine() / 4;
    auto* row = reinterpret_cast<QRgb*>(image_.bits()) + rect.top() * stride + rect.left();
    for (int y = rect.top(); y <= rect.bottom(); ++y, row += stride) std::fill_n(row, rect.width(), pixel);
    changed(rect);
}

void PictureCanvas::fillBox(double x1, double y1, double x2, double y2, Color color) {
    fillDevice(deviceRect(x1, y1, x2, y2), color);
}

void PictureCanvas::line(double x1, double y1, double x2, double y2, Color color) {
    const int width = std::max(1, static_cast<int>(ratio_));
    if (x1 == x2 || y1 == y2) {
        QRect rect = deviceRect(x1, y1, x2, y2);
        if (y1 == y2) rect.setHeight(width);
        if (x1 == x2) rect.setWidth(width);
        fillDevice(rect, color);
        return;
    }
    QPainter painter(&image_);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(FromColor(color), width));
    painter.drawLine(QPointF(toX(x1), toY(y1)), QPointF(toX(x2), toY(y2)));
    changed(deviceRect(x1, y1, x2, y2).adjusted(-width, -width, width + 1, width + 1));
}

void PictureCanvas::box(double x1, double y1, double x2, double y2, Color color) {
    line(x1, y1, x2, y1, color);
    line(x1, y2, x2, y2, color);
    line(x1, y1, x1, y2, color);
    line(x2, y1, x2, y2, color);
}

void PictureCanvas::text(double x, double y, std::string_view text, const Font& font, Color color) {
    if (text.empty()) return;
    const Word& word = WordFor({std::string(text), zoomed(font), ratio_});
    const QPoint corner(static_cast<int>(std::lround(toX(x))), static_cast<int>(std::lround(toY(y))));
    LayOver(image_, word, corner, FromColor(color).rgb());
    changed(word.place.translated(corner));
}

double PictureCanvas::textWidth(std::string_view text, const Font& font) {
    return WordFor({std::string(text), zoomed(font), ratio_}).width * ratio_ * width_ / image_.width();
}

double PictureCanvas::textHeight(const Font& font) {
    return MetricsOf(zoomed(font)).height() * ratio_ * height_ / image_.height();
}

void PictureCanvas::picture(double x, double y, double width, double height, const Path& file) {
    const QRect room = deviceRect(x, y, x + width, y + height);
    const QImage picture = PictureOfSide(ReadPictures(file), std::min(room.width(), room.height()));
    const QRect place(room.center() - picture.rect().center(), picture.size());
    QPainter painter(&image_);
    painter.drawImage(place, picture);
    changed(place);
}

QRect PictureCanvas::takeChanged() {
    const QRect device = std::exchange(changed_, QRect());
    if (device.isEmpty()) return {};
    const QRectF logical(device.x() / ratio_, device.y() / ratio_, device.width() / ratio_, device.height() / ratio_);
    return logical.toAlignedRect();
}

// -- The box --------------------------------------------------------------------------------------------------------

PictureBox::PictureBox(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    canvas_.resize({1, 1}, devicePixelRatioF());
}

void PictureBox::refresh() { update(canvas_.takeChanged()); }

QPointF PictureBox::toScale(QPointF point) const {
    return {point.x() * canvas_.scaleWidth() / std::max(1, width()),
            point.y() * canvas_.scaleHeight() / std::max(1, height())};
}

QRect PictureBox::fromScale(const QRectF& rect) const {
    const double x = width() / canvas_.scaleWidth();
    const double y = height() / canvas_.scaleHeight();
    return QRectF(rect.left() * x, rect.top() * y, rect.width() * x, rect.height() * y).toAlignedRect();
}

void PictureBox::fit(double zoom) {
    zoom_ = zoom;
    if (!canvas_.resize(size(), devicePixelRatioF(), zoom)) return;
    Q_EMIT renewed();
    update();
}

void PictureBox::setFrame(const QRectF& rect) {
    if (rect == frame_) return;
    update(fromScale(frame_).adjusted(-3, -3, 3, 3));
    frame_ = rect;
    update(fromScale(frame_).adjusted(-3, -3, 3, 3));
}

void PictureBox::paintEvent(QPaintEvent* event) {
    fit(zoom_);  // the box may be on another screen now
    const double ratio = devicePixelRatioF();
    QPainter painter(this);
    const QRect part = event->rect();
    const QRectF source(part.x() * ratio, part.y() * ratio, part.width() * ratio, part.height() * ratio);
    painter.drawImage(QRectF(part), canvas_.image(), source);
    if (frame_.isEmpty()) return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
    painter.drawRoundedRect(QRectF(fromScale(frame_)).adjusted(1, 1, -1, -1), 3, 3);
}

void PictureBox::resizeEvent(QResizeEvent*) { fit(zoom_); }
