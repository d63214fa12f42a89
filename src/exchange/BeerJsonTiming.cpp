#include "exchange/BeerJsonTiming.h"

#include <algorithm>
#include <array>

#include "exchange/AsciiCase.h"
#include "values/NumberText.h"

namespace tw {
namespace {

bool NameHas(const JsonBoilStep& step, std::string_view word) {
    return UpperAscii(step.name).find(word) != std::string::npos;
}

bool Heats(const JsonBoilStep& step) {
    if (step.startCelsius && step.endCelsius) return *step.endCelsius > *step.startCelsius;
    return NameHas(step, "FIRST WORT") || NameHas(step, "HEAT") || NameHas(step, "RAMP");
}

bool IsBelowBoiling(const JsonBoilStep& step) {
    constexpr double kBoilingCelsius = 95;
    const auto isLow = [](std::optional<double> celsius) { return celsius && *celsius < kBoilingCelsius; };
    if (step.startCelsius || step.endCelsius) return isLow(step.startCelsius) || isLow(step.endCelsius);
    return NameHas(step, "WHIRLPOOL") || NameHas(step, "STAND") || NameHas(step, "STEEP");
}

bool IsOneOf(const std::vector<JsonBoilStep>& steps, double number) {
    return number >= 1 && number <= static_cast<double>(steps.size());
}

ForeignUse UseInBoil(std::optional<double> number, const std::vector<JsonBoilStep>& steps) {
    if (!number || !IsOneOf(steps, *number)) return ForeignUse::Boil;
    const auto index = static_cast<std::size_t>(*number) - 1;
    const JsonBoilStep& step = steps[index];
    if (index == 0 && Heats(step)) return ForeignUse::FirstWort;
    return IsBelowBoiling(step) && !Heats(step) ? ForeignUse::Whirlpool : ForeignUse::Boil;
}

// Reads the object behind the key "timing".
class Timing {
  public:
    Timing(const Json& value, ForeignTelling& telling, std::string place, std::string path)
        : value_(value), telling_(telling), place_(std::move(place)), path_(std::move(path)) {}

    JsonTiming Read(const std::vector<JsonBoilStep>& boilSteps) {
        JsonTiming timing;
        const Json* const use = value_.Find("use");
        if (use != nullptr && use->AsText() != nullptr) {
            timing.useWritten = std::string(TrimSpace(*use->AsText()));
            const auto meaning = UseOfWord(timing.useWritten);
            if (!timing.useWritten.empty())
                telling_.TellWord(place_, "use", timing.useWritten,
                                  FieldOf(ShapeOf(JsonRecord::Timing), "use")->words,
                                  meaning ? meaning->shown : "");
            if (meaning) timing.use = meaning->value;
        }
        const auto step = Figure("step", FigureUnit::Plain);
        const auto time = Figure("time", FigureUnit::Minutes);
        const auto duration = Figure("duration", FigureUnit::Minutes);
        if (timing.use == ForeignUse::Boil) {
            if (step && !boilSteps.empty() && !IsOneOf(boilSteps, *step))
                Tell(FindingCode::HopUse,
                     "The boil has no step " + NumberText(*step) + "; it was read as added to the boil.");
            timing.use = UseInBoil(step, boilSteps);
        }
        if (timing.use == ForeignUse::Primary && step && *step >= 2) timing.use = ForeignUse::Secondary;
        const bool countsBackward = timing.use == ForeignUse::Boil || timing.use == ForeignUse::FirstWort;
        timing.minutes = countsBackward ? (time ? time : duration) : (duration ? duration : time);
        timing.timesRemark = TimesRemark(time, duration, countsBackward);
        KeepRest();
        return timing;
    }

  private:
    // Returns what the brewer is told of the two times, of which a recipe here has one: for the boil the one
    // before its end, else how long it stays.
    std::string TimesRemark(std::optional<double> time, std::optional<double> duration, bool countsBackward) {
        const auto minutes = [](double value) { return NumberText(value) + " min"; };
        if (time && duration && *time != *duration && (countsBackward || *time > 0)) {
            telling_.KeepAside(Joined(path_, countsBackward ? "duration" : "time"), 0);
            if (!countsBackward)
                return "Its time of " + minutes(*time) +
                       " from the start of the step has no place; its duration of " + minutes(*duration) +
                       " was taken.";
            return "Its duration of " + minutes(*duration) + " has no place; its time of " + minutes(*time) +
                   " before the end of the boil was taken.";
        }
        if (!countsBackward && time && !duration && *time > 0)
            return "Its duration is not stated; its time of " + minutes(*time) +
                   " from the start of the step was read as how long it stays.";
        if (countsBackward && duration && !time)
            return "When it is added is not stated; its duration of " + minutes(*duration) +
                   " was read as boiled to the end.";
        return {};
    }
    void Tell(FindingCode code, std::string text) const {
        telling_.Tell(Severity::Approximated, code, place_, std::move(text));
    }
    std::optional<double> Figure(std::string_view key, FigureUnit unit) {
        const Json* const value = value_.Find(key);
        if (value == nullptr) return std::nullopt;
        return ReadJsonFigure(*value, key, unit, telling_, place_);
    }
    void KeepRest() {
        constexpr std::array<std::string_view, 4> kRead = {"use", "time", "duration", "step"};
        constexpr std::array<std::string_view, 3> kOther = {"continuous", "specific_gravity", "pH"};
        const Json::Object* const members = value_.AsObject();
        if (members == nullptr) return;
        for (const JsonMember& member : *members) {
            if (std::ranges::find(kRead, member.name) != kRead.end()) continue;
            telling_.KeepAside(Joined(path_, member.name), 0);
            if (std::ranges::find(kOther, member.name) == kOther.end()) telling_.NoteUnknown(member.name);
        }
    }

    const Json& value_;
    ForeignTelling& telling_;
    std::string place_;
    std::string path_;
};

}  // namespace

JsonTiming ReadTiming(BeerJsonRecord& record, const std::vector<JsonBoilStep>& boilSteps,
                      ForeignTelling& telling, const std::string& place, const std::string& path) {
    JsonTiming timing;
    if (const Json* const value = record.Value("timing"); value != nullptr && value->AsObject() != nullptr)
        timing = Timing(*value, telling, place, Joined(path, "timing")).Read(boilSteps);
    const Json* const older = record.Peek("use");
    if (timing.use || older == nullptr || older->AsText() == nullptr) return timing;
    const auto meaning = UseOfWord(*older->AsText());
    if (!meaning) return timing;
    timing.use = meaning->value;
    timing.useWritten = record.Text("use");
    telling.Tell(Severity::Approximated, FindingCode::HopUse, place,
                 "The use " + Quoted(timing.useWritten) + " stands outside of the timing and was read as " +
                     std::string(meaning->shown) + ".");
    return timing;
}

}  // namespace tw
