// Splitting the help file into topics, and searching them.
#include "notes/modHelp.h"

#include "base/errors.h"
#include "base/files.h"
#include "base/modNoCase.h"
#include "base/state.h"
#include "base/text.h"

HelpState HelpTopics;
std::function<void()> ShowHelpTopics;

namespace {
const ClearedAtStart ClearHelp([] { HelpTopics = {}; });

/// A file edited elsewhere may end its lines with a bare line feed, or lack the line break altogether: only what is a
/// line break is taken off, so that no letter of a topic is lost.
std::string_view WithoutLineBreakInFront(std::string_view text) {
    if (text.starts_with("\r\n")) return text.substr(2);
    return text.starts_with('\n') ? text.substr(1) : text;
}

std::string_view WithoutLineBreakAtEnd(std::string_view text) {
    if (text.ends_with("\r\n")) return text.substr(0, text.size() - 2);
    return text.ends_with('\n') ? text.substr(0, text.size() - 1) : text;
}

void AddTopic(std::string_view raw) {
    if (HelpTopics.titles.size() == MostHelpTopics) throw Error(Overflow);
    const auto colon = raw.find(':');
    const bool hasText = colon != std::string_view::npos;
    HelpTopics.rawTopics.emplace_back(raw);
    HelpTopics.titles.emplace_back(raw.substr(0, colon));
    HelpTopics.texts.emplace_back(hasText ? WithoutLineBreakInFront(raw.substr(colon + 1)) : std::string_view());
}

void SplitTopics(std::string_view all) {
    for (auto star = all.find('*'); star != std::string_view::npos;) {
        const auto next = all.find('*', star + 1);
        const std::string_view raw = all.substr(star + 1, next == std::string_view::npos ? next : next - star - 1);
        AddTopic(next == std::string_view::npos ? raw : WithoutLineBreakAtEnd(raw));
        star = next;
    }
}
}  // namespace

void ReadHelpTopics() {
    HelpTopics = {};
    const std::string all = ReadNamedFile(DataPath("Help_Topics.txt"));
    try {
        SplitTopics(all);
    } catch (const Error&) {
        if (ShowHelpTopics) ShowHelpTopics();
        throw;
    }
    if (ShowHelpTopics) ShowHelpTopics();
}

std::string_view HelpText(std::size_t topic) {
    return topic < HelpTopics.texts.size() ? std::string_view(HelpTopics.texts[topic]) : std::string_view();
}

std::optional<HelpHit> FindInHelp(std::string_view phrase) {
    for (; HelpTopics.topic < HelpTopics.texts.size(); ++HelpTopics.topic, HelpTopics.position = 1) {
        const auto found = FindIgnoringCase(HelpTopics.texts[HelpTopics.topic], phrase, HelpTopics.position - 1);
        if (found == std::string::npos) continue;
        HelpTopics.position = found + 2;
        return HelpHit{HelpTopics.topic, found};
    }
    StartHelpSearchOver();
    return std::nullopt;
}

void StartHelpSearchOver() {
    HelpTopics.topic = 0;
    HelpTopics.position = 1;
}
