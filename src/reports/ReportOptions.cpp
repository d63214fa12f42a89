#include "reports/ReportOptions.h"

#include <algorithm>
#include <limits>
#include <span>
#include <variant>

#include "values/NumberText.h"
#include "values/SettingText.h"

namespace tw {
namespace {

constexpr int kLeast = std::numeric_limits<int>::min();
constexpr int kMost = std::numeric_limits<int>::max();

template <class Owner>
struct Entry {
    std::string_view key;
    std::string_view fallback;
    std::variant<std::string Owner::*, double Owner::*, int Owner::*, bool Owner::*> field;
};
using OptionRow = Entry<ReportOptions>;
using FontRow = Entry<ReportFont>;

constexpr OptionRow kTextRows[] = {{"NumColumns", "75", &ReportOptions::numColumns},
                                   {"PageBreak", "1", &ReportOptions::pageBreak},
                                   {"Append", "0", &ReportOptions::append}};
constexpr OptionRow kHtmlRows[] = {{"BGColor", "16777215", &ReportOptions::bgColor},
                                   {"HorzRuler", "1", &ReportOptions::horizontalRulers}};
constexpr OptionRow kRichTextRows[] = {{"PageBreak", "1", &ReportOptions::pageBreak}};

// The keys of a font, without the prefix of its group. The last one is for rich text only.
constexpr FontRow kFontRows[] = {{"Font", "MS Sans Serif", &ReportFont::face},
                                 {"Size", "10", &ReportFont::points},
                                 {"Bold", "0", &ReportFont::bold},
                                 {"Italic", "0", &ReportFont::italic},
                                 {"Underline", "0", &ReportFont::underline},
                                 {"Strikethru", "0", &ReportFont::strikethru},
                                 {"Color", "0", &ReportFont::color},
                                 {"BColor", "16777215", &ReportFont::backColor}};
// The defaults of single groups that differ from kFontRows.
struct OwnDefault {
    std::string_view key;
    std::string_view fallback;
};
constexpr OwnDefault kOwnDefaults[] = {{"TitleSize", "12"}, {"TitleBold", "1"}, {"LabelBold", "1"}};

struct Group {
    std::string_view prefix;
    ReportFont ReportOptions::*font;
};
constexpr Group kGroups[] = {
    {"Title", &ReportOptions::title}, {"Label", &ReportOptions::label}, {"Text", &ReportOptions::text}};

struct Section {
    std::string_view name;
    std::span<const OptionRow> rows;
    std::span<const FontRow> fonts;
};
constexpr Section kSections[] = {
    {"TextOptions", kTextRows, {}},
    {"HTMLOptions", kHtmlRows, std::span(kFontRows).first(std::size(kFontRows) - 1)},
    {"RTFOptions", kRichTextRows, kFontRows},
};

const Section& SectionOf(ReportType type) {
    return kSections[static_cast<std::size_t>(type)];
}

std::string_view FontDefault(std::string_view key, const FontRow& row) {
    const auto own = std::ranges::find(kOwnDefaults, key, &OwnDefault::key);
    return own == std::end(kOwnDefaults) ? row.fallback : own->fallback;
}

template <class Owner>
bool Read(Owner& owner, const Entry<Owner>& row, std::string_view text) {
    if (const auto* field = std::get_if<std::string Owner::*>(&row.field)) {
        owner.** field = text;
        return true;
    }
    if (const auto* field = std::get_if<double Owner::*>(&row.field))
        return TakeInto(owner.**field, ReadReal(text));
    if (const auto* field = std::get_if<int Owner::*>(&row.field))
        return TakeInto(owner.**field, ReadWhole(text, kLeast, kMost));
    return TakeInto(owner.*std::get<bool Owner::*>(row.field), ReadFlag(text));
}

template <class Owner>
void Take(Owner& owner, const Entry<Owner>& row, const SettingsStore& store, std::string_view section,
          std::string_view key, std::string_view fallback) {
    if (!Read(owner, row, store.GetSetting(section, key, fallback))) Read(owner, row, fallback);
}

// yes and no are the texts of a switch: words for a font, digits for a report.
template <class Owner>
std::string TextOf(const Owner& owner, const Entry<Owner>& row, std::string_view yes, std::string_view no) {
    if (const auto* field = std::get_if<std::string Owner::*>(&row.field)) return owner.**field;
    if (const auto* field = std::get_if<double Owner::*>(&row.field)) return NumberText(owner.**field);
    if (const auto* field = std::get_if<int Owner::*>(&row.field)) return std::to_string(owner.**field);
    return std::string(owner.*std::get<bool Owner::*>(row.field) ? yes : no);
}

std::string KeyOf(const Group& group, const FontRow& row) {
    return std::string(group.prefix) + std::string(row.key);
}

}  // namespace

std::string_view ReportExtension(ReportType type) {
    constexpr std::string_view kExtensions[] = {"TXT", "HTM", "RTF"};
    return kExtensions[static_cast<std::size_t>(type)];
}

int ReportOptions::Columns() const {
    return ReadWhole(numColumns, kLeast, kMost).value_or(0);
}

ReportOptions LoadReportOptions(const SettingsStore& store, ReportType type) {
    ReportOptions options;
    const Section& section = SectionOf(type);
    for (const OptionRow& row : section.rows) Take(options, row, store, section.name, row.key, row.fallback);
    for (const Group& group : kGroups) {
        for (const FontRow& row : section.fonts) {
            const std::string key = KeyOf(group, row);
            Take(options.*group.font, row, store, section.name, key, FontDefault(key, row));
        }
    }
    return options;
}

void SaveReportOptions(const SettingsStore& store, ReportType type, const ReportOptions& options) {
    const Section& section = SectionOf(type);
    for (const OptionRow& row : section.rows)
        store.SaveSetting(section.name, row.key, TextOf(options, row, "1", "0"), false);
    for (const Group& group : kGroups)
        for (const FontRow& row : section.fonts)
            store.SaveSetting(section.name, KeyOf(group, row),
                              TextOf(options.*group.font, row, "True", "False"), false);
}

std::optional<std::string> ReportOptionDefault(std::string_view section, std::string_view key) {
    const auto found = std::ranges::find(kSections, section, &Section::name);
    if (found == std::end(kSections)) return std::nullopt;
    for (const OptionRow& row : found->rows)
        if (row.key == key) return std::string(row.fallback);
    for (const Group& group : kGroups)
        for (const FontRow& row : found->fonts)
            if (KeyOf(group, row) == key) return std::string(FontDefault(key, row));
    return std::nullopt;
}

}  // namespace tw
