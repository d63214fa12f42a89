// The types of report files, and the format options of each with their keys and values in the settings.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "platform/SettingsStore.h"

namespace tw {

enum class ReportType : int { Text, Html, RichText };
inline constexpr std::array<std::string_view, 3> kReportTypeNames{"Text", "HTML", "RichText"};
// Returns the file extension of a report, without the dot.
std::string_view ReportExtension(ReportType type);

inline constexpr int kWhite = 16777215;

// Colours are numbers 0xBBGGRR.
struct ReportFont {
    std::string face = "MS Sans Serif";
    double points = 10;
    bool bold = false, italic = false, underline = false, strikethru = false;
    int color = 0;
    int backColor = kWhite;  // rich text only
    bool operator==(const ReportFont&) const = default;
};

// The options of all types of report. Each type stores its own in a section of the settings, and only
// those that apply to it.
struct ReportOptions {
    std::string numColumns = "75";  // text: width in characters, as typed
    bool pageBreak = true;          // text, rich text: each recipe begins on a new page
    bool append = false;            // text: is appended to an existing file
    bool horizontalRulers = true;   // HTML: a horizontal rule between recipes
    int bgColor = kWhite;           // HTML
    ReportFont title{.points = 12, .bold = true}, label{.bold = true}, text;
    bool operator==(const ReportOptions&) const = default;

    // Returns the width in characters; 0 if numColumns is not a whole number.
    int Columns() const;
};

// Returns the stored options of that type. An option that is not stored or is invalid has its default value.
ReportOptions LoadReportOptions(const SettingsStore& store, ReportType type);
void SaveReportOptions(const SettingsStore& store, ReportType type, const ReportOptions& options);
// Returns the default text of a key in the section "TextOptions", "HTMLOptions" or "RTFOptions"; none for any
// other key.
std::optional<std::string> ReportOptionDefault(std::string_view section, std::string_view key);

}  // namespace tw
