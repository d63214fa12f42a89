#include "exchange/Finding.h"

#include <array>

namespace tw {
namespace {

constexpr std::array<std::string_view, kSeverities> kSeverityWords = {
    "note", "repaired", "approximated", "not carried", "suspicious", "refused"};

constexpr std::array<std::string_view, kFindingCodes> kCodeWords = {
    "encoding",       "control-character", "bare-ampersand",  "bare-less-than",   "html-entity",
    "misspelt-close", "unclosed-tag",      "stray-close",     "truncated",        "several-roots",
    "recipe-as-root", "wrapped",           "doctype",         "tag-case",         "word-case",
    "unknown-word",   "unit-in-number",    "decimal-comma",   "no-number",        "missing",
    "empty-required", "unknown-tag",       "json-comments",   "hop-use",          "hop-time",
    "form",           "late-extract",      "water-mix",       "catalogue-figure", "no-figure",
    "style-unknown",  "priming",           "thousand-slip",   "too-much-hops",    "grist",
    "og-differs",     "fg-differs",        "abv-differs",     "ibu-differs",      "colour-differs",
    "carried",        "amount-unit",       "ingredient-kind", "yield-potential",  "implausible",
    "duplicate",      "new-entry"};

}  // namespace

std::string_view WordOf(Severity severity) {
    return kSeverityWords[static_cast<std::size_t>(severity)];
}

std::string_view WordOf(FindingCode code) {
    return kCodeWords[static_cast<std::size_t>(code)];
}

void Findings::Add(Finding finding) {
    if (++added_[finding.code] <= kKeptOfOneCode) all_.push_back(std::move(finding));
}

std::size_t Findings::Dropped(FindingCode code) const {
    const auto added = added_.find(code);
    return added == added_.end() || added->second <= kKeptOfOneCode ? 0 : added->second - kKeptOfOneCode;
}

}  // namespace tw
