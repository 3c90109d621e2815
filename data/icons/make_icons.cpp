// Makes the picture library and the palette's captions while the program is built: draws each character of a table with
// a colour font and writes it as an .ico file of four sizes.
// Usage: make_icons TABLE FONT FOLDER
#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QTextStream>
#include <QtEndian>
#include <array>
#include <stdexcept>
#include <vector>

namespace {
constexpr int LibrarySize = 144;
constexpr int PaletteSize = 96;
constexpr std::array<int, 4> Sizes{16, 24, 32, 48};  // pixels
constexpr int DrawnSize = 109;                       // the size at which the font's own pictures need no scaling

struct Picture {
    QString characters;
    QString caption;
};

[[noreturn]] void Fail(const QString& reason) { throw std::runtime_error(reason.toStdString()); }

Picture ParsedLine(const QString& line, int number) {
    const QStringList fields = line.split(QLatin1Char(' '));
    if (fields.size() < 3 || fields[0].toInt() != number) Fail(QStringLiteral("bad line in the table: ") + line);
    Picture picture;
    for (const QString& code : fields[1].split(QLatin1Char('+'))) {
        const char32_t character = code.toUInt(nullptr, 16);
        picture.characters += QString::fromUcs4(&character, 1);
    }
    picture.caption = fields.mid(2).join(QLatin1Char(' '));
    return picture;
}

std::vector<Picture> ReadTable(const QString& name) {
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) Fail(QStringLiteral("cannot read ") + name);
    std::vector<Picture> pictures;
    QTextStream stream(&file);
    for (QString line; stream.readLineInto(&line);)
        if (!line.isEmpty() && !line.startsWith(QLatin1Char('#')))
            pictures.push_back(ParsedLine(line, static_cast<int>(pictures.size())));
    if (pictures.size() != LibrarySize) Fail(QStringLiteral("the table must have 144 pictures"));
    return pictures;
}

QFont LoadFont(const QString& name) {
    const QStringList families = QFontDatabase::applicationFontFamilies(QFontDatabase::addApplicationFont(name));
    if (families.isEmpty()) Fail(QStringLiteral("cannot use the font ") + name);
    QFont font(families.first());
    font.setPixelSize(DrawnSize);
    font.setStyleStrategy(QFont::NoFontMerging);
    return font;
}

/// The part of the image that is not transparent, made square about its middle.
QImage Cropped(const QImage& image) {
    QRect ink;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) > 8) ink |= QRect(x, y, 1, 1);
    const int side = std::max(ink.width(), ink.height());
    return image.copy(ink.center().x() - side / 2, ink.center().y() - side / 2, side, side);
}

QImage Drawn(const Picture& picture, const QFont& font) {
    QImage image(2 * DrawnSize, 2 * DrawnSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setFont(font);
    painter.drawText(image.rect(), Qt::AlignCenter, picture.characters);
    painter.end();
    const QImage drawn = Cropped(image);
    if (drawn.width() < DrawnSize / 3) Fail(QStringLiteral("the font does not have ") + picture.caption);
    return drawn;
}

QByteArray PngOf(const QImage& image) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, "PNG")) Fail(QStringLiteral("cannot encode a picture"));
    return bytes;
}

template <class Number>
void Append(QByteArray& bytes, Number number) {
    const Number little = qToLittleEndian(number);
    bytes.append(reinterpret_cast<const char*>(&little), sizeof little);
}

/// The file: a directory of one entry a size, then the sizes' pictures as PNG.
QByteArray IconFile(const QImage& drawn) {
    QByteArray directory;
    QByteArray pictures;
    for (const quint16 word : {quint16{0}, quint16{1}, quint16{Sizes.size()}}) Append(directory, word);
    const auto first = static_cast<quint32>(6 + 16 * Sizes.size());
    for (const int size : Sizes) {
        const QByteArray png = PngOf(drawn.scaled(size, size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        for (const int byte : {size, size, 0, 0}) Append(directory, static_cast<quint8>(byte));
        for (const quint16 word : {quint16{1}, quint16{32}}) Append(directory, word);  // planes, bits a pixel
        Append(directory, static_cast<quint32>(png.size()));
        Append(directory, static_cast<quint32>(first + pictures.size()));
        pictures += png;
    }
    return directory + pictures;
}

void Write(const QString& name, const QByteArray& bytes) {
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
        Fail(QStringLiteral("cannot write ") + name);
}

void MakeAll(const QStringList& arguments) {
    if (arguments.size() != 4) Fail(QStringLiteral("usage: make_icons TABLE FONT FOLDER"));
    const std::vector<Picture> pictures = ReadTable(arguments[1]);
    const QFont font = LoadFont(arguments[2]);
    const QString images = arguments[3] + QStringLiteral("/Images/");
    if (!QDir().mkpath(images)) Fail(QStringLiteral("cannot make ") + images);
    QByteArray tags;
    for (int number = 0; number < LibrarySize; ++number) {
        const Picture& picture = pictures[static_cast<std::size_t>(number)];
        Write(images + QString::number(number) + QStringLiteral(".ico"), IconFile(Drawn(picture, font)));
        if (number < PaletteSize)
            tags += QStringLiteral("%1:%2\r\n").arg(number, 3, 10, QLatin1Char('0')).arg(picture.caption).toLatin1();
    }
    Write(arguments[3] + QStringLiteral("/Icon Tags.dat"), tags);
}
}  // namespace

int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    try {
        MakeAll(QGuiApplication::arguments());
    } catch (const std::exception& failure) {
        QTextStream(stderr) << "make_icons: " << failure.what() << '\n';
        return 1;
    }
    return 0;
}
