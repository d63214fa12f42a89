#include "document/CannotUndo.h"

namespace tw {

std::vector<DialogControl> CannotUndoModel::Controls() const {
    return {{"chkDontShow", dontShow_ ? "yes" : "no"}};
}

bool CannotUndoModel::SetControl(std::string_view name, std::string_view text) {
    if (name != "chkDontShow" || (text != "yes" && text != "no")) return false;
    dontShow_ = text == "yes";
    return true;
}

bool CannotUndoModel::Press(std::string_view button) {
    if (button != "cmdYes" && button != "cmdNo") return false;
    yes_ = button == "cmdYes";
    open_ = false;
    return true;
}

std::optional<PlainQuestion> CannotUndoModel::AsQuestion() const {
    return PlainQuestion{std::string(kTitle), std::string(kWarning) + "\r\n" + std::string(kQuestion)};
}

bool GetUserResponse(DocumentHost& host, DialogPort& dialogs) {
    if (!host.AskBeforeNonUndoableChange()) return true;
    CannotUndoModel question;
    dialogs.ShowModal(question);
    if (question.DontShow()) host.StopAskingBeforeNonUndoableChange();
    return question.Yes();
}

}  // namespace tw
