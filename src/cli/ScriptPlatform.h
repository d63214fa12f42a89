// The ports of the core as a script answers them: boxes and dialogs print a line and take their answers from
// a queue, the clipboard and, if asked for, the settings live in memory.
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

// Where the lines of the console go.
class ScriptOutput {
  public:
    explicit ScriptOutput(std::ostream& stream) : stream_(stream) {}
    // Writes line as it stands and ends it.
    void Line(std::string_view line);
    // Writes a text of the program, escaped.
    void Text(std::string_view text);
    void Flush();

  private:
    std::ostream& stream_;
};

// The answers that the script has given in advance, first in, first out.
class AnswerQueue {
  public:
    void Add(std::string answer) { answers_.push_back(std::move(answer)); }
    // The next answer. Raises ScriptError that names who asks when there is none.
    std::string Take(std::string_view who);

  private:
    std::deque<std::string> answers_;
};

// A box prints "[TITLE] TEXT", a question "[TITLE] TEXT -> ANSWER", the beep "beep". The answer is the word
// of a button of the box, or "Close" for its close box; any other raises ScriptError.
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

// Drives a dialog by the names of its controls until it is closed: each answer "control=value; ...; BUTTON"
// is entered and pressed in its order. The button "Close" is the window's close box. An unknown control or
// button raises ScriptError.
class ScriptDialogs : public DialogPort {
  public:
    ScriptDialogs(ScriptOutput& out, AnswerQueue& answers) : out_(out), answers_(answers) {}
    // While on, a dialog prints "{FORM} control=text; ..." before each answer.
    void SetShow(bool show) { show_ = show; }
    // The next dialog is worked by that instead of answers, once, and closed if it is still open afterwards;
    // an empty one takes that back.
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

// Settings that start empty and go with the program. There is a user's layer alone.
class MemorySettings : public SettingsPort {
  public:
    std::optional<std::string> Read(Layer layer, std::string_view section, std::string_view key) override;
    bool Write(Layer layer, std::string_view section, std::string_view key, std::string_view value) override;
    void Remove(Layer layer, std::string_view section, std::string_view key) override;

  private:
    std::map<std::pair<std::string, std::string>, std::string> values_;
};

}  // namespace tw
