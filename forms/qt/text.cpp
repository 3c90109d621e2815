// Between Unicode and Windows-1252, through the full table.
#include "forms/qt/text.h"

#include <QTextDocument>

#include "base/dialogs.h"
#include "base/text.h"

namespace {
constexpr int MostNames = 40;  // a message names no more: it must fit the screen

/// The character itself, or the number of one that cannot be seen.
QString NameOf(char32_t character) {
    if (QChar::isPrint(character) && !QChar::isSpace(character)) return QString::fromUcs4(&character, 1);
    return QStringLiteral("U+%1").arg(static_cast<uint>(character), 4, 16, QLatin1Char('0')).toUpper();
}

/// The codes of the text; the names of the characters that have none are added to `misfits`, each once, "..." for many.
std::string Encoded(const QString& shown, QStringList& misfits) {
    const QString composed = shown.normalized(QString::NormalizationForm_C);
    std::string text;
    text.reserve(static_cast<std::size_t>(composed.size()));
    for (const char32_t character : composed.toStdU32String()) {
        const int code = CodeOf(character);
        text += code < 0 ? '?' : static_cast<char>(code);
        if (code >= 0 || misfits.size() > MostNames) continue;
        const QString name = NameOf(character);
        if (!misfits.contains(name)) misfits << (misfits.size() < MostNames ? name : QStringLiteral("..."));
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
    QStringList misfits;
    return Encoded(shown, misfits);
}

std::optional<std::string> TextToSave(const QString& typed) {
    QStringList misfits;
    std::string text = Encoded(typed, misfits);
    if (misfits.isEmpty()) return text;
    ShowUtf8Message(MisfitMessage(misfits.join(u' ').toStdString()));
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
