// The progress of an import or export (frmCopyProgress): it does its work as soon as it is shown, and goes.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/DialogModel.h"

namespace tw {

class CopyProgressModel final : public DialogModel {
  public:
    using Work = std::function<void(CopyProgressModel&)>;
    // isImport tells an import from an export. work tells its progress here.
    CopyProgressModel(bool isImport, Work work) : work_(std::move(work)), isImport_(isImport) {}

    // Called after each change of what the window shows: it paints, and lets waiting events run.
    void SetObserver(std::function<void()> observer) { observer_ = std::move(observer); }

    // "Importing Recipes" or "Exporting Recipes".
    std::string Caption() const { return isImport_ ? "Importing Recipes" : "Exporting Recipes"; }
    const std::string& RecipeName() const { return recipeName_; }
    int Done() const { return done_; }
    int Total() const { return total_; }
    // The hourglass is wanted: it works and asks nothing.
    bool IsBusy() const { return busy_; }

    // For the work. False once the brewer has called it off.
    bool Show(const std::string& recipeName, int done, int total);
    void SetBusy(bool busy);

    std::string FormName() const override { return "frmCopyProgress"; }
    // lblRecipe, the name of the recipe being copied, and ProgressBar1, the number of recipes done.
    std::vector<DialogControl> Controls() const override;
    bool SetControl(std::string_view, std::string_view) override { return false; }
    // cmdCancel.
    bool Press(std::string_view button) override;
    // Calls the work off behind the present recipe; before the work it closes the window.
    void CloseBox() override;
    bool IsOpen() const override { return open_; }
    // Works and closes, also when an error rises from the work.
    void FirstShown() override;

  private:
    void Tell() const;

    Work work_;
    bool isImport_;
    std::function<void()> observer_;
    std::string recipeName_;
    int done_ = 0;
    int total_ = 0;
    bool open_ = true;
    bool running_ = false;
    bool busy_ = false;
    bool cancelled_ = false;
};

}  // namespace tw
