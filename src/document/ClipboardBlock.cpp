#include "document/ClipboardBlock.h"

#include <algorithm>

#include "values/Text.h"

namespace tw {
namespace {

std::vector<std::string> SplitAt(std::string_view text, char separator) {
    std::vector<std::string> parts;
    for (;;) {
        const std::size_t end = text.find(separator);
        parts.emplace_back(text.substr(0, end));
        if (end == std::string_view::npos) return parts;
        text.remove_prefix(end + 1);
    }
}

}  // namespace

std::string JoinBlock(const ClipboardBlock& block) {
    std::string text;
    for (const auto& row : block) {
        for (std::size_t col = 0; col < row.size(); ++col) {
            if (col > 0) text += '\t';
            text += row[col];
        }
        text += '\r';
    }
    return text;
}

ClipboardBlock SplitBlock(std::string_view text) {
    std::string lines(text);
    std::erase(lines, '\n');
    if (lines.ends_with('\r')) lines.pop_back();
    ClipboardBlock block;
    std::size_t widest = 1;
    for (const std::string& line : SplitAt(lines, '\r')) {
        block.push_back(SplitAt(line, '\t'));
        widest = std::max(widest, block.back().size());
    }
    for (auto& row : block) row.resize(widest);
    return block;
}

}  // namespace tw
