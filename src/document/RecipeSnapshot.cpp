#include "document/RecipeSnapshot.h"

#include <algorithm>
#include <charconv>

#include "platform/Error.h"
#include "values/NumberText.h"

namespace tw {
namespace {

constexpr std::string_view kFirstLine = "Tunwright unsaved recipe 1\n";
constexpr std::string_view kEndWord = "end ";
constexpr std::string_view kHexDigits = "0123456789abcdef";
constexpr std::size_t kHashDigits = 16;

class Writer {
  public:
    explicit Writer(std::string_view start) : out_(start) {}

    Writer& Word(std::string_view word) {
        Blank();
        out_ += word;
        return *this;
    }
    Writer& Number(double number) { return Word(NumberText(number)); }
    Writer& Quoted(std::string_view text) {
        Blank();
        out_ += '"';
        for (const char c : text) Escape(c);
        out_ += '"';
        return *this;
    }
    void EndLine() { out_ += '\n'; }
    std::string Finish() {
        const std::string hash = HashText(out_);
        return std::move(out_.append(kEndWord).append(hash).append("\n"));
    }

  private:
    void Blank() {
        if (out_.back() != '\n') out_ += ' ';
    }
    void Escape(char c) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            out_ += '\\';
            out_ += c;
        } else if (byte < 0x20 || byte == 0x7f) {
            out_ += "\\x";
            out_ += kHexDigits[byte >> 4U];
            out_ += kHexDigits[byte & 15U];
        } else {
            out_ += c;
        }
    }

    std::string out_;
};

std::string ValueWord(const CellValue& value) {
    static constexpr std::string_view kKinds = "-NAI";
    return kKinds[static_cast<std::size_t>(value.kind)] + NumberText(value.number);
}

std::string_view CheckWord(CheckState check) {
    return check == CheckState::None ? "none" : check == CheckState::Checked ? "yes" : "no";
}

// Thrown for a text that is not in this format.
class BadText {};

void Require(bool holds) {
    if (!holds) throw BadText();
}

// Reads the words of a text, line by line.
class Reader {
  public:
    explicit Reader(std::string_view text) : text_(text) {}

    bool AtEnd() const { return at_ == text_.size(); }
    std::string Word() {
        SkipBlank();
        const std::size_t from = at_;
        while (at_ < text_.size() && text_[at_] != ' ' && text_[at_] != '\n') ++at_;
        Require(at_ > from);
        return std::string(text_.substr(from, at_ - from));
    }
    std::string Quoted() {
        SkipBlank();
        Require(Take() == '"');
        std::string text;
        for (char c = Take(); c != '"'; c = Take()) text += c == '\\' ? Escaped() : c;
        return text;
    }
    double Number() { return NumberOf(Word()); }
    static double NumberOf(std::string_view word) {
        try {
            const std::optional<double> number = ReadNumber(word);
            Require(number.has_value());
            return number.value_or(0);
        } catch (const Error&) {
            throw BadText();
        }
    }
    std::int64_t Integer() {
        const std::string word = Word();
        std::int64_t number = 0;
        const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
        Require(error == std::errc() && end == word.data() + word.size());
        return number;
    }
    void EndLine() { Require(Take() == '\n'); }

  private:
    char Take() {
        Require(at_ < text_.size());
        return text_[at_++];
    }
    void SkipBlank() {
        if (at_ > 0 && text_[at_ - 1] != '\n') Require(Take() == ' ');
    }
    char Escaped() {
        const char c = Take();
        if (c != 'x') return c;
        const std::size_t high = kHexDigits.find(Take()), low = kHexDigits.find(Take());
        Require(high != std::string_view::npos && low != std::string_view::npos);
        return static_cast<char>(high << 4U | low);
    }

    std::string_view text_;
    std::size_t at_ = 0;
};

Cell ReadCell(Reader& reader) {
    Cell cell;
    cell.text = reader.Quoted();
    const std::string value = reader.Word();
    const std::size_t kind = std::string_view("-NAI").find(value[0]);
    Require(kind != std::string_view::npos);
    cell.value = {static_cast<CellValue::Kind>(kind), Reader::NumberOf(std::string_view(value).substr(1))};
    const std::string check = reader.Word();
    Require(check == "none" || check == "yes" || check == "no");
    cell.check = check == "none"  ? CheckState::None
                 : check == "yes" ? CheckState::Checked
                                  : CheckState::Unchecked;
    const std::string weight = reader.Word();
    Require(weight == "plain" || weight == "bold");
    cell.bold = weight == "bold";
    return cell;
}

std::uint8_t ReadColorPart(Reader& reader) {
    const std::int64_t part = reader.Integer();
    Require(part >= 0 && part <= 255);
    return static_cast<std::uint8_t>(part);
}

// Reads one line, whose first word says what the line contains.
void ReadLine(Reader& reader, RecipeSnapshot& s) {
    const std::string word = reader.Word();
    if (word == "stored") {
        s.origName = reader.Quoted();
    } else if (word == "folder") {
        s.folderId = reader.Integer();
    } else if (word == "style") {
        s.styleId = reader.Integer();
    } else if (word == "created") {
        s.createdWhen = ParseDateText(reader.Quoted());
        Require(s.createdWhen.has_value());
    } else if (word == "swatch") {
        s.swatch.red = ReadColorPart(reader);
        s.swatch.green = ReadColorPart(reader);
        s.swatch.blue = ReadColorPart(reader);
    } else if (word == "option") {
        s.options.push_back(reader.Word());
    } else if (word == "button") {
        s.buttons.push_back(reader.Word());
    } else if (word == "field") {
        RecipeSnapshot::Field field;
        field.name = reader.Word();
        field.text = reader.Quoted();
        field.committed = reader.Quoted();
        field.value = reader.Number();
        s.fields.push_back(std::move(field));
    } else if (word == "grid") {
        s.grids.push_back({reader.Word(), {}});
    } else if (word == "row") {
        Require(!s.grids.empty());
        s.grids.back().rows.emplace_back();
    } else {
        Require(word == "cell" && !s.grids.empty() && !s.grids.back().rows.empty());
        s.grids.back().rows.back().push_back(ReadCell(reader));
    }
    reader.EndLine();
}

// Returns what is between the first line and the checksum; nullopt if either of them is wrong.
std::optional<std::string_view> Body(std::string_view text) {
    const std::size_t endLine = kEndWord.size() + kHashDigits + 1;
    if (!text.starts_with(kFirstLine) || text.size() < kFirstLine.size() + endLine) return std::nullopt;
    const std::string_view hashed = text.substr(0, text.size() - endLine);
    if (text.substr(hashed.size()) != std::string(kEndWord) + HashText(hashed) + "\n") return std::nullopt;
    return hashed.substr(kFirstLine.size());
}

}  // namespace

std::string RecipeSnapshot::Name() const {
    const auto found = std::ranges::find(fields, "txtName", &Field::name);
    return found == fields.end() ? std::string() : found->text;
}

std::string SnapshotText(const RecipeSnapshot& s) {
    Writer writer(kFirstLine);
    writer.Word("stored").Quoted(s.origName).EndLine();
    writer.Word("folder").Word(std::to_string(s.folderId)).EndLine();
    writer.Word("style").Word(std::to_string(s.styleId)).EndLine();
    if (s.createdWhen) writer.Word("created").Quoted(DateText(*s.createdWhen)).EndLine();
    writer.Word("swatch").Number(s.swatch.red).Number(s.swatch.green).Number(s.swatch.blue).EndLine();
    for (const std::string& option : s.options) writer.Word("option").Word(option).EndLine();
    for (const std::string& button : s.buttons) writer.Word("button").Word(button).EndLine();
    for (const RecipeSnapshot::Field& f : s.fields)
        writer.Word("field").Word(f.name).Quoted(f.text).Quoted(f.committed).Number(f.value).EndLine();
    for (const RecipeSnapshot::Rows& grid : s.grids) {
        writer.Word("grid").Word(grid.grid).EndLine();
        for (const std::vector<Cell>& row : grid.rows) {
            writer.Word("row").EndLine();
            for (const Cell& c : row)
                writer.Word("cell")
                    .Quoted(c.text)
                    .Word(ValueWord(c.value))
                    .Word(CheckWord(c.check))
                    .Word(c.bold ? "bold" : "plain")
                    .EndLine();
        }
    }
    return writer.Finish();
}

std::optional<RecipeSnapshot> ReadSnapshot(std::string_view text) {
    const std::optional<std::string_view> body = Body(text);
    if (!body) return std::nullopt;
    RecipeSnapshot snapshot;
    try {
        for (Reader reader(*body); !reader.AtEnd();) ReadLine(reader, snapshot);
    } catch (const BadText&) {
        return std::nullopt;
    }
    return snapshot;
}

}  // namespace tw
