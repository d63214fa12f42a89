#include "document/CannotUndo.h"

namespace tw {

CannotUndoModel::CannotUndoModel() : FormModel(kFormName) {
    AddControls({CheckBox("chkDontShow", dontShow_)});
    AddButtons({{"cmdYes", [this] { Accept(); }}, {"cmdNo", [this] { Close(); }}});
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
