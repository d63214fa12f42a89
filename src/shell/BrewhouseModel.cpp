#include "shell/BrewhouseModel.h"

#include <algorithm>
#include <array>

#include "shell/SettingsInUse.h"
#include "store/CatalogueNames.h"
#include "values/QuantityParsers.h"
#include "values/Text.h"

namespace tw {
namespace {

// How much of the possible extract a way of brewing brings into the fermenter: usual figures of home brewing.
struct Method {
    const char* name;
    const char* extract;  // empty for the brewer's own
};
constexpr std::array kMethods{Method{"All grain", "72%"}, Method{"Partial mash", "60%"},
                              Method{"Extract, with steeped grains", "40%"}, Method{"A rate of my own", ""}};
constexpr std::size_t kOwnRate = kMethods.size() - 1;

struct Suggestion {
    const char* units;
    const char* totalVol;
    const char* boilVol;
};
constexpr std::array kSuggestions{Suggestion{"Gallons, pounds, ounces", "5 gal", "6.5 gal"},
                                  Suggestion{"Liters, kilograms, grams", "20 L", "26 L"}};

const Suggestion& SuggestionOf(std::string_view units) {
    return *std::ranges::find(kSuggestions, units, &Suggestion::units);
}

}  // namespace

BrewhouseModel::BrewhouseModel(SettingsInUse& settings, Database& database, MessagePort& messages,
                               Start start)
    : FormModel(kFormName), settings_(settings), messages_(messages) {
    ReadWaters(database);
    start == Start::ShowSettings ? ShowSettings() : Suggest(start == Start::SuggestMetric);
    FormControl extract = TextEntry("txtExtract", extract_);
    extract.take = [this](std::string_view text) {
        extract_ = text;
        ExtractTyped();
        return true;
    };
    AddControls({
        List("cmbMethod", Methods(), method_, &BrewhouseModel::MethodChosen),
        std::move(extract),
        List("cmbUnits", Units(), units_, &BrewhouseModel::UnitsChosen),
        TextEntry("txtTotalVol", totalVol_),
        TextEntry("txtBoilVol", boilVol_),
        List("cmbWaterProfile", waters_, water_),
        CheckBox("chkAppendRows", appendRows_),
        CheckBox("chkMaximize", maximize_),
        CheckBox("chkUndoScaling", undoScaling_),
        CheckBox("chkKeepUnits", keepUnits_),
        CheckBox("chkDesktopColors", desktopColors_),
    });
    AddButtons({{"cmdOK", [this] { Ok(); }}, {"cmdSkip", [this] { Close(); }}});
}

const std::vector<std::string>& BrewhouseModel::Methods() {
    static const std::vector<std::string> names = [] {
        std::vector<std::string> found;
        found.reserve(kMethods.size());
        for (const Method& method : kMethods) found.emplace_back(method.name);
        return found;
    }();
    return names;
}

const std::vector<std::string>& BrewhouseModel::Units() {
    static const std::vector<std::string> names = [] {
        std::vector<std::string> found;
        found.reserve(kSuggestions.size());
        for (const Suggestion& suggestion : kSuggestions) found.emplace_back(suggestion.units);
        return found;
    }();
    return names;
}

FormControl BrewhouseModel::List(std::string name, const std::vector<std::string>& entries,
                                 std::string& shown, void (BrewhouseModel::*changed)()) {
    const auto take = [this, &entries, &shown, changed](std::string_view text) {
        if (std::ranges::find(entries, text) == entries.end()) return false;
        shown = text;
        if (changed != nullptr) (this->*changed)();
        return true;
    };
    return {std::move(name), [&shown] { return shown; }, take};
}

void BrewhouseModel::ReadWaters(Database& database) {
    waters_ = {""};
    const NameList names = CatalogueNames(database).NamesOf(CatalogueKind::Water);
    for (std::size_t i = 0; i < names.Count(); ++i) waters_.push_back(names.Name(i));
}

void BrewhouseModel::Suggest(bool metric) {
    method_ = kMethods[0].name;
    extract_ = kMethods[0].extract;
    const Suggestion& suggestion = kSuggestions[metric ? 1 : 0];
    units_ = suggestion.units;
    totalVol_ = suggestion.totalVol;
    boilVol_ = suggestion.boilVol;
}

void BrewhouseModel::ShowSettings() {
    const Settings& s = settings_.Values();
    extract_ = s.grainExtraction;
    ExtractTyped();
    units_ = kSuggestions[s.metricExamples ? 1 : 0].units;
    totalVol_ = s.totalVol;
    boilVol_ = s.boilVol;
    const auto water =
        std::ranges::find_if(waters_, [&](const auto& w) { return SameName(w, s.waterProfile); });
    if (water != waters_.end()) water_ = *water;
    appendRows_ = settings_.AppendRows();
    maximize_ = s.childState == kStateMaximized;
    undoScaling_ = s.undoScaling;
    keepUnits_ = s.keepTypedUnits;
    desktopColors_ = !s.gridReadOnlyBg && !s.gridReadOnlyFg && !s.gridTotalBg && !s.gridTotalFg;
}

void BrewhouseModel::MethodChosen() {
    const auto method = std::ranges::find(kMethods, method_, &Method::name);
    if (*method->extract != '\0') extract_ = method->extract;
}

void BrewhouseModel::ExtractTyped() {
    const auto method = std::ranges::find(kMethods, Trim(extract_), &Method::extract);
    method_ = method != kMethods.end() ? method->name : kMethods[kOwnRate].name;
}

void BrewhouseModel::UnitsChosen() {
    const Suggestion& now = SuggestionOf(units_);
    for (const Suggestion& other : kSuggestions) {
        if (totalVol_ == other.totalVol) totalVol_ = now.totalVol;
        if (boilVol_ == other.boilVol) boilVol_ = now.boilVol;
    }
}

bool BrewhouseModel::Accepts(std::string_view box, const Refusal* refusal) {
    if (refusal == nullptr) return true;
    refused_ = box;
    ShowRefusal(messages_, *refusal);
    return false;
}

bool BrewhouseModel::CheckEntries() {
    refused_ = {};
    const Reading<double> extract = ValidatePercent(extract_);
    const Reading<double> total = ValidateVolume(totalVol_), boil = ValidateVolume(boilVol_);
    return Accepts("txtExtract", extract ? nullptr : &extract.Why()) &&
           Accepts("txtTotalVol", total ? nullptr : &total.Why()) &&
           Accepts("txtBoilVol", boil ? nullptr : &boil.Why());
}

void BrewhouseModel::Ok() {
    if (!CheckEntries()) return;
    Settings& s = settings_.Values();
    s.grainExtraction = extract_;
    s.totalVol = totalVol_;
    s.boilVol = boilVol_;
    s.waterProfile = water_;
    s.metricExamples = units_ == kSuggestions[1].units;
    s.undoScaling = undoScaling_;
    s.keepTypedUnits = keepUnits_;
    if (maximize_) s.childState = kStateMaximized;
    if (!maximize_ && s.childState == kStateMaximized) s.childState = 0;
    if (desktopColors_) s.gridReadOnlyBg = s.gridReadOnlyFg = s.gridTotalBg = s.gridTotalFg = std::nullopt;
    settings_.SetAppendRows(appendRows_);
    settings_.ShowGridColors();
    // At once: a crash must not ask the brewer again.
    settings_.Keep(false);
    Accept();
}

}  // namespace tw
