// The question before a change that no undo takes back (frmCannotUndo).
#pragma once

#include "document/DocumentHost.h"
#include "platform/DialogModel.h"
#include "platform/Ports.h"

namespace tw {

class CannotUndoModel final : public DialogModel {
  public:
    static constexpr std::string_view kTitle = "Cannot Undo Change - Continue?";
    static constexpr std::string_view kWarning = "The change you are about to make cannot be undone.";
    static constexpr std::string_view kQuestion = "Do you wish to continue with the change anyway?";
    static constexpr std::string_view kDontShow = "Check here if you do not wish to see this message again.";

    std::string FormName() const override { return "frmCannotUndo"; }
    // chkDontShow.
    std::vector<DialogControl> Controls() const override;
    bool SetControl(std::string_view name, std::string_view text) override;
    // cmdYes and cmdNo; both close the window.
    bool Press(std::string_view button) override;
    // Leaves the answer at No.
    void CloseBox() override { open_ = false; }
    bool IsOpen() const override { return open_; }
    std::optional<PlainQuestion> AsQuestion() const override;

    bool Yes() const { return yes_; }
    bool DontShow() const { return dontShow_; }

  private:
    bool yes_ = false;
    bool dontShow_ = false;
    bool open_ = true;
};

// Whether a change that cannot be undone goes ahead: yes at once while the setting says not to ask. The check
// box switches the setting off, whatever the answer.
bool GetUserResponse(DocumentHost& host, DialogPort& dialogs);

}  // namespace tw
