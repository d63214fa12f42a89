#include "doctor/PlausibilityCheck.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <string>

#include "calc/Figures.h"
#include "doctor/AmountTexts.h"
#include "doctor/PlanContext.h"
#include "platform/Error.h"

namespace tw {
namespace {

constexpr double kGramsPerKilogram = 1000;
constexpr double kWhole = 100;                      // percent
constexpr double kHopSlip = 300, kMaltSlip = 3000;  // grams a litre

// Returns the grams of all lines in a litre of the batch; nullopt without a batch size or amounts.
template <class Line>
std::optional<double> GramsPerLitre(const std::vector<Line>& lines, const ForeignRecipe& recipe) {
    if (!recipe.batchSize || recipe.batchSize->value <= 0) return std::nullopt;
    double kilograms = 0;
    for (const Line& line : lines)
        if (line.amount && line.amount->of == ForeignAmount::Of::Mass) kilograms += line.amount->value;
    if (kilograms <= 0) return std::nullopt;
    return kilograms * kGramsPerKilogram / recipe.batchSize->value;
}

std::string Rounded(double value, int decimals) {
    constexpr double kShown = 1e9;  // everything beyond is nonsense, of which the beginning is enough
    std::array<char, 32> text{};
    const auto end = std::to_chars(text.begin(), text.end(), std::clamp(value, -kShown, kShown),
                                   std::chars_format::fixed, decimals)
                         .ptr;
    return {text.begin(), end};
}

class AmountCheck {
  public:
    AmountCheck(const ForeignRecipe& recipe, Findings& findings) : recipe_(recipe), findings_(findings) {}

    void Hops() {
        constexpr double kMost = 40, kLeastAlpha = 1, kMostAlpha = 25;
        const auto perLitre = GramsPerLitre(recipe_.hops, recipe_);
        if (perLitre && *perLitre > kHopSlip)
            Report(FindingCode::ThousandSlip, "Hops",
                   "There are " + Rounded(*perLitre, 0) +
                       " g of hops in a liter: probably grams were written as kilograms.");
        else if (perLitre && *perLitre > kMost)
            Report(FindingCode::TooMuchHops, "Hops",
                   "There are " + Rounded(*perLitre, 0) + " g of hops in a liter.");
        for (std::size_t i = 0; i < recipe_.hops.size(); ++i) {
            const double alpha = recipe_.hops[i].alpha.value_or(0);
            const std::string place = PlaceOf("Hops", i, recipe_.hops[i].name);
            const std::string text = "The alpha acid is " + FewestDecimals(alpha) + "%";
            if (alpha > kMostAlpha)
                Report(FindingCode::Implausible, place, text + ".");
            else if (alpha > 0 && alpha < kLeastAlpha)
                Report(FindingCode::Implausible, place,
                       text + ": probably " + FewestDecimals(alpha * kWhole) +
                           "% was written as a fraction. It was taken as it stands.");
        }
    }

    void Grist() {
        constexpr double kLeast = 60, kMost = 800;
        const auto perLitre = GramsPerLitre(recipe_.fermentables, recipe_);
        if (!perLitre) return;
        const std::string amount = "There are " + Rounded(*perLitre, 0) + " g of fermentables in a liter";
        if (*perLitre > kMaltSlip)
            Report(FindingCode::ThousandSlip, "Fermentables",
                   amount + ": probably grams were written as kilograms.");
        else if (*perLitre > kMost || *perLitre < kLeast)
            Report(FindingCode::Grist, "Fermentables", amount + ".");
    }

    void Boil() {
        // A boil as large as the batch, rounded, is common.
        constexpr double kRounding = 0.999;
        if (recipe_.boilSize && recipe_.batchSize &&
            recipe_.boilSize->value < kRounding * recipe_.batchSize->value)
            Report(FindingCode::Implausible, "Boil size",
                   "The boil of " + FewestDecimals(recipe_.boilSize->value) +
                       " L is smaller than the batch of " + FewestDecimals(recipe_.batchSize->value) + " L.");
    }

    // An extract recipe may well state an efficiency of 0.
    void Shares() {
        if (recipe_.efficiency && *recipe_.efficiency <= 0 &&
            std::ranges::any_of(recipe_.fermentables, IsMashed))
            Report(FindingCode::Implausible, "Recipe", "The efficiency is 0%, which gives no gravity.");
        if (recipe_.hopUtilization && *recipe_.hopUtilization <= 0 && !recipe_.hops.empty())
            Report(FindingCode::Implausible, "Recipe",
                   "The hop utilization is 0%, which gives no bitterness.");
    }

    void Attenuation() {
        constexpr double kLeast = 40, kMost = 100;
        for (std::size_t i = 0; i < recipe_.yeasts.size(); ++i) {
            const auto attenuation = recipe_.yeasts[i].attenuation;
            if (attenuation && *attenuation > 0 && (*attenuation < kLeast || *attenuation > kMost))
                Report(FindingCode::Implausible, PlaceOf("Yeasts", i, recipe_.yeasts[i].name),
                       "The attenuation is " + FewestDecimals(*attenuation) + "%.");
        }
    }

  private:
    void Report(FindingCode code, std::string place, std::string text) {
        findings_.Add({Severity::Suspicious, code, recipe_.name, std::move(place), std::move(text)});
    }

    const ForeignRecipe& recipe_;
    Findings& findings_;
};

// How far a calculated figure may be from the stated one: beyond note it is noted, beyond suspicious it
// is that.
struct Limits {
    double note, suspicious;
};
constexpr Limits kOg{0.002, 0.010}, kFg{0.002, 0.006}, kAbv{0.2, 0.5}, kRelative{0.10, 0.25};

// A figure as a finding names it.
struct FigureName {
    FindingCode code;
    const char* place;
    const char* words;  // within a sentence
    const char* unit;
    int decimals;
};
constexpr FigureName kGravity{FindingCode::OgDiffers, "Original gravity", "original gravity", "", 4};
constexpr FigureName kFinished{FindingCode::FgDiffers, "Finished gravity", "finished gravity", "", 4};
constexpr FigureName kAlcohol{FindingCode::AbvDiffers, "Alcohol", "alcohol", "%", 2};
constexpr FigureName kBitterness{FindingCode::IbuDiffers, "Bitterness", "bitterness", " IBUs", 1};
constexpr FigureName kColor{FindingCode::ColourDiffers, "Color", "color", " SRM", 1};

class FigureCheck {
  public:
    FigureCheck(const ForeignRecipe& recipe, const TypedFigures& typed, Findings& findings)
        : recipe_(recipe), typed_(typed), findings_(findings) {}

    // True if the difference is worth a finding.
    bool Gravity() {
        return Compare(kGravity, recipe_.stated.og, typed_.calculated.og, kOg,
                       typed_.canMeetGravity ? "" : "; no extraction gives the stated one");
    }

    void FinishedGravity() {
        if (!recipe_.stated.fg || !typed_.calculated.og || !typed_.attenuation) return;
        try {
            Compare(kFinished, recipe_.stated.fg,
                    AttenuatedGravity(*typed_.calculated.og, *typed_.attenuation), kFg,
                    " by the attenuation of the yeast");
        } catch (const Error&) {
            // A gravity beyond the formula is not comparable.
        }
    }

    void Alcohol() { Compare(kAlcohol, recipe_.stated.abv, typed_.calculated.abv, kAbv); }

    bool Bitterness() {
        return CompareRatio(kBitterness, recipe_.stated.ibu, typed_.ibuWithoutForm,
                            " without the factor for the form of the hops");
    }

    // True if colours are probably EBC.
    bool Color() {
        // 1.97 EBC are one SRM; malt colours in EBC make a calculated colour larger by nearly the same
        // factor.
        constexpr double kLeast = 1.85, kMost = 2.1;
        const auto stated = recipe_.stated.srm, calculated = typed_.calculated.srm;
        if (!stated || !calculated || *stated <= 0 || *calculated <= 0) return false;
        const double ratio = std::max(*stated / *calculated, *calculated / *stated);
        const bool ebc = ratio >= kLeast && ratio <= kMost;
        CompareRatio(kColor, stated, calculated, ebc ? "; this looks like EBC" : "");
        return ebc && *calculated > *stated;
    }

  private:
    bool Compare(const FigureName& figure, std::optional<double> stated, std::optional<double> calculated,
                 Limits limits, std::string_view remark = {}) {
        if (!stated || !calculated) return false;
        return Judge(figure, *stated, *calculated, std::abs(*stated - *calculated), limits, remark);
    }

    bool CompareRatio(const FigureName& figure, std::optional<double> stated,
                      std::optional<double> calculated, std::string_view remark) {
        if (!stated || !calculated || *stated <= 0) return false;
        const double apart = std::abs(*stated - *calculated) / *stated;
        return Judge(figure, *stated, *calculated, apart, kRelative, remark);
    }

    bool Judge(const FigureName& figure, double stated, double calculated, double apart, Limits limits,
               std::string_view remark) {
        if (!(apart > limits.note)) return false;
        std::string text = std::string("The ") + figure.words + " is " + Rounded(stated, figure.decimals) +
                           figure.unit + " in the file and " + Rounded(calculated, figure.decimals) +
                           figure.unit + " here";
        text.append(remark).append(".");
        findings_.Add({apart > limits.suspicious ? Severity::Suspicious : Severity::Note, figure.code,
                       recipe_.name, figure.place, std::move(text)});
        return true;
    }

    const ForeignRecipe& recipe_;
    const TypedFigures& typed_;
    Findings& findings_;
};

}  // namespace

bool HasMaltSlip(const ForeignRecipe& recipe) {
    return GramsPerLitre(recipe.fermentables, recipe).value_or(0) > kMaltSlip;
}

bool HasHopSlip(const ForeignRecipe& recipe) {
    return GramsPerLitre(recipe.hops, recipe).value_or(0) > kHopSlip;
}

void CheckAmounts(const ForeignRecipe& recipe, Findings& findings) {
    AmountCheck check(recipe, findings);
    check.Hops();
    check.Grist();
    check.Boil();
    check.Shares();
    check.Attenuation();
}

void NoteHopForms(const ForeignFile& file, Findings& findings) {
    const auto isPressed = [](const ForeignHop& hop) {
        const auto form = hop.form.value_or(ForeignHop::Form::Pellet);
        return form == ForeignHop::Form::Pellet || form == ForeignHop::Form::Powder;
    };
    const bool concerned = std::ranges::any_of(file.recipes, [&](const ForeignRecipe& recipe) {
        return recipe.stated.ibu.value_or(0) > 0 && std::ranges::any_of(recipe.hops, isPressed);
    });
    if (concerned)
        findings.Add(
            {Severity::Note,
             FindingCode::IbuDiffers,
             {},
             "Bitterness",
             "Pellets count 15% more here than in most other programs; stated bitterness is compared "
             "without that."});
}

RemediesOffered CheckFigures(const ForeignRecipe& recipe, const TypedFigures& typed, Findings& findings) {
    FigureCheck check(recipe, typed, findings);
    RemediesOffered offered;
    offered.grams = HasMaltSlip(recipe) || HasHopSlip(recipe);
    offered.gravity = check.Gravity() && typed.canMeetGravity;
    check.FinishedGravity();
    check.Alcohol();
    offered.bitterness = check.Bitterness() && typed.canMeetBitterness;
    offered.ebc = check.Color();
    return offered;
}

}  // namespace tw
