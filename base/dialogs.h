// Message boxes and input boxes as the modules ask for them. The windows fill them in; tests script the answers.
#pragma once

#include <functional>
#include <optional>
#include <string>

enum class Buttons {
    Ok,
    OkCancel,
    YesNo,
    YesNoWithCare,  // Yes and No, of which Enter answers No
    YesNoCancel
};
enum class Answer { Ok, Cancel, Yes, No };

/// The title of boxes that have none of their own.
inline constexpr const char* ProgramTitle = "Tasmoro";

/// What fills the boxes in. Texts, titles and prompts arrive as UTF-8, because a message may have to show a character
/// that the files cannot hold; what is preset and answered is text as the files hold it.
struct Dialogs {
    std::function<Answer(const std::string& text, Buttons buttons, const std::string& title)> message;
    std::function<std::optional<std::string>(const std::string& prompt, const std::string& title,
                                             const std::string& preset)>
        input;
};

/// Puts other boxes in place and returns those there were. Without any, every question throws std::logic_error.
Dialogs SetDialogs(Dialogs dialogs);

/// Shows a text with an OK button and waits for it. Lines are parted by CR LF.
void ShowMessage(const std::string& text, const std::string& title = ProgramTitle);

/// The same for a text in UTF-8.
void ShowUtf8Message(const std::string& utf8);

/// Asks and returns the answer. Closing the box answers Cancel, or No where there is no Cancel.
Answer Ask(const std::string& text, Buttons buttons, const std::string& title = ProgramTitle);

/// Asks, with Yes and No, before something is done that cannot be undone. True for Yes.
bool AskBeforeLoss(const std::string& text, const std::string& title = ProgramTitle);

/// The question of a window whose edits would go. Yes: true if `save` answers that they are saved; No: true; Cancel:
/// false.
bool AskToSave(const std::string& question, const std::string& title, const std::function<bool()>& save);

/// Asks for a line of text. "" if the box is cancelled or left empty.
std::string AskForText(const std::string& prompt, const std::string& title, const std::string& preset = {});
