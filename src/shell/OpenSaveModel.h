// The open and save dialog (frmOpenSave): a list of the stored recipes and a name box, in two styles.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/DialogModel.h"
#include "platform/Ports.h"
#include "store/Database.h"

namespace tw {

class OpenSaveModel final : public DialogModel {
  public:
    enum class Style : int { Open, Save };

    // Both references must outlive the dialog.
    OpenSaveModel(Style style, Database& database, MessagePort& messages);

    // What the dialog starts with when it saves: the name in the box and the folder, the root folder for a
    // negative id.
    void SetRecipe(std::string_view name, std::int64_t folderId);

    // "Open Recipe"; "Save '{name}' As..." for a named recipe, else "Save Recipe".
    std::string Caption() const;
    // "&Open" or "&Save".
    std::string OkCaption() const;
    // The stored recipes by name.
    const std::vector<std::string>& Names() const { return names_; }

    // True until cmdOK has accepted a name.
    bool Cancelled() const { return cancelled_; }
    // The accepted name, trimmed; empty when cancelled.
    const std::string& BeerName() const { return beerName_; }
    std::int64_t FolderID() const { return folderId_; }

    std::string FormName() const override { return "frmOpenSave"; }
    // txtName; FolderID too when the dialog saves.
    std::vector<DialogControl> Controls() const override;
    // FolderID takes a whole number that is not negative.
    bool SetControl(std::string_view name, std::string_view text) override;
    // cmdOK stays open for a name that it refuses; cmdCancel closes.
    bool Press(std::string_view button) override;
    void CloseBox() override;
    bool IsOpen() const override { return open_; }

  private:
    bool AcceptsName(const std::string& name);
    void Accept();

    Style style_;
    Database& database_;
    MessagePort& messages_;
    std::vector<std::string> names_;
    std::string text_;    // txtName
    std::string recipe_;  // name of the recipe that is being saved
    std::string beerName_;
    std::int64_t folderId_ = 0;
    bool cancelled_ = true;
    bool open_ = true;
};

}  // namespace tw
