#include "exchange/FileKind.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>

#include "exchange/AsciiCase.h"
#include "exchange/BeerXmlTags.h"
#include "values/Utf8.h"

namespace tw {
namespace {

constexpr std::string_view kSpace = " \t\r\n";

// Returns the ASCII characters of UTF-16 text, anything else as "?".
std::string Narrowed(std::string_view utf16, bool bigEndian) {
    std::string text;
    for (std::size_t i = 0; i + 1 < utf16.size(); i += 2) {
        const char high = utf16[bigEndian ? i : i + 1];
        const char low = utf16[bigEndian ? i + 1 : i];
        text += high == 0 && IsAscii(low) ? low : '?';
    }
    return text;
}

// Returns the text without a byte order mark.
std::string TextOf(std::string_view bytes) {
    if (bytes.starts_with("\xEF\xBB\xBF")) return std::string(bytes.substr(3));
    if (bytes.starts_with("\xFF\xFE")) return Narrowed(bytes.substr(2), false);
    if (bytes.starts_with("\xFE\xFF")) return Narrowed(bytes.substr(2), true);
    return std::string(bytes);
}

// A damaged text may contain a control character here and there; a file in which one byte of ten is one is
// no text.
bool IsBinary(std::string_view text) {
    const auto controls = std::ranges::count_if(
        text, [](char c) { return IsAscii(c) && c < ' ' && kSpace.find(c) == std::string_view::npos; });
    return text.starts_with("SQLite format 3") || static_cast<std::size_t>(controls) * 10 > text.size();
}

bool IsTagEnd(char c) {
    return kSpace.find(c) != std::string_view::npos || c == '>' || c == '/';
}

// Takes the next opening tag off the front of text and returns its name; nothing if there is none. A name
// that the text cuts off does not count.
std::optional<std::string_view> TakeTag(std::string_view& text) {
    for (;;) {
        const auto open = text.find('<');
        if (open == std::string_view::npos) return std::nullopt;
        text.remove_prefix(open + 1);
        if (text.starts_with("!--")) {
            const auto end = text.find("-->");
            if (end == std::string_view::npos) return std::nullopt;
            text.remove_prefix(end);
            continue;
        }
        const auto* const end = std::ranges::find_if(text, IsTagEnd);
        if (end == text.end()) return std::nullopt;
        const std::string_view name = text.substr(0, static_cast<std::size_t>(end - text.begin()));
        if (!name.empty()) return name;
    }
}

bool IsOfWebPage(std::string_view tag) {
    constexpr std::array<std::string_view, 6> kTags = {"html", "head", "body", "svg", "meta", "script"};
    return std::ranges::any_of(kTags, [&](std::string_view each) { return EqualAscii(each, tag); });
}

FileKind KindOfTags(std::string_view text) {
    while (const auto tag = TakeTag(text)) {
        // In capitals it is somebody's wrapper around records of the first version.
        if (*tag == "beer_xml") return FileKind::BeerXml2Draft;
        if (EqualAscii(*tag, "!doctype")) {
            // Web pages have it; BeerXML may have one too, with the name of its root.
            const auto name = text.find_first_not_of(kSpace, tag->size());
            if (name != std::string_view::npos && EqualAscii(text.substr(name, 4), "html"))
                return FileKind::Other;
            continue;
        }
        if (IsOfWebPage(*tag)) return FileKind::Other;
        const XmlRecordRule* const record = RecordOfTag(*tag);
        if (record == nullptr && RecordOfSet(*tag) == nullptr) continue;
        if (record == nullptr || record->record != XmlRecord::Style) return FileKind::BeerXml;
        // A part of a web page may begin with <style>.
        std::string_view rest = text;
        const auto field = TakeTag(rest);
        return field && FieldOf(XmlRecord::Style, *field) != nullptr ? FileKind::BeerXml : FileKind::Other;
    }
    return FileKind::Other;
}

bool HasKey(std::string_view text, std::string_view quotedName) {
    for (auto at = text.find(quotedName); at != std::string_view::npos; at = text.find(quotedName, at + 1)) {
        const auto behind = text.find_first_not_of(kSpace, at + quotedName.size());
        if (behind != std::string_view::npos && text[behind] == ':') return true;
    }
    return false;
}

}  // namespace

FileKind KindOf(std::string_view firstBytes) {
    constexpr std::size_t kSearched = 4096;
    const std::string text = TextOf(firstBytes.substr(0, kBytesForKind));
    if (IsBinary(text)) return FileKind::Other;
    std::string_view json = text;
    json.remove_prefix(std::min(json.find_first_not_of(kSpace), json.size()));
    if (json.starts_with("{") || json.starts_with("//") || json.starts_with("/*"))
        return HasKey(json, "\"beerjson\"") ? FileKind::BeerJson : FileKind::Other;
    return KindOfTags(std::string_view(text).substr(0, CodePointOffset(text, kSearched)));
}

}  // namespace tw
