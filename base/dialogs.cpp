// The boxes in place, and the calls through them.
#include "base/dialogs.h"

#include <stdexcept>
#include <utility>

#include "base/text.h"

namespace {
Dialogs Current;
}

Dialogs SetDialogs(Dialogs dialogs) { return std::exchange(Current, std::move(dialogs)); }

void ShowMessage(const std::string& text, const std::string& title) { Ask(text, Buttons::Ok, title); }

void ShowUtf8Message(const std::string& utf8) {
    if (!Current.message) throw std::logic_error("no message boxes in place for: " + utf8);
    Current.message(utf8, Buttons::Ok, ProgramTitle);
}

Answer Ask(const std::string& text, Buttons buttons, const std::string& title) {
    if (!Current.message) throw std::logic_error("no message boxes in place for: " + text);
    return Current.message(Utf8Of(text), buttons, Utf8Of(title));
}

bool AskBeforeLoss(const std::string& text, const std::string& title) {
    return Ask(text, Buttons::YesNoWithCare, title) == Answer::Yes;
}

bool AskToSave(const std::string& question, const std::string& title, const std::function<bool()>& save) {
    const Answer answer = Ask(question, Buttons::YesNoCancel, title);
    return answer == Answer::Yes ? save() : answer == Answer::No;
}

std::string AskForText(const std::string& prompt, const std::string& title, const std::string& preset) {
    if (!Current.input) throw std::logic_error("no input boxes in place for: " + prompt);
    return Current.input(Utf8Of(prompt), Utf8Of(title), preset).value_or(std::string());
}
