#include "cli/ScriptPlatform.h"

#include <ostream>
#include <utility>

#include "cli/ScriptReader.h"

namespace tw {
namespace {

std::string BoxLine(std::string_view title, std::string_view text) {
    return "[" + EscapeText(title) + "] " + EscapeText(text);
}

// Returns the answer for a word; none if the box has no such button.
std::optional<Answer> AnswerOf(std::string_view word, Question kind) {
    if (word == "Close") return ClosingAnswer(kind);
    if (word == "Cancel" && ClosingAnswer(kind) == Answer::Cancel) return Answer::Cancel;
    if (word == "OK" && kind == Question::OkCancel) return Answer::Ok;
    if (word == "Yes" && kind != Question::OkCancel) return Answer::Yes;
    if (word == "No" && kind != Question::OkCancel) return Answer::No;
    return std::nullopt;
}

}  // namespace

void ScriptOutput::Line(std::string_view line) {
    stream_ << line << '\n';
}

void ScriptOutput::Text(std::string_view text) {
    Line(EscapeText(text));
}

void ScriptOutput::Flush() {
    stream_.flush();
}

std::string AnswerQueue::Take(std::string_view who) {
    if (answers_.empty()) throw ScriptError(std::string(who) + " needs an answer");
    std::string answer = std::move(answers_.front());
    answers_.pop_front();
    return answer;
}

void ScriptMessages::ShowMessage(std::string_view title, std::string_view text) {
    out_.Line(BoxLine(title, text));
}

Answer ScriptMessages::Ask(std::string_view title, std::string_view text, Question kind) {
    const std::string line = BoxLine(title, text);
    const std::string word = answers_.Take("the question " + line);
    const std::optional<Answer> answer = AnswerOf(word, kind);
    if (!answer) throw ScriptError("'" + word + "' is no button of the question " + line);
    out_.Line(line + " -> " + word);
    return *answer;
}

void ScriptMessages::Beep() {
    out_.Line("beep");
}

void ScriptDialogs::ShowModal(DialogModel& dialog) {
    dialog.FirstShown();
    if (const std::optional<PlainQuestion> question = dialog.AsQuestion()) {
        ScriptMessages box(out_, answers_);
        const bool yes = box.Ask(question->title, question->text, Question::YesNo) == Answer::Yes;
        dialog.Press(yes ? "cmdYes" : "cmdNo");
        return;
    }
    if (const auto work = std::exchange(workNext_, {})) {
        if (show_) Print(dialog);
        work(dialog);
        if (dialog.IsOpen()) dialog.CloseBox();
        return;
    }
    while (dialog.IsOpen()) {
        if (show_) Print(dialog);
        TakeAnswer(dialog);
    }
}

void ScriptDialogs::Print(const DialogModel& dialog) {
    std::string line = "{" + dialog.FormName() + "}";
    std::string_view separator = " ";
    for (const DialogControl& control : dialog.Controls()) {
        line.append(separator).append(control.name).append("=").append(EscapeText(control.text));
        separator = "; ";
    }
    out_.Line(line);
}

void ScriptDialogs::TakeAnswer(DialogModel& dialog) {
    const std::string form = dialog.FormName();
    const DialogAnswer answer = ReadDialogAnswer(answers_.Take("the dialog " + form));
    for (const auto& [control, value] : answer.entries) {
        if (dialog.SetControl(control, value)) continue;
        std::string reason(form);
        throw ScriptError(reason.append(" has no control '").append(control).append("' that takes an entry"));
    }
    if (answer.button == "Close")
        dialog.CloseBox();
    else if (!dialog.Press(answer.button))
        throw ScriptError(form + " has no button '" + answer.button + "'");
}

std::optional<std::string> MemorySettings::Read(Layer layer, std::string_view section, std::string_view key) {
    if (layer == Layer::Machine) return std::nullopt;
    const auto found = values_.find({std::string(section), std::string(key)});
    if (found == values_.end()) return std::nullopt;
    return found->second;
}

bool MemorySettings::Write(Layer layer, std::string_view section, std::string_view key,
                           std::string_view value) {
    if (layer == Layer::Machine) return false;
    values_[{std::string(section), std::string(key)}] = value;
    return true;
}

void MemorySettings::Remove(Layer layer, std::string_view section, std::string_view key) {
    if (layer == Layer::User) values_.erase({std::string(section), std::string(key)});
}

}  // namespace tw
