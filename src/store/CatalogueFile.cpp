#include "store/CatalogueFile.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>

#include "platform/Error.h"
#include "values/NumberText.h"
#include "values/TabbedSheet.h"
#include "values/Text.h"
#include "values/Utf8.h"

namespace tw {

namespace {

std::string Quoted(std::string_view text) {
    std::string quoted(1, '"');
    quoted.append(text).push_back('"');
    return quoted;
}

// Returns what is wrong with the encoding of a line; empty if it is valid.
std::string EncodingFault(std::string_view line) {
    while (!line.empty()) {
        const CodePoint front = FrontCodePoint(line);
        if (front.value == kNoCodePoint) return "the line is not valid UTF-8";
        if (front.value != '\t' && IsInvisible(front.value)) {
            std::array<char, 16> code{};
            std::snprintf(code.data(), code.size(), "U+%04X", static_cast<unsigned>(front.value));
            return "the line holds the invisible character " + std::string(code.data());
        }
        line.remove_prefix(front.bytes);
    }
    return {};
}

// Reads and checks one file line by line.
class Reader {
  public:
    Reader(CatalogueSheet& sheet, std::span<const CatalogueColumn> columns, CatalogueProblems& problems)
        : sheet_(sheet), columns_(columns), problems_(problems) {}

    void Read(std::istream& stream) {
        const TabbedSheet read = ReadTabbedSheet(stream);
        if (!CheckHeader(read.header)) return;
        for (const SheetLine& line : read.lines) {
            line_ = line.number;
            ReadRow(line);
        }
    }

  private:
    void Report(std::string what) { problems_.push_back({sheet_.file, line_, std::move(what)}); }

    bool CheckHeader(std::string_view line) {
        std::string expected;
        for (const CatalogueColumn& column : columns_) {
            if (!expected.empty()) expected += '\t';
            expected += column.header;
        }
        sheet_.readable = line == expected;
        if (!sheet_.readable) {
            Report("the header row must name, between tabs: " + ReplaceAll(expected, "\t", ", "));
        }
        return sheet_.readable;
    }

    void ReadRow(const SheetLine& line) {
        CatalogueRow row;
        row.columns = columns_;
        row.line = line_;
        row.cells = line.Cells();
        const std::size_t found = row.cells.size();
        row.cells.resize(columns_.size());
        row.numbers.resize(columns_.size());
        if (std::string fault = EncodingFault(line.text); !fault.empty()) {
            Report(std::move(fault));
        } else if (found != columns_.size()) {
            Report("the row has " + std::to_string(found) + " cells, not " + std::to_string(columns_.size()));
        } else {
            CheckCells(row);
        }
        CheckName(row);
        sheet_.rows.push_back(std::move(row));
    }

    void CheckCells(CatalogueRow& row) {
        for (std::size_t at = 0; at < columns_.size(); ++at) {
            CheckCell(columns_[at], row.cells[at], row.numbers[at]);
        }
        for (std::size_t at = 0; at + 1 < columns_.size(); ++at) {
            if (columns_[at].header.ends_with("_lo")) CheckRange(row, at);
        }
    }

    void CheckCell(const CatalogueColumn& column, const std::string& cell, std::optional<double>& number) {
        const std::string header(column.header);
        if (Trim(cell) != cell || cell.find("  ") != std::string::npos) {
            Report(header + " " + Quoted(cell) + " holds a stray blank");
            return;
        }
        if (cell.empty()) {
            if (column.required) Report(header + " is blank");
            return;
        }
        if (column.kind == CatalogueColumn::Kind::Word) CheckWord(column, cell);
        if (column.kind == CatalogueColumn::Kind::Number) CheckNumber(column, cell, number);
    }

    void CheckWord(const CatalogueColumn& column, const std::string& cell) {
        if (std::ranges::find(column.words, cell) != column.words.end()) return;
        std::string known;
        for (std::string_view word : column.words) known += (known.empty() ? "" : ", ") + std::string(word);
        Report(std::string(column.header) + " " + Quoted(cell) + " is none of: " + known);
    }

    void CheckNumber(const CatalogueColumn& column, const std::string& cell, std::optional<double>& number) {
        const std::string start = std::string(column.header) + " " + Quoted(cell);
        try {
            number = ReadNumber(cell);
            if (!number) return Report(start + " is not a number");
        } catch (const Error& overflow) {
            return Report(start + " is not a number: " + overflow.Description());
        }
        const double value = *number;
        if (value < column.least || value > column.most) {
            Report(start + " is not between " + NumberText(column.least) + " and " + NumberText(column.most));
        }
    }

    void CheckRange(const CatalogueRow& row, std::size_t low) {
        const std::string lowText = std::string(columns_[low].header) + " " + Quoted(row.cells[low]);
        const std::string highText = std::string(columns_[low + 1].header) + " " + Quoted(row.cells[low + 1]);
        if (row.cells[low].empty() != row.cells[low + 1].empty()) {
            Report("a range needs both ends or none: " + lowText + ", " + highText);
        } else if (row.numbers[low] && row.numbers[low + 1] && *row.numbers[low] > *row.numbers[low + 1]) {
            Report(lowText + " is above " + highText);
        }
    }

    void CheckName(const CatalogueRow& row) {
        const std::string& name = row.cells.front();
        if (IsBlank(name)) return;
        // Some SQL statements of the program put a name between double quotes.
        if (name.find('"') != std::string::npos) Report("name " + Quoted(name) + " holds a double quote");
        std::string key = Upper(Trim(name));
        for (std::size_t at = 0; at < columns_.size(); ++at)
            if (columns_[at].partsNames) key += '\t' + row.cells[at];
        const auto [known, isNew] = lineOfName_.emplace(std::move(key), line_);
        if (!isNew) {
            Report("name " + Quoted(name) + " stands in line " + std::to_string(known->second) + " already");
        }
    }

    CatalogueSheet& sheet_;
    std::span<const CatalogueColumn> columns_;
    CatalogueProblems& problems_;
    int line_ = 1;
    std::map<std::string, int> lineOfName_;
};

}  // namespace

std::size_t CatalogueRow::IndexOf(std::string_view header) const {
    const auto found = std::ranges::find(columns, header, &CatalogueColumn::header);
    return static_cast<std::size_t>(found - columns.begin());
}

std::string CatalogueProblem::Text() const {
    return file + ":" + std::to_string(line) + ": " + what;
}

CatalogueSheet ReadCatalogueFile(const std::string& path, std::span<const CatalogueColumn> columns,
                                 CatalogueProblems& problems) {
    CatalogueSheet sheet;
    sheet.file = path;
    std::error_code ignored;
    std::ifstream stream;
    if (std::filesystem::is_regular_file(path, ignored)) stream.open(path, std::ios::binary);
    if (!stream.is_open()) {
        problems.push_back({path, 1, "the file cannot be read"});
        return sheet;
    }
    Reader(sheet, columns, problems).Read(stream);
    return sheet;
}

}  // namespace tw
