#include "shell/CopyDialogs.h"

#include <iostream>

#include "shell/NameConflictModel.h"

namespace tw {

bool CopyDialogs::Continue(const std::string& name, int number, int total) {
    begun_ = true;
    return progress_.Show(name, number, total);
}

ConflictAnswer CopyDialogs::ResolveConflict(const std::string& name, const std::string& freeName) {
    if (forAll_) return {*forAll_, freeName};
    NameConflictModel dialog(name, isImport_, platform_.messages);
    dialog.SetProposal(freeName);
    if (offersAll_) dialog.OfferAll();
    const auto pause = Pause(progress_);
    platform_.dialogs.ShowModal(dialog);
    if (dialog.ForAll()) forAll_ = dialog.Result().response;
    return dialog.Result();
}

bool CopyDialogs::ContinueAfter(const std::string& text) {
    const auto pause = Pause(progress_);
    return platform_.messages.Ask("Error", text, Question::OkCancel) == Answer::Ok;
}

void CopyDialogs::DebugText(const std::string& text) {
    std::clog << text << '\n';
}

}  // namespace tw
