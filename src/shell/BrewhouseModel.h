// Asks once how one brews, so that every new recipe begins with the right figures (frmBrewhouse): the page
// that a first start shows before the assistant.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/FormModel.h"
#include "platform/Ports.h"
#include "values/Reading.h"

namespace tw {

class Database;
class SettingsInUse;

// cmbMethod and txtExtract, the extraction rate in percent, follow each other. cmbUnits also changes the
// suggested volumes, if they are still as suggested. The other controls are txtTotalVol and txtBoilVol (US
// gallons unless they name another unit), cmbWaterProfile, and the check boxes chkAppendRows, chkMaximize,
// chkUndoScaling, chkKeepUnits and chkDesktopColors. cmdOK stores all as settings, and keeps the form open if
// an entry is refused; cmdSkip stores nothing.
class BrewhouseModel final : public FormModel {
  public:
    static constexpr const char* kFormName = "frmBrewhouse";

    // Suggest: what a first start proposes; metric chooses the units. Show: the present settings.
    enum class Start { SuggestUS, SuggestMetric, ShowSettings };

    // All references must outlive the form.
    BrewhouseModel(SettingsInUse& settings, Database& database, MessagePort& messages, Start start);

    // The entries of the three lists.
    static const std::vector<std::string>& Methods();
    static const std::vector<std::string>& Units();
    const std::vector<std::string>& Waters() const { return waters_; }
    // The name of the box whose entry cmdOK has just refused; empty if none.
    std::string_view Refused() const { return refused_; }

  private:
    FormControl List(std::string name, const std::vector<std::string>& entries, std::string& shown,
                     void (BrewhouseModel::*changed)() = nullptr);
    void Suggest(bool metric);
    void ShowSettings();
    void ReadWaters(Database& database);
    void MethodChosen();
    void ExtractTyped();
    void UnitsChosen();
    bool Accepts(std::string_view box, const Refusal* refusal);
    bool CheckEntries();
    void Ok();

    SettingsInUse& settings_;
    MessagePort& messages_;
    std::vector<std::string> waters_;
    std::string method_, extract_, units_, totalVol_, boilVol_, water_;
    bool appendRows_ = true, maximize_ = true, undoScaling_ = true, keepUnits_ = true, desktopColors_ = true;
    std::string_view refused_;
};

}  // namespace tw
