// The ports of the core for scripts: message boxes and dialogs print a line and read their answers from a
// queue; the clipboard, and the settings if requested, are in memory.
#pragma once

#include <deque>
#include <functional>
#include <iosfwd>
#include <map>
#include <string>
#include <string_view>
#include <utility>

#include "platform/DialogModel.h"
#include "platform/Ports.h"

namespace tw {

// The output of the console.
class ScriptOutput {
  public:
    explicit ScriptOutput(std::ostream& stream) : stream_(stream) {}
    // Writes line unchanged, and a line feed.
    void Line(std::string_view line);
    // Writes a text of the program, escaped with EscapeText, and a line feed.
    void Text(std::string_view text);
    void Flush();

  private:
    std::ostream& stream_;
};

// The answers that the script has given in advance; first in, first out.
class AnswerQueue {
  public:
    void Add(std::string answer) { answers_.push_back(std::move(answer)); }
    // Removes and returns the next answer. If there is none, raises ScriptError, which names who.
    std::string Take(std::string_view who);

  private:
    std::deque<std::string> answers_;
};

// Prints a message box as "[TITLE] TEXT", a question as "[TITLE] TEXT -> ANSWER" and a beep as "beep". An
// answer is the caption of a button of the box, or "Close" for its close box; any other raises ScriptError.
class ScriptMessages : public MessagePort {
  public:
    ScriptMessages(ScriptOutput& out, AnswerQueue& answers) : out_(out), answers_(answers) {}
    void ShowMessage(std::string_view title, std::string_view text) override;
    Answer Ask(std::string_view title, std::string_view text, Question kind) override;
    void Beep() override;

  private:
    ScriptOutput& out_;
    AnswerQueue& answers_;
};

// Drives a dialog by the names of its controls until it closes. For each answer "control=value; ...; BUTTON",
// enters the values in order and presses the button. The button "Close" is the window's close box. Raises
// ScriptError for an unknown control or button.
class ScriptDialogs : public DialogPort {
  public:
    ScriptDialogs(ScriptOutput& out, AnswerQueue& answers) : out_(out), answers_(answers) {}
    // If show, a dialog prints "{FORM} control=text; ..." before each answer.
    void SetShow(bool show) { show_ = show; }
    // Calls work for the next dialog, once, instead of reading answers; closes the dialog if it is still open
    // afterwards. An empty function cancels this.
    void AnswerNextWith(std::function<void(DialogModel&)> work) { workNext_ = std::move(work); }
    void ShowModal(DialogModel& dialog) override;

  private:
    void Print(const DialogModel& dialog);
    void TakeAnswer(DialogModel& dialog);

    ScriptOutput& out_;
    AnswerQueue& answers_;
    std::function<void(DialogModel&)> workNext_;
    bool show_ = false;
};

class MemoryClipboard : public ClipboardPort {
  public:
    bool HasText() override { return !text_.empty(); }
    std::string Text() override { return text_; }
    void SetText(std::string_view text) override { text_ = text; }

  private:
    std::string text_;
};

// Settings that start empty and are lost when the program ends. Only the user's layer exists.
class MemorySettings : public SettingsPort {
  public:
    std::optional<std::string> Read(Layer layer, std::string_view section, std::string_view key) override;
    bool Write(Layer layer, std::string_view section, std::string_view key, std::string_view value) override;
    void Remove(Layer layer, std::string_view section, std::string_view key) override;

  private:
    std::map<std::pair<std::string, std::string>, std::string> values_;
};

}  // namespace tw
