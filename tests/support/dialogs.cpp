// Scripted message and input boxes.
#include "tests/support/dialogs.h"

#include <gtest/gtest.h>

#include <utility>

ScriptedDialogs::ScriptedDialogs() {
    previous_ = SetDialogs({[this](const std::string& text, Buttons buttons, const std::string& title) {
                                shown_.push_back({text, title, "", buttons});
                                return take(text, title, false).answer;
                            },
                            [this](const std::string& prompt, const std::string& title, const std::string& preset) {
                                shown_.push_back({prompt, title, preset, Buttons::OkCancel});
                                return take(prompt, title, true).text;
                            }});
}

ScriptedDialogs::~ScriptedDialogs() {
    verify();
    SetDialogs(std::move(previous_));
}

ScriptedDialogs& ScriptedDialogs::expect(const std::string& phrase, Answer answer) {
    expected_.push_back({phrase, false, answer, {}});
    return *this;
}

void ScriptedDialogs::expectInput(const std::string& phrase, std::optional<std::string> answer) {
    expected_.push_back({phrase, true, Answer::Ok, std::move(answer)});
}

void ScriptedDialogs::verify() {
    for (const auto& left : expected_) ADD_FAILURE() << "this box was never shown: " << left.phrase;
    expected_.clear();
}

ScriptedDialogs::Expected ScriptedDialogs::take(const std::string& text, const std::string& title, bool input) {
    if (expected_.empty()) {
        ADD_FAILURE() << "unexpected box: [" << title << "] " << text;
        return {text, input, Answer::Cancel, {}};
    }
    Expected next = std::move(expected_.front());
    expected_.pop_front();
    const bool fits = next.input == input && (text + "\n" + title).find(next.phrase) != std::string::npos;
    EXPECT_TRUE(fits) << "expected: " << next.phrase << "\nshown: [" << title << "] " << text;
    return next;
}
