#include <algorithm>
#include <array>
#include <optional>

#include "doctor/PlanContext.h"
#include "exchange/AsciiCase.h"
#include "record/RecipeRecord.h"
#include "values/NumberText.h"

namespace tw {
namespace {

using Form = ForeignHop::Form;

// Words in the names of what brewers list as hops for want of another list.
constexpr std::array<std::string_view, 22> kNoHops = {
    "PEEL",    "COFFEE",    "OAK",   "LACTOSE", "HONEY",   "COCOA",    "CACAO", "VANILLA",
    "SPRUCE",  "CORIANDER", "SUGAR", "CHIPS",   "ZEST",    "CINNAMON", "MOSS",  "WHIRLFLOC",
    "GELATIN", "NUTRIENT",  "FRUIT", "CHILI",   "JUNIPER", "HEATHER"};

bool IsStand(ForeignUse use) {
    return use == ForeignUse::Aroma || use == ForeignUse::Whirlpool || use == ForeignUse::Mash;
}

bool IsDry(ForeignUse use) {
    return use == ForeignUse::Primary || use == ForeignUse::Secondary || use == ForeignUse::Package;
}

// True if the recipe boils no hop but lets some stand as long as others boil: its program meant the boil.
bool ReadsAromaAsBoil(const ForeignRecipe& recipe) {
    constexpr double kLongStand = 30;
    const auto boils = [](const ForeignHop& hop) {
        return !hop.use || *hop.use == ForeignUse::Boil || *hop.use == ForeignUse::FirstWort;
    };
    const auto stands = [](const ForeignHop& hop) {
        return hop.use == ForeignUse::Aroma && hop.minutes.value_or(0) >= kLongStand;
    };
    return std::ranges::none_of(recipe.hops, boils) && std::ranges::any_of(recipe.hops, stands);
}

std::string WordFor(ForeignUse use) {
    switch (use) {
        case ForeignUse::Mash:
            return "in the mash";
        case ForeignUse::Whirlpool:
            return "in the whirlpool";
        default:
            return "after the boil";
    }
}

// One hop of the recipe on its way into the plan.
class HopPlan {
  public:
    HopPlan(PlanContext& context, std::size_t index, bool aromaIsBoil)
        : c_(context),
          hop_(context.recipe.hops[index]),
          index_(index),
          place_(PlaceOf("Hops", index, hop_.name)),
          known_(context.figures.Hop({hop_.name, hop_.origin, hop_.supplier, hop_.productId})),
          use_(hop_.use.value_or(ForeignUse::Boil)) {
        if (aromaIsBoil && use_ == ForeignUse::Aroma) {
            use_ = ForeignUse::Boil;
            c_.Report(Severity::Repaired, FindingCode::HopUse, place_,
                      "No hop of the recipe is boiled, and this one stands " +
                          TimeText(hop_.minutes.value_or(0)) + "; it was read as boiled.");
        }
        if (!hop_.use && hop_.minutes.value_or(0) >= kMinutesPerDay) {
            use_ = ForeignUse::Primary;
            c_.Report(Severity::Approximated, FindingCode::HopUse, place_,
                      "When it is added is not known; for its " + TimeText(*hop_.minutes) +
                          " it was read as a dry hop.");
        } else if (!hop_.use) {
            c_.Report(Severity::Approximated, FindingCode::HopUse, place_,
                      "When it is added is not known; it was read as boiled.");
        }
    }

    PlannedLine Planned() {
        if (IsNoHop()) return Adjunct();
        PlannedLine line{GridId::Hops, place_, {}, IsDry(use_), Source()};
        line.cells.push_back({HopCol::Variety, Name()});
        line.cells.push_back({HopCol::AlphaAcid, Alpha()});
        line.cells.push_back({HopCol::Form, FormText()});
        line.cells.push_back({HopCol::Amount, Amount()});
        line.cells.push_back({HopCol::Time, Time()});
        return line;
    }

  private:
    std::vector<ForeignLine> Source() const { return {{ForeignLine::Kind::Hop, index_}}; }

    std::string Name() const { return known_ && known_->match.IsOwnName() ? known_->match.name : hop_.name; }

    bool IsNoHop() const {
        if (known_ || hop_.alpha.value_or(0) > 0) return false;
        const std::string name = UpperAscii(hop_.name);
        return std::ranges::any_of(
            kNoHops, [&](std::string_view word) { return name.find(word) != std::string::npos; });
    }

    PlannedLine Adjunct() {
        c_.Report(Severity::Repaired, FindingCode::IngredientKind, place_,
                  "It is listed as a hop but is none; it was put with the other adjuncts.");
        PlannedLine line{GridId::Adjuncts, place_, {}, false, Source()};
        line.cells = {{AdjunctCol::Name, hop_.name},
                      {AdjunctCol::Amount, hop_.amount ? c_.texts.Any(*hop_.amount, Weighed::Other) : ""},
                      {AdjunctCol::WhenAdded, std::string(WhenAdded(use_))},
                      {AdjunctCol::Time, hop_.minutes ? TimeText(*hop_.minutes) : ""}};
        return line;
    }

    std::string Alpha() {
        const double stated = hop_.alpha.value_or(0);
        if (stated > 0) return FewestDecimals(stated);
        if (known_ && known_->figures.alphaAcid && c_.options.catalogueFigures) {
            std::string text = NumberText(*known_->figures.alphaAcid);
            c_.ReportFigure(place_, "alpha acid", text + "%", known_->match);
            return text;
        }
        if (hop_.alpha) return "0";
        c_.Report(Severity::Suspicious, FindingCode::NoFigure, place_,
                  "Neither the file nor the catalogue knows the alpha acid; it stays empty.");
        return {};
    }

    std::string FormText() {
        switch (hop_.form.value_or(Form::Pellet)) {
            case Form::Pellet:
                return "Pellet";
            case Form::Plug:
                return "Plug";
            case Form::Leaf:
                return "Leaf";
            case Form::Powder:
                return ReadAs("Pellet");
            case Form::WetLeaf:
            case Form::Extract:
                break;
        }
        return ReadAs("Leaf");
    }

    std::string ReadAs(const std::string& form) {
        c_.Report(Severity::Approximated, FindingCode::Form, place_,
                  "The form '" + hop_.formWritten + "' is unknown here; it was read as " + form + ".");
        return form;
    }

    std::string Amount() {
        if (!hop_.amount) return {};
        ForeignAmount amount = *hop_.amount;
        if (amount.of == ForeignAmount::Of::Pieces) {
            c_.Report(Severity::Suspicious, FindingCode::AmountUnit, place_,
                      "The amount is given in pieces, not as a weight; it was left out.");
            return {};
        }
        if (amount.of == ForeignAmount::Of::Volume) {
            amount = {ForeignAmount::Of::Mass, amount.value, {}};
            c_.Report(Severity::Approximated, FindingCode::AmountUnit, place_,
                      "The amount is given as a volume; it was read as 1 g a milliliter.");
        }
        if (c_.options.grams && HasHopSlip(c_.recipe)) {
            amount.value /= 1000;
            amount.written.clear();
        }
        return c_.texts.Weight(amount, Weighed::Hops);
    }

    std::string Time() {
        if (IsStand(use_)) return NoMinutes();
        if (use_ == ForeignUse::FirstWort) return FirstWortTime();
        if (!hop_.minutes) return {};
        // The time of a boiled hop has no days.
        return IsDry(use_) ? TimeText(*hop_.minutes) : MinutesText(*hop_.minutes);
    }

    std::string NoMinutes() {
        std::string text = "It is added " + WordFor(use_);
        if (hop_.minutes && *hop_.minutes > 0) text += " for " + TimeText(*hop_.minutes);
        c_.Report(Severity::Approximated, FindingCode::HopUse, place_,
                  text + "; here it counts as 0 min of the boil.");
        if (hop_.minutes && *hop_.minutes > 0)
            c_.Report(Severity::Approximated, FindingCode::HopTime, place_,
                      "The " + TimeText(*hop_.minutes) +
                          " that it stays have no cell here; they are kept beside the recipe.");
        return "0 min";
    }

    std::string FirstWortTime() {
        const std::optional<double> minutes = c_.recipe.boilMinutes ? c_.recipe.boilMinutes : hop_.minutes;
        const std::string text = minutes ? MinutesText(*minutes) : std::string();
        c_.Report(Severity::Approximated, FindingCode::HopUse, place_,
                  "It is added to the first wort; here it is boiled for " +
                      (text.empty() ? std::string("the whole boil") : text) + ".");
        return text;
    }

    PlanContext& c_;
    const ForeignHop& hop_;
    std::size_t index_;
    std::string place_;
    std::optional<Known<HopFigures>> known_;
    ForeignUse use_;
};

}  // namespace

std::string_view WhenAdded(ForeignUse use) {
    switch (use) {
        case ForeignUse::Mash:
            return "Mash";
        case ForeignUse::FirstWort:
        case ForeignUse::Boil:
            return "During Boil";
        case ForeignUse::Aroma:
        case ForeignUse::Whirlpool:
            return "After Boil while Wort cools";
        case ForeignUse::Primary:
            return "After pitching Yeast to Primary";
        case ForeignUse::Secondary:
            return "After racking to Secondary";
        case ForeignUse::Package:
            break;
    }
    return "Before Bottling";
}

void PlanHops(PlanContext& c) {
    const bool aromaIsBoil = ReadsAromaAsBoil(c.recipe);
    for (std::size_t i = 0; i < c.recipe.hops.size(); ++i)
        c.plan.lines.push_back(HopPlan(c, i, aromaIsBoil).Planned());
}

}  // namespace tw
