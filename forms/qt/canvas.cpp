// The canvas on the screen. Lines and boxes are filled rectangles; words are drawn once per font, colour and scaling
// and then copied: a year shows the same 31 numbers and seven day names twelve times.
#include "forms/qt/canvas.h"

#include <QCache>
#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <cmath>
#include <memory>
#include <utility>
#include <vector>

#include "base/errors.h"
#include "forms/qt/iconPictures.h"
#include "forms/qt/text.h"

QColor FromColor(Color color) {
    return {static_cast<int>(color & 0xFF), static_cast<int>((color >> 8) & 0xFF),
            static_cast<int>((color >> 16) & 0xFF)};
}

Color ToColor(const QColor& color) {
    return static_cast<Color>(color.red()) | static_cast<Color>(color.green()) << 8 |
           static_cast<Color>(color.blue()) << 16;
}

QFont FromFont(const Font& font) {
    // Faces with Arial's metrics, by their names on the systems there are.
    static const QStringList Arial{QStringLiteral("Arial"), QStringLiteral("Liberation Sans"),
                                   QStringLiteral("Helvetica")};
    QFont shown(font.family == "MS Sans Serif" || font.family == "Arial" ? Arial
                                                                         : QStringList(FromText(font.family)) + Arial);
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
    Color color;
    double ratio;
    bool operator==(const WordKey&) const = default;
};

size_t qHash(const WordKey& key, size_t seed) {
    return qHashMulti(seed, std::hash<std::string>()(key.word), key.font.points, key.font.bold, key.color, key.ratio);
}

struct Word {
    QImage image;
    QPoint offset;  // of the image's corner from the text's corner, device pixels
};

struct FontFacts {
    QFontMetricsF metrics;
    QHash<std::string, double> widths;
};

/// The measures of a font, kept: a month asks for the same ones again and again. A program uses few fonts, and finds
/// them faster by looking at each than by hashing their names.
FontFacts& FactsOf(const Font& font) {
    static std::vector<std::pair<Font, std::unique_ptr<FontFacts>>> known;
    static std::size_t last = 0;  // most calls ask for the font of the call before
    if (last < known.size() && known[last].first == font) return *known[last].second;
    constexpr std::size_t MostFonts = 64;  // a window dragged larger asks for many sizes, each for a moment
    for (last = 0; last < known.size(); ++last)
        if (known[last].first == font) return *known[last].second;
    if (known.size() == MostFonts) known.clear();
    last = known.size();
    known.emplace_back(font, std::make_unique<FontFacts>(FontFacts{QFontMetricsF(FromFont(font)), {}}));
    return *known.back().second;
}

/// The part of a transparent picture that something is drawn on.
QRect InkOf(const QImage& image) {
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x)
            if (row[x] != 0) ink |= QRect(x, y, 1, 1);
    }
    return ink;
}

Word DrawnWord(const WordKey& key) {
    const QFont font = FromFont(key.font);
    const QFontMetricsF metrics(font);
    const QString shown = FromText(key.word);
    // Room around the text for strokes that reach over its box.
    const QRectF ink = QRectF(0, 0, metrics.horizontalAdvance(shown), metrics.height()).adjusted(-2, -1, 2, 1);
    Word word;
    word.image = QImage((ink.size() * key.ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
    word.image.fill(Qt::transparent);
    word.image.setDevicePixelRatio(key.ratio);
    word.offset = (ink.topLeft() * key.ratio).toPoint();
    QPainter painter(&word.image);
    painter.setFont(font);
    painter.setPen(FromColor(key.color));
    painter.drawText(QPointF(-ink.left(), -ink.top() + metrics.ascent()), shown);
    painter.end();
    word.image.setDevicePixelRatio(1);
    // Half of a line's height is empty: only the ink is kept, to be copied sooner.
    const QRect drawn = InkOf(word.image);
    word.image = word.image.copy(drawn);
    word.offset += drawn.topLeft();
    return word;
}

/// A colour with all its parts taken times share/255.
QRgb Share(QRgb color, unsigned share) {
    const unsigned redBlue = (color & 0xFF00FF) * share + 0x800080;
    const unsigned green = ((color >> 8) & 0xFF) * share + 0x80;
    return (((redBlue + ((redBlue >> 8) & 0xFF00FF)) >> 8) & 0xFF00FF) | ((green + (green >> 8)) & 0xFF00);
}

/// Lays premultiplied pixels over opaque ones. A word is a few dozen pixels: a painter takes longer to make than this.
void LayOver(QImage& paper, QPoint corner, const QImage& word) {
    const QRect part = QRect(corner, word.size()) & paper.rect();
    if (part.isEmpty()) return;
    const qsizetype stride = paper.bytesPerLine() / 4;
    auto* out = reinterpret_cast<QRgb*>(paper.bits()) + part.top() * stride;
    for (int y = part.top(); y <= part.bottom(); ++y, out += stride) {
        const auto* in = reinterpret_cast<const QRgb*>(word.constScanLine(y - corner.y())) - corner.x();
        for (int x = part.left(); x <= part.right(); ++x) {
            const QRgb ink = in[x];
            if (ink == 0) continue;
            const auto rest = 255u - static_cast<unsigned>(qAlpha(ink));
            out[x] = rest == 0 ? ink : 0xFF000000 | ((ink & 0xFFFFFF) + Share(out[x], rest));
        }
    }
}

const Word& WordFor(const WordKey& key) {
    constexpr int Budget = 8 * 1024 * 1024;  // bytes of pictures kept
    static QCache<WordKey, Word> words(Budget);
    if (const Word* known = words.object(key)) return *known;
    auto* drawn = new Word(DrawnWord(key));
    static Word tooLarge;
    tooLarge = *drawn;
    words.insert(key, drawn, static_cast<int>(drawn->image.sizeInBytes()));
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
    const QRgb pixel = qRgb(color & 0xFF, (color >> 8) & 0xFF, (color >> 16) & 0xFF);
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
    const Word& word = WordFor({std::string(text), zoomed(font), color, ratio_});
    const QPoint corner(static_cast<int>(std::lround(toX(x))) + word.offset.x(),
                        static_cast<int>(std::lround(toY(y))) + word.offset.y());
    LayOver(image_, corner, word.image);
    changed(QRect(corner, word.image.size()));
}

double PictureCanvas::textWidth(std::string_view text, const Font& font) {
    FontFacts& facts = FactsOf(zoomed(font));
    const std::string key(text);
    auto known = facts.widths.constFind(key);
    if (known == facts.widths.constEnd()) {
        if (facts.widths.size() > 4096) facts.widths.clear();
        known = facts.widths.insert(key, facts.metrics.horizontalAdvance(FromText(text)));
    }
    return *known * ratio_ * width_ / image_.width();
}

double PictureCanvas::textHeight(const Font& font) {
    return FactsOf(zoomed(font)).metrics.height() * ratio_ * height_ / image_.height();
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
