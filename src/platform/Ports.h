// The interfaces through which the core uses the platform. Qt implements them in the windows, a script in the
// console, a recorder in the tests. No logic file knows a widget.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/DateTime.h"

namespace tw {

class DialogModel;

enum class Answer { Ok, Yes, No, Cancel };
// YesIsUsual is a YesNo in which the Enter key answers Yes, because neither answer deletes or
// overwrites anything.
enum class Question { YesNo, YesIsUsual, YesNoCancel, OkCancel };

// Whether an operation shows message boxes: a refusal, an error, a question before it goes on.
enum class Asking { Aloud, Quietly };

// Returns the answer given by closing a question without pressing a button.
inline Answer ClosingAnswer(Question kind) {
    return kind == Question::YesNo || kind == Question::YesIsUsual ? Answer::No : Answer::Cancel;
}

// Message boxes. Each call returns once the user has closed the box.
class MessagePort {
  public:
    virtual ~MessagePort() = default;
    // Shows a box with one OK button. Line breaks in text are "\r\n".
    virtual void ShowMessage(std::string_view title, std::string_view text) = 0;
    // Shows the same box with one more line, which gives the reason or says what to do. Only windows show
    // that line; the console omits it, so that its output stays as it always was.
    virtual void ShowMessageWithAdvice(std::string_view title, std::string_view text,
                                       std::string_view /*advice*/) {
        ShowMessage(title, text);
    }
    // Shows a box with the buttons of kind. Closing the box without a button returns ClosingAnswer(kind).
    virtual Answer Ask(std::string_view title, std::string_view text, Question kind) = 0;
    // Plays the system's beep.
    virtual void Beep() = 0;
};

// Modal windows. The window shows the model and passes the user's actions to it; ShowModal returns once the
// model is closed (platform/DialogModel.h).
class DialogPort {
  public:
    virtual ~DialogPort() = default;
    virtual void ShowModal(DialogModel& dialog) = 0;
};

// A persistent map from (section, key) to text, in two layers: the user's and the machine's.
class SettingsPort {
  public:
    virtual ~SettingsPort() = default;
    enum class Layer { User, Machine };
    // Returns the stored text; nullopt if the layer does not contain the key or cannot be read.
    virtual std::optional<std::string> Read(Layer layer, std::string_view section, std::string_view key) = 0;
    // Stores the text. False if the layer cannot be written, which leaves it unchanged.
    virtual bool Write(Layer layer, std::string_view section, std::string_view key,
                       std::string_view value) = 0;
    // Returns the paths of the files that store the layers, whether they exist or not; none for settings
    // in memory.
    virtual std::vector<std::string> Files() const { return {}; }
    // Removes the key from the layer. Does nothing if the layer cannot be written.
    virtual void Remove(Layer layer, std::string_view section, std::string_view key) = 0;
};

class ClockPort {
  public:
    virtual ~ClockPort() = default;
    // Returns the local wall-clock time.
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

// Everything that the logic of the shell and its documents needs from the platform. Holds references only:
// the program that creates the Platform owns the objects, which must outlive the shell.
struct Platform {
    MessagePort& messages;
    DialogPort& dialogs;
    SettingsPort& settings;
    ClockPort& clock;
    ClipboardPort& clipboard;
};

}  // namespace tw
