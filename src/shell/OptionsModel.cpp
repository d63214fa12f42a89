#include "shell/OptionsModel.h"

#include <algorithm>
#include <cassert>
#include <charconv>
#include <cmath>

#include "commands/PopupCommands.h"
#include "platform/Error.h"
#include "shell/SettingsInUse.h"
#include "store/Database.h"
#include "values/QuantityParsers.h"
#include "values/Text.h"

namespace tw {
namespace {

constexpr int kLeastMinutes = 1;
constexpr int kMostMinutes = 60;
constexpr int kHighestColor = 0xFFFFFF;
constexpr int kBlackKept = 1;

struct ColorRow {
    std::string_view picture;
    std::string_view key;
    std::optional<int> Settings::*field;
    std::string Default() const { return Settings::DefaultOf(kSettingsSection, key).value(); }
};
constexpr ColorRow kColors[] = {{"picCalcBackground", "GridReadOnlyBg", &Settings::gridReadOnlyBg},
                                {"picCalcForeground", "GridReadOnlyFg", &Settings::gridReadOnlyFg},
                                {"picSumBackground", "GridTotalBg", &Settings::gridTotalBg},
                                {"picSumForeground", "GridTotalFg", &Settings::gridTotalFg}};

constexpr std::string_view kIconOptions[] = {"optIcons(0)", "optIcons(1)", "optIcons(2)"};
constexpr std::string_view kButtonOptions[] = {"optButtons(0)", "optButtons(1)"};
constexpr int kLastIconStyle = 2;

std::string YesNo(bool yes) {
    return yes ? "yes" : "no";
}

// Returns "optIcons" for "optIcons(2)".
std::string_view GroupOf(std::string_view option) {
    return option.substr(0, option.find('('));
}

// A number too large to represent still counts as a whole number; its value does not matter.
std::optional<double> ReadWhole(std::string_view text) {
    try {
        return ParseWholeNumber(text);
    } catch (const Error&) {
        return HUGE_VAL;
    }
}

}  // namespace

OptionsModel::OptionsModel(SettingsInUse& settings, Database& database, MessagePort& messages)
    : FormModel(kFormName), settings_(settings), database_(database), messages_(messages) {
    FillDefaultsTab();
    FillSettingsTab();
    FillAppearanceTab();
    AddControls({{"UpDown1", {}, [this](std::string_view direction) { return PressUpDown(direction); }}});
    AddButtons({
        {NameOf(PopupCommand::ResetColors), [this] { ResetColors(); }},
        {"cmdOK", [this] { Ok(); }},
        {"cmdCancel", [this] { Close(); }},
    });
}

void OptionsModel::FillDefaultsTab() {
    const Settings& s = settings_.Values();
    AddList("cmbHopForm", {"Pellet", "Plug", "Leaf"}, s.hopForm);
    AddCheck("chkHopSocks", s.hopSocks);
    AddList("cmbIBUMethod", {"Tinseth", "Rager", "Garetz"}, s.ibuMethod);
    AddText("txtExtract", s.grainExtraction);
    AddText("txtHopExtraction", s.hopExtraction);
    AddText("txtBoilVol", s.boilVol);
    AddText("txtTotalVol", s.totalVol);
    AddList("cmbWaterProfile", {""}, 0);
    PopulateWaterProfiles();
    AddList("cmbPackaging", {"Bottling", "Kegging"}, s.packaging);
}

void OptionsModel::FillSettingsTab() {
    const Settings& s = settings_.Values();
    AddList("cmbReportType", {"Text", "HTML", "RichText"}, s.reportType);
    AddCheck("chkCopyHeaders", s.copyHeaders);
    AddCheck("chkPasteBlockSize", s.pasteMismatchSize);
    AddCheck("chkAutoSave", s.doAutoSave);
    AddText("txtSaveInc", std::to_string(s.doAutoSaveEvery));
    AddCheck("chkAskNonUndoableChange", s.askBeforeNonUndoableChange);
    AddCheck("chkQuickPrint", s.quickPrintFromToolbar);
    AddLaterCheck("chkUndoScaling", s.undoScaling);
    AddLaterCheck("chkKeepTypedUnits", s.keepTypedUnits);
}

void OptionsModel::FillAppearanceTab() {
    const Settings& s = settings_.Values();
    const int icons = s.iconStyle >= 0 && s.iconStyle < kLastIconStyle ? s.iconStyle : kLastIconStyle;
    const int buttons = s.buttonStyle == 0 ? 0 : 1;
    int index = 0;
    for (const std::string_view name : kIconOptions)
        Add({Kind::Option, std::string(name), YesNo(index++ == icons)});
    index = 0;
    for (const std::string_view name : kButtonOptions)
        Add({Kind::Option, std::string(name), YesNo(index++ == buttons)});
    for (const ColorRow& row : kColors) {
        const std::optional<int>& color = s.*row.field;
        Add({Kind::Color,
             std::string(row.picture),
             color ? std::to_string(*color) : row.Default(),
             {},
             color.has_value()});
    }
    AddLaterCheck("chkFigureStrip", s.figureStrip, true);
}

void OptionsModel::Add(Control entry) {
    const std::string& name = entry.name;
    AddControls({{name, [this, name] { return Text(name); },
                  [this, name](std::string_view text) { return TakeEntry(name, text); }}});
    options_.push_back(std::move(entry));
}

void OptionsModel::AddList(std::string_view name, std::vector<std::string> entries, int index) {
    // A stored number without an entry selects the first.
    const bool known = index >= 0 && index < static_cast<int>(entries.size());
    std::string text = entries[known ? static_cast<std::size_t>(index) : 0];
    Add({Kind::List, std::string(name), std::move(text), std::move(entries)});
}

void OptionsModel::AddCheck(std::string_view name, bool checked) {
    Add({Kind::Check, std::string(name), YesNo(checked)});
}

// Adds a check box of a newer version, which is listed only if it does not start as it usually does.
void OptionsModel::AddLaterCheck(std::string_view name, bool checked, bool usually) {
    const std::string own(name);
    FormControl control{own, {}, [this, own](std::string_view text) { return TakeEntry(own, text); }};
    if (checked != usually) control.show = [this, own] { return Text(own); };
    AddControls({std::move(control)});
    options_.push_back({Kind::Check, own, YesNo(checked)});
}

void OptionsModel::AddText(std::string_view name, std::string_view text) {
    Add({Kind::Text, std::string(name), std::string(text)});
}

void OptionsModel::PopulateWaterProfiles() {
    Control& list = Find("cmbWaterProfile");
    const std::string& stored = settings_.Values().waterProfile;
    list.entries = {""};
    list.text.clear();
    for (Recordset rows = database_.OpenRecordset("SELECT NAME FROM WATER_PROFILES ORDER BY NAME");
         !rows.AtEnd(); rows.MoveNext()) {
        list.entries.push_back(rows.Fields(0).Text());
        if (SameName(list.entries.back(), stored)) list.text = list.entries.back();
    }
}

const OptionsModel::Control& OptionsModel::Find(std::string_view name) const {
    const auto found = std::ranges::find(options_, name, &Control::name);
    assert(found != options_.end());
    return *found;
}

OptionsModel::Control& OptionsModel::Find(std::string_view name) {
    const auto found = std::ranges::find(options_, name, &Control::name);
    assert(found != options_.end());
    return *found;
}

int OptionsModel::IndexOf(std::string_view list) const {
    const Control& control = Find(list);
    return static_cast<int>(std::ranges::find(control.entries, control.text) - control.entries.begin());
}

int OptionsModel::Color(std::string_view picture) const {
    const std::string& text = Text(picture);
    int color = 0;
    std::from_chars(text.data(), text.data() + text.size(), color);
    return color;
}

std::optional<int> OptionsModel::ChosenColor(std::string_view picture) const {
    return Find(picture).chosen ? std::optional(Color(picture)) : std::nullopt;
}

bool OptionsModel::SaveIncEnabled() const {
    return Checked("chkAutoSave");
}

bool OptionsModel::UpDownEnabled() const {
    const std::string& text = Text("txtSaveInc");
    return SaveIncEnabled() && (ReadWhole(text) || ParseReal(text));
}

void OptionsModel::EnterField(std::string_view name) {
    focused_ = name;
    remembered_ = Text(name);
}

bool OptionsModel::CheckField() {
    if (focused_.empty()) return true;
    Control& field = Find(focused_);
    bool accepted = false;
    try {
        accepted = AcceptsText(field);
    } catch (const Error& error) {
        messages_.ShowMessage("Error", error.WithNumber());
    }
    if (!accepted) field.text = remembered_;
    return accepted;
}

bool OptionsModel::LeaveField() {
    if (!CheckField()) return false;
    focused_.clear();
    return true;
}

bool OptionsModel::AcceptsText(const Control& field) {
    if (field.name == "txtHopExtraction") return AcceptsHopExtraction(field.text);
    if (field.name == "txtSaveInc") return AcceptsSaveInc(field.text);
    const Reading<double> read =
        field.name == "txtExtract" ? ValidatePercent(field.text) : ValidateVolume(field.text);
    if (!read) ShowRefusal(messages_, read.Why());
    return read.Accepted();
}

bool OptionsModel::AcceptsHopExtraction(std::string_view text) {
    if (IsBlank(text)) return true;
    const std::optional<double> number = ParseReal(text);
    if (!number) return Refuse("Please enter a valid decimal number");
    return *number >= 0 || Refuse("Please enter a positive decimal number");
}

bool OptionsModel::AcceptsSaveInc(std::string_view text) {
    const std::optional<double> minutes = ReadWhole(text);
    if (!minutes) return Refuse("Please enter a valid integer");
    return (*minutes >= kLeastMinutes && *minutes <= kMostMinutes) ||
           Refuse("Please enter an integer between 1 and 60");
}

bool OptionsModel::Refuse(std::string_view text) {
    messages_.ShowMessage(kInvalidEntry, text);
    return false;
}

void OptionsModel::StepSaveInc(int by) {
    if (!UpDownEnabled()) return;
    Control& field = Find("txtSaveInc");
    const std::optional<double> whole = ReadWhole(field.text);
    double value = whole ? *whole : ParseReal(field.text).value_or(0);
    if (by > 0 ? value >= kMostMinutes : value <= kLeastMinutes) {
        messages_.Beep();
        return;
    }
    value = std::clamp<double>(std::trunc(value) + by, kLeastMinutes, kMostMinutes);
    field.text = std::to_string(static_cast<int>(value));
}

bool OptionsModel::PressUpDown(std::string_view direction) {
    if (direction != "up" && direction != "down") return false;
    StepSaveInc(direction == "up" ? 1 : -1);
    return true;
}

bool OptionsModel::TakeEntry(std::string_view name, std::string_view text) {
    if (focused_ != name) {
        // A refused field has its old text again, so the focus can leave it.
        LeaveField();
        focused_.clear();
    }
    return Enter(Find(name), text);
}

bool OptionsModel::Enter(Control& control, std::string_view text) {
    switch (control.kind) {
        case Kind::Text:
            if (focused_.empty()) EnterField(control.name);
            control.text = text;
            return true;
        case Kind::Check:
            if (text != "yes" && text != "no") return false;
            control.text = text;
            return true;
        case Kind::Option:
            if (text != "yes") return false;
            ChooseOption(control);
            return true;
        case Kind::List: {
            const auto entry =
                std::ranges::find_if(control.entries, [&](const auto& e) { return SameName(e, text); });
            if (entry == control.entries.end()) return false;
            control.text = *entry;
            return true;
        }
        case Kind::Color:
            break;
    }
    int color = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), color);
    if (error != std::errc() || end != text.data() + text.size()) return false;
    if (color < 0 || color > kHighestColor) return false;
    control.text = std::to_string(color == 0 ? kBlackKept : color);
    control.chosen = true;
    return true;
}

void OptionsModel::ChooseOption(Control& option) {
    for (Control& other : options_)
        if (other.kind == Kind::Option && GroupOf(other.name) == GroupOf(option.name)) other.text = "no";
    option.text = "yes";
}

void OptionsModel::ResetColors() {
    for (const ColorRow& row : kColors) {
        Control& picture = Find(row.picture);
        picture.text = row.Default();
        picture.chosen = false;
    }
}

void OptionsModel::Ok() {
    if (!focused_.empty()) {
        // A refusal is detected by the change of text. If a bad stored text is refused, it is restored
        // unchanged, so the message appears but the dialog closes: on purpose, as the brewer did not enter
        // that text.
        const Control& field = Find(focused_);
        const std::string typed = field.text;
        LeaveField();
        if (field.text != typed) return;
    }
    ApplyDefaults();
    ApplySettings();
    ApplyAppearance();
    Accept();
}

void OptionsModel::ApplyDefaults() {
    Settings& s = settings_.Values();
    s.hopForm = IndexOf("cmbHopForm");
    s.hopSocks = Checked("chkHopSocks");
    s.reportType = IndexOf("cmbReportType");
    s.grainExtraction = Text("txtExtract");
    s.hopExtraction = Text("txtHopExtraction");
    s.boilVol = Text("txtBoilVol");
    s.totalVol = Text("txtTotalVol");
    s.ibuMethod = IndexOf("cmbIBUMethod");
    s.waterProfile = Text("cmbWaterProfile");
    s.packaging = IndexOf("cmbPackaging");
}

void OptionsModel::ApplySettings() {
    Settings& s = settings_.Values();
    s.copyHeaders = Checked("chkCopyHeaders");
    s.pasteMismatchSize = Checked("chkPasteBlockSize");
    settings_.SetDoAutoSave(Checked("chkAutoSave"));
    if (const std::optional<double> minutes = ReadWhole(Text("txtSaveInc")))
        s.doAutoSaveEvery = static_cast<int>(*minutes);
    s.askBeforeNonUndoableChange = Checked("chkAskNonUndoableChange");
    s.quickPrintFromToolbar = Checked("chkQuickPrint");
    s.undoScaling = Checked("chkUndoScaling");
    s.keepTypedUnits = Checked("chkKeepTypedUnits");
}

void OptionsModel::ApplyAppearance() {
    Settings& s = settings_.Values();
    int icons = 0;
    while (!Checked(kIconOptions[icons])) ++icons;
    if (s.iconStyle != icons) {
        s.iconStyle = icons;
        settings_.ShowIcons();
    }
    const int buttons = Checked(kButtonOptions[0]) ? 0 : 1;
    if (s.buttonStyle != buttons) {
        s.buttonStyle = buttons;
        settings_.ShowButtonStyle();
    }
    if (s.figureStrip != Checked("chkFigureStrip")) settings_.SetFigureStrip(!s.figureStrip);
    for (const ColorRow& row : kColors) s.*row.field = ChosenColor(row.picture);
    settings_.ShowGridColors();
}

}  // namespace tw
