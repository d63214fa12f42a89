#include "shell/Settings.h"

#include <algorithm>
#include <array>
#include <limits>
#include <span>
#include <variant>

#include "commands/Commands.h"
#include "reports/ReportOptions.h"
#include "values/NumberText.h"
#include "values/SettingText.h"

namespace tw {
namespace {

struct Real {
    double Settings::*field;
};
// An integer of 16 or 32 bits.
struct Integer {
    int Settings::*field;
    int least = std::numeric_limits<std::int32_t>::min();
    int most = std::numeric_limits<std::int32_t>::max();
};
struct Color {
    std::optional<int> Settings::*field;
};
struct Flag {
    bool Settings::*field;
    std::string_view yes = "True";
    std::string_view no = "False";
};
struct TextValue {
    std::string Settings::*field;
};

using FieldOf = std::variant<Real, Integer, Color, Flag, TextValue>;

struct KeyRow {
    std::string_view key;
    std::string_view fallback;
    FieldOf field;
};

constexpr Integer Short(int Settings::*field) {
    return {field, std::numeric_limits<std::int16_t>::min(), std::numeric_limits<std::int16_t>::max()};
}
constexpr Integer Long(int Settings::*field) {
    return {field};
}

// All keys of the section, in the order in which they are read.
constexpr std::array kKeys = std::to_array<KeyRow>({
    {"MainLeft", "1000", Real{&Settings::mainLeft}},
    {"MainTop", "1000", Real{&Settings::mainTop}},
    {"MainWidth", "6500", Real{&Settings::mainWidth}},
    {"MainHeight", "6500", Real{&Settings::mainHeight}},
    {"IconStyle", "0", Short(&Settings::iconStyle)},
    {"ButtonStyle", "0", Short(&Settings::buttonStyle)},
    {"ChildState", "0", Long(&Settings::childState)},
    {"AppendRows", "False", Flag{&Settings::appendRows, "1", "0"}},
    {"HopForm", "0", Short(&Settings::hopForm)},
    {"HopSocks", "1", Flag{&Settings::hopSocks}},
    {"HopExtraction", "1.0", TextValue{&Settings::hopExtraction}},
    {"GrainExtraction", "40%", TextValue{&Settings::grainExtraction}},
    {"WaterProfile", "", TextValue{&Settings::waterProfile}},
    {"Packaging", "0", Short(&Settings::packaging)},
    {"BoilVol", "", TextValue{&Settings::boilVol}},
    {"TotalVol", "", TextValue{&Settings::totalVol}},
    {"IBUMethod", "0", Short(&Settings::ibuMethod)},
    {"ReportType", "0", Short(&Settings::reportType)},
    {"CopyHeaders", "0", Flag{&Settings::copyHeaders}},
    {"PasteMismatchSize", "0", Flag{&Settings::pasteMismatchSize}},
    {"ShowAssistantAtStartup", "1", Flag{&Settings::showAssistantAtStartup}},
    {"DoAutoSave", "0", Flag{&Settings::doAutoSave}},
    {"DoAutoSaveEvery", "5", Short(&Settings::doAutoSaveEvery)},
    {"AskBeforeNonUndoableChange", "1", Flag{&Settings::askBeforeNonUndoableChange}},
    {"QuickPrintFromToolbar", "1", Flag{&Settings::quickPrintFromToolbar}},
    {"GridReadOnlyBg", "65535", Color{&Settings::gridReadOnlyBg}},
    {"GridTotalBg", "65280", Color{&Settings::gridTotalBg}},
    {"GridReadOnlyFg", "1", Color{&Settings::gridReadOnlyFg}},
    {"GridTotalFg", "1", Color{&Settings::gridTotalFg}},
    {"LPMaxIter", "1000", Long(&Settings::lpMaxIter)},
    {"UndoScaling", "0", Flag{&Settings::undoScaling}},
    {"KeepTypedUnits", "0", Flag{&Settings::keepTypedUnits}},
    {"ScaleBoilVol", "1", Flag{&Settings::scaleBoilVol}},
    {"KeepBitterness", "1", Flag{&Settings::keepBitterness}},
    {"KeepCarbonation", "1", Flag{&Settings::keepCarbonation}},
    {"FigureStrip", "1", Flag{&Settings::figureStrip}},
    {"NewsSeen", "0", Short(&Settings::newsSeen)},
    {"MetricExamples", "0", Flag{&Settings::metricExamples}},
    {"ImportUnits", "0", Integer{&Settings::importUnits, 0, 2}},
});

using KeyRows = std::span<const KeyRow>;
constexpr KeyRows kAllKeys{kKeys};
constexpr KeyRows kGeometryKeys = kAllKeys.first(4);
constexpr KeyRows kStyleKeys = kAllKeys.subspan(4, 2);
constexpr KeyRows kWindowKeys = kAllKeys.first(6);
constexpr KeyRows kProgramKeys = kAllKeys.subspan(6);
constexpr KeyRows kColorKeys = kAllKeys.subspan(25, 4);
constexpr KeyRows kPreferenceKeys = kAllKeys.subspan(6, 19);
constexpr KeyRows kAddedKeys = kAllKeys.subspan(30);
static_assert(kColorKeys.front().key == "GridReadOnlyBg" && kColorKeys.back().key == "GridTotalFg");
static_assert(kAddedKeys.front().key == "UndoScaling");

// Reads the text into the field. False if the text does not have the form of the field.
struct Reader {
    Settings& settings;
    std::string_view text;

    bool operator()(const Real& real) const { return TakeInto(settings.*real.field, ReadReal(text)); }
    bool operator()(const Integer& integer) const {
        return TakeInto(settings.*integer.field, ReadWhole(text, integer.least, integer.most));
    }
    bool operator()(const Color& color) const {
        settings.*color.field = ReadWhole(text, std::numeric_limits<std::int32_t>::min(),
                                          std::numeric_limits<std::int32_t>::max());
        return true;
    }
    bool operator()(const Flag& flag) const { return TakeInto(settings.*flag.field, ReadFlag(text)); }
    bool operator()(const TextValue& value) const {
        settings.*value.field = text;
        return true;
    }
};

struct Writer {
    const Settings& settings;

    std::string operator()(const Real& real) const { return NumberText(settings.*real.field); }
    std::string operator()(const Integer& integer) const { return std::to_string(settings.*integer.field); }
    std::string operator()(const Color& color) const {
        return std::to_string((settings.*color.field).value());
    }
    std::string operator()(const Flag& flag) const {
        return std::string(settings.*flag.field ? flag.yes : flag.no);
    }
    std::string operator()(const TextValue& value) const { return settings.*value.field; }
};

// A text of the wrong form, put there from outside, counts as missing.
void TakeText(Settings& settings, const KeyRow& row, std::string_view text) {
    if (!std::visit(Reader{settings, text}, row.field)) std::visit(Reader{settings, row.fallback}, row.field);
}

void LoadKeys(Settings& settings, const SettingsStore& store, KeyRows rows) {
    for (const KeyRow& row : rows) {
        // A colour that is not stored has no default: it stays unchosen.
        const bool isColor = std::holds_alternative<Color>(row.field);
        TakeText(settings, row, store.GetSetting(kSettingsSection, row.key, isColor ? "" : row.fallback));
    }
}

// Earlier versions stored all four colours at every shut-down, whether chosen or not.
void ForgetColorsOfEarlierVersions(Settings& settings) {
    const auto isDefault = [&](const KeyRow& row) {
        const std::optional<int>& color = settings.*std::get<Color>(row.field).field;
        return color && std::to_string(*color) == row.fallback;
    };
    if (!std::ranges::all_of(kColorKeys, isDefault)) return;
    for (const KeyRow& row : kColorKeys) (settings.*std::get<Color>(row.field).field).reset();
}

void StoreKeys(const Settings& settings, const SettingsStore& store, KeyRows rows) {
    for (const KeyRow& row : rows) {
        store.SaveSetting(kSettingsSection, row.key, std::visit(Writer{settings}, row.field), false);
    }
}

void StoreColors(const Settings& settings, const SettingsStore& store) {
    for (const KeyRow& row : kColorKeys) {
        if (settings.*std::get<Color>(row.field).field)
            store.SaveSetting(kSettingsSection, row.key, std::visit(Writer{settings}, row.field), false);
        else
            store.ForgetSetting(kSettingsSection, row.key);
    }
}

void StoreAddedKeys(const Settings& settings, const SettingsStore& store) {
    Settings usual;
    for (const KeyRow& row : kAddedKeys) {
        TakeText(usual, row, row.fallback);
        const std::string text = std::visit(Writer{settings}, row.field);
        if (text == std::visit(Writer{usual}, row.field))
            store.ForgetSetting(kSettingsSection, row.key);
        else
            store.SaveSetting(kSettingsSection, row.key, text, false);
    }
}

std::optional<std::string> RecentDefault(std::string_view key) {
    for (int slot = 0; slot < kRecentSlots; ++slot) {
        if (key == "File" + std::to_string(slot)) return "";
    }
    return std::nullopt;
}

}  // namespace

void Settings::LoadWindowKeys(const SettingsStore& store) {
    LoadKeys(*this, store, kWindowKeys);
}

void Settings::LoadProgramKeys(const SettingsStore& store) {
    LoadKeys(*this, store, kProgramKeys);
    ForgetColorsOfEarlierVersions(*this);
}

void Settings::Store(const SettingsStore& store) const {
    StoreKeys(*this, store, kPreferenceKeys);
    StoreKeys(*this, store, kStyleKeys);
    StoreColors(*this, store);
    StoreAddedKeys(*this, store);
}

void Settings::StoreGeometry(const SettingsStore& store) const {
    StoreKeys(*this, store, kGeometryKeys);
}

bool Settings::Take(std::string_view key, std::string_view text) {
    const auto row = std::ranges::find(kKeys, key, &KeyRow::key);
    if (row == kKeys.end()) return false;
    TakeText(*this, *row, text);
    return true;
}

std::optional<std::string> Settings::DefaultOf(std::string_view section, std::string_view key) {
    if (section == kMruSection) return RecentDefault(key);
    if (section != kSettingsSection) return ReportOptionDefault(section, key);
    const auto row = std::ranges::find(kKeys, key, &KeyRow::key);
    if (row == kKeys.end()) return std::nullopt;
    return std::string(row->fallback);
}

}  // namespace tw
