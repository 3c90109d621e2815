// Between Unicode and Windows-1252, through the full table.
#include "forms/qt/text.h"

#include <QTextDocument>

#include "base/dialogs.h"
#include "base/text.h"

namespace {
/// The codes of the text; the characters that have none are added to `misfits`, each once.
std::string Encoded(const QString& shown, QString& misfits) {
    const QString composed = shown.normalized(QString::NormalizationForm_C);
    std::string text;
    text.reserve(static_cast<std::size_t>(composed.size()));
    for (const char32_t character : composed.toStdU32String()) {
        const int code = CodeOf(character);
        text += code < 0 ? '?' : static_cast<char>(code);
        const QString one = QString::fromUcs4(&character, 1);
        if (code < 0 && !misfits.contains(one)) misfits += (misfits.isEmpty() ? QString() : QStringLiteral(" ")) + one;
    }
    return text;
}
}  // namespace

QString FromText(std::string_view text) {
    const auto& table = CodePageTable();
    QString shown(static_cast<qsizetype>(text.size()), Qt::Uninitialized);
    QChar* out = shown.data();
    for (const char c : text) *out++ = QChar(table[static_cast<unsigned char>(c)]);
    return shown;
}

std::string ToText(const QString& shown) {
    QString misfits;
    return Encoded(shown, misfits);
}

std::optional<std::string> TextToSave(const QString& typed) {
    QString misfits;
    std::string text = Encoded(typed, misfits);
    if (misfits.isEmpty()) return text;
    ShowUtf8Message(MisfitMessage(misfits.toStdString()));
    return std::nullopt;
}

std::optional<std::string> LineToSave(const QString& typed) {
    QString line = typed;
    line.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
    for (const char16_t lineBreak : {u'\r', u'\n'}) line.replace(QChar(lineBreak), QLatin1Char(' '));
    return TextToSave(line);
}

QString FromPath(const std::string& utf8) { return QString::fromStdString(utf8); }

QString TipOf(const QString& text) {
    // A plain tip is left as it is: it would show "&amp;" as that.
    if (!Qt::mightBeRichText(text)) return text;
    return QStringLiteral("<qt>") + text.toHtmlEscaped() + QStringLiteral("</qt>");
}
