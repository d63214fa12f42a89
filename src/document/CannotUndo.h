// Asks before a change that cannot be undone (frmCannotUndo).
#pragma once

#include "document/DocumentHost.h"
#include "platform/FormModel.h"
#include "platform/Ports.h"

namespace tw {

// The controls are chkDontShow, cmdYes and cmdNo. Closing the box answers No.
class CannotUndoModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmCannotUndo";

    static constexpr std::string_view kTitle = "Cannot Undo Change - Continue?";
    static constexpr std::string_view kWarning = "The change you are about to make cannot be undone.";
    static constexpr std::string_view kQuestion = "Do you wish to continue with the change anyway?";
    static constexpr std::string_view kDontShow = "Check here if you do not wish to see this message again.";

    CannotUndoModel();

    bool Yes() const { return !Cancelled(); }
    bool DontShow() const { return dontShow_; }

    std::optional<PlainQuestion> AsQuestion() const override;

  private:
    bool dontShow_ = false;
};

// Asks whether a change that cannot be undone should go ahead, and returns the answer; true without asking if
// the setting turns the question off. The check box changes that setting, whatever the answer.
bool GetUserResponse(DocumentHost& host, DialogPort& dialogs);

}  // namespace tw
