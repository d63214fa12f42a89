// A platform for tests: records what the program asks for and answers from queues that the test fills. A
// question without an answer in the queue is closed by its close box.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

#include "platform/DialogModel.h"
#include "platform/Ports.h"

namespace tw::test {

class MessageRecorder : public MessagePort {
  public:
    void ShowMessage(std::string_view title, std::string_view text) override {
        log.push_back(Box(title, text));
        if (whileShowing) whileShowing();
    }

    // Only the text is logged, as the console prints it.
    void ShowMessageWithAdvice(std::string_view title, std::string_view text,
                               std::string_view shownBelow) override {
        advice = shownBelow;
        ShowMessage(title, text);
    }

    Answer Ask(std::string_view title, std::string_view text, Question kind) override {
        Answer answer = ClosingAnswer(kind);
        if (!answers.empty()) {
            answer = answers.front();
            answers.pop_front();
        }
        log.push_back(Box(title, text) + " -> " + Word(answer));
        if (whileAsking) whileAsking();
        return answer;
    }

    void Beep() override { log.emplace_back("beep"); }

    // Returns the log and empties it.
    std::vector<std::string> TakeLog() { return std::exchange(log, {}); }

    std::vector<std::string> log;        // "[title] text", "[title] text -> Yes", "beep"
    std::string advice;                  // the advice of the last message that had one
    std::deque<Answer> answers;          // for the next questions
    std::function<void()> whileAsking;   // runs while a question is open
    std::function<void()> whileShowing;  // runs while a message is open

  private:
    static std::string Box(std::string_view title, std::string_view text) {
        std::string box(1, '[');
        return box.append(title).append("] ").append(text);
    }
    static std::string Word(Answer answer) {
        switch (answer) {
            case Answer::Ok:
                return "OK";
            case Answer::Yes:
                return "Yes";
            case Answer::No:
                return "No";
            case Answer::Cancel:
                break;
        }
        return "Cancel";
    }
};

// Each dialog shown uses up one script. A dialog that is still open after its script, or that has none, is
// closed by its close box.
class ScriptedDialogs : public DialogPort {
  public:
    void ShowModal(DialogModel& dialog) override {
        shown.push_back(dialog.FormName());
        dialog.FirstShown();
        if (dialog.IsOpen() && !scripts.empty()) {
            const auto script = std::move(scripts.front());
            scripts.pop_front();
            script(dialog);
        }
        if (dialog.IsOpen()) dialog.CloseBox();
    }

    std::vector<std::string> shown;  // form names
    std::deque<std::function<void(DialogModel&)>> scripts;
};

class MemorySettings : public SettingsPort {
  public:
    std::optional<std::string> Read(Layer layer, std::string_view section, std::string_view key) override {
        const auto found = values.find({layer, std::string(section), std::string(key)});
        if (found == values.end()) return std::nullopt;
        return found->second;
    }

    bool Write(Layer layer, std::string_view section, std::string_view key, std::string_view value) override {
        if (layer == Layer::User ? !userWritable : !machineWritable) return false;
        values[{layer, std::string(section), std::string(key)}] = value;
        written.push_back(std::string(key) + "=" + std::string(value));
        return true;
    }

    void Remove(Layer layer, std::string_view section, std::string_view key) override {
        values.erase({layer, std::string(section), std::string(key)});
    }

    void Put(std::string_view section, std::string_view key, std::string_view value,
             Layer layer = Layer::User) {
        values[{layer, std::string(section), std::string(key)}] = value;
    }

    std::map<std::tuple<Layer, std::string, std::string>, std::string> values;
    std::vector<std::string> written;  // "key=value", in the order of writing
    bool userWritable = true;
    bool machineWritable = true;
};

class FixedClock : public ClockPort {
  public:
    DateTime Now() override { return now; }
    DateTime now{2024, 3, 9, 14, 5, 7};
};

class MemoryClipboard : public ClipboardPort {
  public:
    bool HasText() override { return text.has_value(); }
    std::string Text() override { return text.value_or(""); }
    void SetText(std::string_view newText) override { text = newText; }
    std::optional<std::string> text;
};

struct RecordingPlatform {
    MessageRecorder messages;
    ScriptedDialogs dialogs;
    MemorySettings settings;
    FixedClock clock;
    MemoryClipboard clipboard;
    Platform platform{messages, dialogs, settings, clock, clipboard};
};

}  // namespace tw::test
