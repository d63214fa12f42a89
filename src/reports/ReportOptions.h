// How report files look: the types of report, and the options of each with their keys and text forms in the
// settings.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "platform/SettingsStore.h"

namespace tw {

enum class ReportType : int { Text, Html, RichText };
inline constexpr std::array<std::string_view, 3> kReportTypeNames{"Text", "HTML", "RichText"};
// The extension of a report's file, without the dot.
std::string_view ReportExtension(ReportType type);

inline constexpr int kWhite = 16777215;

// Colours are 32-bit numbers in blue-green-red order.
struct ReportFont {
    std::string face = "MS Sans Serif";
    double points = 10;
    bool bold = false, italic = false, underline = false, strikethru = false;
    int color = 0;
    int backColor = kWhite;  // of rich text alone
    bool operator==(const ReportFont&) const = default;
};

// The options of all types; each type has its own section and knows some of them alone.
struct ReportOptions {
    std::string numColumns = "75";  // width of a text report, as typed
    bool pageBreak = true;          // text, rich text: recipes begin on pages of their own
    bool append = false;            // text: goes behind what the file holds
    bool horizontalRulers = true;   // HTML: a rule between recipes
    int bgColor = kWhite;           // HTML
    ReportFont title{.points = 12, .bold = true}, label{.bold = true}, text;
    bool operator==(const ReportOptions&) const = default;

    // The width in characters; 0 for a text that is no number.
    int Columns() const;
};

// The stored options of that type; what is not stored, or stored in another form, has its default.
ReportOptions LoadReportOptions(const SettingsStore& store, ReportType type);
void SaveReportOptions(const SettingsStore& store, ReportType type, const ReportOptions& options);
// The default text of a key of the sections "TextOptions", "HTMLOptions" and "RTFOptions"; nothing for
// another.
std::optional<std::string> ReportOptionDefault(std::string_view section, std::string_view key);

}  // namespace tw
