#include "values/TabbedSheet.h"

#include "values/Split.h"

namespace tw {

std::vector<std::string> SheetLine::Cells() const {
    const std::vector<std::string_view> parts = Split(text, '\t');
    return {parts.begin(), parts.end()};
}

TabbedSheet ReadTabbedSheet(std::istream& stream) {
    TabbedSheet sheet;
    std::getline(stream, sheet.header);
    std::string line;
    for (int number = 2; std::getline(stream, line); ++number) sheet.lines.push_back({number, line});
    return sheet;
}

}  // namespace tw
