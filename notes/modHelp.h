// The help topics of "Help_Topics.txt", and the search through them.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

inline constexpr std::size_t MostHelpTopics = 32767;

struct HelpState {
    std::vector<std::string> rawTopics;  // title, colon and text as the file has them
    std::vector<std::string> titles;
    std::vector<std::string> texts;  // lines parted as in the file, by CR LF
    std::size_t panelTopic = 0;      // the topic that the main window's panel shows
    std::size_t topic = 0;           // where "Find Again" goes on: the topic,
    std::size_t position = 1;        // and the position in its text, counted from 1
};
extern HelpState HelpTopics;

inline auto& HelpTitles = HelpTopics.titles;
inline auto& HelpTexts = HelpTopics.texts;

/// Reads the topics, then shows them through the hook. A text without "*" has no topics; a topic without ":" is all
/// title. Throws Error 53 if there is no file, what ReadWholeFile throws if it cannot be read, Error 6 after the
/// 32,767th topic; the topics before it stay.
void ReadHelpTopics();

/// The text of a topic; "" where there is no such topic.
std::string_view HelpText(std::size_t topic);

/// Where a phrase was found.
struct HelpHit {
    std::size_t topic = 0;
    std::size_t start = 0;  // in the topic's text, counted from 0
    bool operator==(const HelpHit&) const = default;
};

/// Looks for the phrase, in any letter case, from the kept topic and position to the end; keeps the place after the
/// hit. Nothing if there is none; then the next search begins at the first topic.
std::optional<HelpHit> FindInHelp(std::string_view phrase);
/// The next search begins at the first topic.
void StartHelpSearchOver();

// -- Hook: filled by the panel that shows the topics ------------------------------------------------------------------

/// Shows the titles, and the first topic's text.
extern std::function<void()> ShowHelpTopics;
