// What the core needs of the platform. The windows answer these interfaces with Qt, the console with a
// script, the tests with a recorder. No logic file knows a widget.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/DateTime.h"

namespace tw {

class DialogModel;

enum class Answer { Ok, Yes, No, Cancel };
// YesIsUsual is a YesNo whose Enter key says Yes: neither answer deletes or overwrites anything.
enum class Question { YesNo, YesIsUsual, YesNoCancel, OkCancel };

// Whether an operation shows message boxes: a refusal, an error, a question before it goes on.
enum class Asking { Aloud, Quietly };

// What closing the box of a question by any other way answers.
inline Answer ClosingAnswer(Question kind) {
    return kind == Question::YesNo || kind == Question::YesIsUsual ? Answer::No : Answer::Cancel;
}

// Message boxes. Each call returns when the user has closed the box.
class MessagePort {
  public:
    virtual ~MessagePort() = default;
    // A box with one OK button. Line breaks in text are "\r\n".
    virtual void ShowMessage(std::string_view title, std::string_view text) = 0;
    // The same box with one more line, which says why or what to do. Only windows show that line: the console
    // prints what it always has.
    virtual void ShowMessageWithAdvice(std::string_view title, std::string_view text,
                                       std::string_view /*advice*/) {
        ShowMessage(title, text);
    }
    // A box with a choice. Closing it by any other way gives the ClosingAnswer.
    virtual Answer Ask(std::string_view title, std::string_view text, Question kind) = 0;
    // The system's beep.
    virtual void Beep() = 0;
};

// Modal windows. The window shows the model and passes on what the user does; ShowModal returns when the
// model is closed (platform/DialogModel.h).
class DialogPort {
  public:
    virtual ~DialogPort() = default;
    virtual void ShowModal(DialogModel& dialog) = 0;
};

// The persistent map from (section, key) to text, a per-user layer over a per-machine layer.
class SettingsPort {
  public:
    virtual ~SettingsPort() = default;
    enum class Layer { User, Machine };
    // The stored text, or nothing when the layer does not hold the key or cannot be read.
    virtual std::optional<std::string> Read(Layer layer, std::string_view section, std::string_view key) = 0;
    // False when the layer cannot be written; nothing has changed then.
    virtual bool Write(Layer layer, std::string_view section, std::string_view key,
                       std::string_view value) = 0;
    // The paths of the files that hold the layers, there or not; none for settings in memory.
    virtual std::vector<std::string> Files() const { return {}; }
    // The layer holds the key no longer. A layer that cannot be written stays as it is.
    virtual void Remove(Layer layer, std::string_view section, std::string_view key) = 0;
};

class ClockPort {
  public:
    virtual ~ClockPort() = default;
    // The local wall-clock time.
    virtual DateTime Now() = 0;
};

// Plain text on the system's clipboard.
class ClipboardPort {
  public:
    virtual ~ClipboardPort() = default;
    virtual bool HasText() = 0;
    virtual std::string Text() = 0;
    virtual void SetText(std::string_view text) = 0;
};

// Everything that the logic of the shell and its documents asks of the platform. Holds references; the
// program that makes it owns the objects and keeps them alive as long as the shell.
struct Platform {
    MessagePort& messages;
    DialogPort& dialogs;
    SettingsPort& settings;
    ClockPort& clock;
    ClipboardPort& clipboard;
};

}  // namespace tw
