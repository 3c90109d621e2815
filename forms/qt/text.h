// Text at the glass: between the windows' Unicode and the files' Windows-1252.
#pragma once

#include <QString>
#include <optional>
#include <string>
#include <string_view>

QString FromText(std::string_view text);

/// What the code page does not have becomes "?". For what is looked up or shown, never for what is saved.
std::string ToText(const QString& shown);

/// For what is saved: the text, or nothing after a message that names the characters that cannot be kept. Composed and
/// decomposed accents are the same.
std::optional<std::string> TextToSave(const QString& typed);

/// The same for what is saved as one line: a text that was pasted may hold line breaks, which the box shows as blanks.
std::optional<std::string> LineToSave(const QString& typed);

QString FromPath(const std::string& utf8);

/// The text as a tool tip that shows it to the letter: tips may hold markup, and would take "<b>" in a text for it.
QString TipOf(const QString& text);
