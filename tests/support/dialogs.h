// Scripted message and input boxes: a queue of expected texts and their answers.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "base/dialogs.h"

/// While one lives, every box must have been expected, in order, by (a part of) its text; an unexpected box and a
/// left-over expectation both fail the test.
class ScriptedDialogs {
  public:
    ScriptedDialogs();
    ScriptedDialogs(const ScriptedDialogs&) = delete;
    ScriptedDialogs& operator=(const ScriptedDialogs&) = delete;
    ~ScriptedDialogs();

    /// A message box whose text or title contains the phrase.
    ScriptedDialogs& expect(const std::string& phrase, Answer answer = Answer::Ok);
    /// An input box whose title or prompt contains the phrase; nothing means cancelled.
    void expectInput(const std::string& phrase, std::optional<std::string> answer);
    /// Fails the test unless all expected boxes have been shown; forgets them.
    void verify();

    /// The texts and titles of the boxes shown so far; of input boxes the preset text too.
    struct Shown {
        std::string text;
        std::string title;
        std::string preset;
        Buttons buttons = Buttons::Ok;
    };
    const std::vector<Shown>& shown() const { return shown_; }

  private:
    struct Expected {
        std::string phrase;
        bool input = false;
        Answer answer = Answer::Ok;
        std::optional<std::string> text;
    };
    Expected take(const std::string& text, const std::string& title, bool input);

    std::deque<Expected> expected_;
    std::vector<Shown> shown_;
    Dialogs previous_;
};
