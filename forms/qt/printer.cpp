// The printer behind forms/printer.h.
#include "forms/qt/printer.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>
#include <memory>
#include <utility>

#include "base/errors.h"
#include "forms/printer.h"
#include "forms/qt/canvas.h"
#include "forms/qt/iconPictures.h"
#include "forms/qt/text.h"

namespace {
constexpr double TwipsPerPoint = 20;
constexpr double LinePoints = 0.75;  // one pixel at 96 to the inch, as on the screen

/// Pages of a paint device whose whole paper is the canvas.
class PageCanvas : public Canvas {
  public:
    explicit PageCanvas(std::unique_ptr<QPagedPaintDevice> device) : device_(std::move(device)) {
        if (!painter_.begin(device_.get())) throw Error(PrinterFault);
        const QSizeF points = device_->pageLayout().fullRectPoints().size();
        setScale(points.width() * TwipsPerPoint, points.height() * TwipsPerPoint);
    }
    ~PageCanvas() override {
        // A document that was not brought to its end is not worth its paper.
        auto* printer = dynamic_cast<QPrinter*>(device_.get());
        if (painter_.isActive() && printer != nullptr) printer->abort();
        if (painter_.isActive()) painter_.end();
    }

    void setScale(double width, double height) override {
        width_ = width;
        height_ = height;
    }
    double scaleWidth() const override { return width_; }
    double scaleHeight() const override { return height_; }
    void clear() override {}

    void line(double x1, double y1, double x2, double y2, Color color) override {
        painter_.setPen(penOf(color));
        painter_.drawLine(point(x1, y1), point(x2, y2));
    }
    void box(double x1, double y1, double x2, double y2, Color color) override {
        painter_.setPen(penOf(color));
        painter_.setBrush(Qt::NoBrush);
        painter_.drawRect(QRectF(point(x1, y1), point(x2, y2)).normalized());
    }
    void fillBox(double x1, double y1, double x2, double y2, Color color) override {
        painter_.fillRect(QRectF(point(x1, y1), point(x2, y2)).normalized(), FromColor(color));
    }
    void text(double x, double y, std::string_view text, const Font& font, Color color) override {
        const QFont shown = fontOf(font);
        painter_.setFont(shown);
        painter_.setPen(FromColor(color));
        const double ascent = QFontMetricsF(shown, device_.get()).ascent();
        painter_.drawText(point(x, y) + QPointF(0, ascent), FromText(text));
    }
    double textWidth(std::string_view text, const Font& font) override {
        return QFontMetricsF(fontOf(font), device_.get()).horizontalAdvance(FromText(text)) * width_ / device_->width();
    }
    double textHeight(const Font& font) override {
        return QFontMetricsF(fontOf(font), device_.get()).height() * height_ / device_->height();
    }
    void picture(double x, double y, double width, double height, const Path& file) override {
        const QRectF room(point(x, y), point(x + width, y + height));
        const QImage picture = LargestPicture(ReadPictures(file));
        QRectF place(QPointF(), QSizeF(picture.size()).scaled(room.size(), Qt::KeepAspectRatio));
        place.moveCenter(room.center());
        painter_.setRenderHint(QPainter::SmoothPixmapTransform);
        painter_.drawImage(place, picture);
    }
    void newPage() override {
        if (!device_->newPage()) throw Error(PrinterFault);
    }
    void end() override {
        const auto* printer = dynamic_cast<const QPrinter*>(device_.get());
        const bool sent = painter_.end();
        if (!sent || (printer != nullptr && printer->printerState() == QPrinter::Error)) throw Error(PrinterFault);
    }

  private:
    QPointF point(double x, double y) const { return {x * device_->width() / width_, y * device_->height() / height_}; }
    QPen penOf(Color color) const {
        QPen pen(FromColor(color), LinePoints * device_->logicalDpiX() / 72);
        pen.setJoinStyle(Qt::MiterJoin);
        return pen;
    }
    /// On paper points are points, not pixels.
    static QFont fontOf(const Font& font) {
        QFont shown = FromFont(font);
        shown.setPointSizeF(font.points);
        return shown;
    }

    std::unique_ptr<QPagedPaintDevice> device_;
    QPainter painter_;
    double width_ = 1;
    double height_ = 1;
};

/// The name of the printer selected; empty for the system's default.
QString& SelectedPrinter() {
    static QString name;
    return name;
}

/// Throws Error 482 if there is none.
QPrinterInfo CurrentPrinter() {
    const QPrinterInfo selected = QPrinterInfo::printerInfo(SelectedPrinter());
    const QPrinterInfo current = selected.isNull() ? QPrinterInfo::defaultPrinter() : selected;
    if (current.isNull()) throw Error(PrinterFault);
    return current;
}

std::vector<std::string> PrinterNames() {
    std::vector<std::string> names;
    for (const QString& name : QPrinterInfo::availablePrinterNames()) names.push_back(ToText(name));
    return names;
}

void SelectPrinter(const std::string& name) {
    if (QPrinterInfo::printerInfo(FromText(name)).isNull()) throw Error(PrinterFault);
    SelectedPrinter() = FromText(name);
}

std::unique_ptr<Canvas> BeginOnPaper(const std::string& title) {
    auto printer = std::make_unique<QPrinter>(CurrentPrinter(), QPrinter::HighResolution);
    printer->setFullPage(true);
    printer->setDocName(FromText(title));
    return std::make_unique<PageCanvas>(std::move(printer));
}

std::unique_ptr<Canvas> BeginInFile(const QString& path, const QPageLayout& layout, const std::string& title) {
    auto file = std::make_unique<QPdfWriter>(path);
    file->setPageLayout(layout);
    file->setTitle(FromText(title));
    return std::make_unique<PageCanvas>(std::move(file));
}
}  // namespace

void InstallPrinter() {
    SetPrinter({PrinterNames, SelectPrinter, [] { CurrentPrinter(); }, BeginOnPaper});
}

QPageLayout A4Sheet() { return {QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()}; }

void InstallPdfPrinter(const QString& path, const QPageLayout& layout) {
    SetPrinter({[] { return std::vector<std::string>{"PDF"}; }, [](const std::string&) {}, [] {},
                [path, layout](const std::string& title) { return BeginInFile(path, layout, title); }});
}
