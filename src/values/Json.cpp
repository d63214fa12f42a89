#include "values/Json.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <nlohmann/json.hpp>

#include "values/Utf8.h"

namespace tw {
namespace {

[[noreturn]] void RaiseLimit(const std::string& what) {
    throw Error("JSON", "The text has more than " + what + ".", kJsonLimitNumber);
}

std::string LineAndColumn(std::string_view text, std::size_t offset) {
    const std::string_view before = text.substr(0, std::min(offset, text.size()));
    const auto lineFeed = before.rfind('\n');
    const auto line = std::ranges::count(before, '\n') + 1;
    const auto column = lineFeed == std::string_view::npos ? before.size() : before.size() - lineFeed - 1;
    return "line " + std::to_string(line) + ", column " + std::to_string(std::max<std::size_t>(column, 1));
}

// Replaces comments and commas before a closing bracket by blanks, so that all other bytes keep their place.
class Blanking {
  public:
    explicit Blanking(std::string_view text) : text_(text) {}

    // Fills the two lines of reading. Returns the text to read.
    std::string_view Blank(JsonReading& reading) {
        std::size_t comma = kNone;  // the last token, if it was a comma behind a value
        char last = '[';            // the last byte of the last token
        for (std::size_t at = 0; at < text_.size();) {
            const char c = text_[at];
            if (c == '\n') ++line_;
            const std::size_t end = c == '/' ? EndOfComment(at) : kNone;
            if (end != kNone) {
                if (reading.commentLine == 0) reading.commentLine = line_;
                Erase(at, end);
                at = end;
                continue;
            }
            if (c == '"') {
                comma = kNone;
                last = c;
                at = EndOfText(at);
                if (at <= text_.size()) end_ = at;
                continue;
            }
            if ((c == ']' || c == '}') && comma != kNone) {
                if (reading.spareCommaLine == 0) reading.spareCommaLine = commaLine_;
                Erase(comma, comma + 1);
            }
            if (c == ',') commaLine_ = line_;
            if (!IsSpace(c)) {
                comma = c == ',' && last != '[' && last != '{' && last != ',' ? at : kNone;
                last = c;
                end_ = at + 1;
            }
            ++at;
        }
        return copy_.empty() ? text_ : std::string_view(copy_);
    }

    // Returns the offset behind all but blanks, comments and a text at the end that is not closed.
    std::size_t End() const { return end_; }

  private:
    static constexpr std::size_t kNone = std::string_view::npos;

    static bool IsSpace(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

    std::size_t EndOfComment(std::size_t at) const {
        if (text_.substr(at).starts_with("//")) return std::min(text_.find('\n', at), text_.size());
        if (!text_.substr(at).starts_with("/*")) return kNone;
        const std::size_t end = text_.find("*/", at + 2);
        return end == kNone ? text_.size() : end + 2;
    }
    // Returns an offset beyond the end for a text that is not closed.
    std::size_t EndOfText(std::size_t at) {
        const std::size_t quote = std::min(text_.find('"', ++at), text_.size());
        const std::string_view simple = text_.substr(at, quote - at);
        if (simple.find('\\') == kNone) {
            line_ += static_cast<int>(std::ranges::count(simple, '\n'));
            return quote + 1;
        }
        for (; at < text_.size() && text_[at] != '"'; ++at) {
            if (text_[at] == '\n') ++line_;
            if (text_[at] == '\\') ++at;
        }
        return at + 1;
    }
    void Erase(std::size_t from, std::size_t to) {
        if (copy_.empty()) copy_ = text_;
        for (; from < to; ++from) {
            if (copy_[from] == '\n')
                ++line_;
            else
                copy_[from] = ' ';
        }
    }

    std::string_view text_;
    std::string copy_;
    int line_ = 1;
    int commaLine_ = 1;
    std::size_t end_ = 0;
};

// Builds a value from the events of the library's reader, which raise nothing but an Error of the program.
class Builder {
  public:
    using number_integer_t = nlohmann::json::number_integer_t;
    using number_unsigned_t = nlohmann::json::number_unsigned_t;
    using number_float_t = nlohmann::json::number_float_t;
    using string_t = nlohmann::json::string_t;
    using binary_t = nlohmann::json::binary_t;

    explicit Builder(std::string_view text) : text_(text) {}

    bool null() { return Take(Json()); }
    bool boolean(bool value) { return Take(Json(value)); }
    bool number_integer(number_integer_t value) { return Take(Json(std::int64_t{value})); }
    bool number_unsigned(number_unsigned_t value) {
        if (std::in_range<std::int64_t>(value)) return Take(Json(static_cast<std::int64_t>(value)));
        return Take(Json(static_cast<double>(value)));
    }
    bool number_float(number_float_t value, const string_t& /*text*/) { return Take(Json(value)); }
    bool string(string_t& value) { return Take(Json(std::move(value))); }
    bool binary(binary_t& /*value*/) { return false; }  // JSON texts have none
    bool start_object(std::size_t /*size*/) { return Open(Json(Json::Object())); }
    bool start_array(std::size_t /*size*/) { return Open(Json(Json::Array())); }
    bool key(string_t& name) {
        open_.back().name = std::move(name);
        return true;
    }
    bool end_object() { return Close(); }
    bool end_array() { return Close(); }
    bool parse_error(std::size_t position, const std::string& token,
                     const nlohmann::json::exception& /*error*/) {
        const bool atEnd = position > text_.size();
        const std::string place = LineAndColumn(text_, position);
        why_ = atEnd ? "The text ends too early (" + place + ")."
                     : "The text is not valid at " + place +
                           (token.empty() ? "." : ": \"" + Shown(token) + "\".");
        return false;
    }

    const std::string& Why() const { return why_; }
    bool HasBegun() const { return begun_; }
    // Takes the last value back.
    void DropLast() {
        if (open_.empty()) return;
        if (Json::Array* const array = open_.back().value.AsArray(); array != nullptr && !array->empty())
            array->pop_back();
        if (Json::Object* const object = open_.back().value.AsObject(); object != nullptr && !object->empty())
            object->pop_back();
    }
    // Ends whatever is still open.
    Json Result() {
        while (!open_.empty()) Close();
        return std::move(root_);
    }

  private:
    // An unfinished array or object. An object also has the name of the member that comes next.
    struct Opened {
        Json value;
        std::string name;
    };

    static std::string Shown(std::string_view token) {
        constexpr std::size_t kMost = 20;
        std::string shown;
        for (const char c : token.substr(token.size() - std::min(token.size(), kMost)))
            if (IsAscii(c) && c >= ' ') shown += c;
        return shown;
    }

    bool Take(Json value) {
        begun_ = true;
        if (++count_ > kMostJsonValues) RaiseLimit(std::to_string(kMostJsonValues) + " values");
        Put(std::move(value));
        return true;
    }
    bool Open(Json value) {
        begun_ = true;
        if (++count_ > kMostJsonValues) RaiseLimit(std::to_string(kMostJsonValues) + " values");
        if (open_.size() >= kMostJsonDepth) RaiseLimit(std::to_string(kMostJsonDepth) + " levels");
        open_.push_back({std::move(value), {}});
        return true;
    }
    bool Close() {
        Json value = std::move(open_.back().value);
        open_.pop_back();
        Put(std::move(value));
        return true;
    }
    void Put(Json value) {
        if (open_.empty()) {
            root_ = std::move(value);
            return;
        }
        Opened& parent = open_.back();
        if (Json::Array* const array = parent.value.AsArray())
            array->push_back(std::move(value));
        else
            parent.value.AsObject()->push_back({std::move(parent.name), std::move(value)});
    }

    std::string_view text_;
    Json root_;
    std::vector<Opened> open_;
    std::size_t count_ = 0;
    bool begun_ = false;
    std::string why_;
};

JsonReading Read(std::string_view text, bool salvage) {
    constexpr std::string_view kMark = "\xEF\xBB\xBF";
    if (text.size() > kMostJsonBytes)
        RaiseLimit(std::to_string(kMostJsonBytes / (std::size_t{1024} * 1024)) + " megabytes");
    if (text.starts_with(kMark)) text.remove_prefix(kMark.size());
    JsonReading reading;
    Blanking blanking(text);
    std::string_view plain = blanking.Blank(reading);
    // The library would copy what stands behind, only to describe an error there.
    const bool endsAtOnce = plain.size() == blanking.End();
    plain = plain.substr(0, blanking.End());
    Builder builder(plain);
    if (!nlohmann::json::sax_parse(plain.begin(), plain.end(), &builder)) {
        if (!salvage || !builder.HasBegun()) throw Error("JSON", builder.Why(), kJsonNumber);
        reading.brokenOff = builder.Why();
        // The next digits of a number at the very end may be missing.
        if (endsAtOnce && !plain.empty() && plain.back() >= '0' && plain.back() <= '9') builder.DropLast();
    }
    reading.value = builder.Result();
    return reading;
}

}  // namespace

// Writes a value and all in it; its depth is that of the value.
struct JsonWriting {
    std::string& out;
    JsonLayout layout;

    void Line(std::size_t level) const {
        constexpr std::size_t kBlanks = 2;
        if (layout == JsonLayout::Compact) return;
        out += '\n';
        out.append(level * kBlanks, ' ');
    }
    void Write(std::string_view text) const {
        constexpr std::string_view kDigits = "0123456789abcdef";
        const auto isPlain = [](char c) { return IsAscii(c) && c >= ' ' && c != '"' && c != '\\'; };
        out += '"';
        while (!text.empty()) {
            const auto run = static_cast<std::size_t>(std::ranges::find_if_not(text, isPlain) - text.begin());
            out += text.substr(0, run);
            text.remove_prefix(run);
            if (text.empty()) break;
            const CodePoint front = FrontCodePoint(text);
            const char c = text.front();
            if (front.value == kNoCodePoint) {
                out += "\xEF\xBF\xBD";
            } else if (c == '"' || c == '\\') {
                out += {'\\', c};
            } else if (c == '\n') {
                out += "\\n";
            } else if (front.value < ' ') {
                out += "\\u00";
                out += {kDigits[static_cast<std::size_t>(front.value) / 16],
                        kDigits[static_cast<std::size_t>(front.value) % 16]};
            } else {
                out += text.substr(0, front.bytes);
            }
            text.remove_prefix(front.bytes);
        }
        out += '"';
    }
    void Write(double number) const {
        std::array<char, 32> buffer{};
        const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number).ptr;
        const std::string_view text(buffer.data(), end);
        out += text;
        if (text.find_first_of(".e") == std::string_view::npos) out += ".0";
    }
    // Writes the elements or members of a list between its brackets.
    template <class List, class Each>
    void Write(const List& list, std::string_view brackets, std::size_t level, Each each) const {
        out += brackets.front();
        for (const auto& element : list) {
            if (&element != &list.front()) out += ',';
            Line(level + 1);
            each(element);
        }
        if (!list.empty()) Line(level);
        out += brackets.back();
    }
    void Write(const Json& json, std::size_t level) const {
        if (const bool* const boolean = json.AsBool()) {
            out += *boolean ? "true" : "false";
        } else if (const std::int64_t* const integer = json.AsInteger()) {
            out += std::to_string(*integer);
        } else if (const auto* const number = std::get_if<double>(&json.value_)) {
            Write(*number);
        } else if (const std::string* const text = json.AsText()) {
            Write(std::string_view(*text));
        } else if (const Json::Array* const array = json.AsArray()) {
            Write(*array, "[]", level, [&](const Json& each) { Write(each, level + 1); });
        } else if (const Json::Object* const object = json.AsObject()) {
            Write(*object, "{}", level, [&](const JsonMember& each) {
                Write(std::string_view(each.name));
                out += layout == JsonLayout::Compact ? ":" : ": ";
                Write(each.value, level + 1);
            });
        } else {
            out += "null";
        }
    }
};

Json::Json() = default;
Json::Json(bool value) : value_(value) {}
Json::Json(std::int64_t value) : value_(value) {}
Json::Json(double value) : value_(value) {}
Json::Json(std::string value) : value_(std::move(value)) {}
Json::Json(std::string_view value) : value_(std::string(value)) {}
Json::Json(const char* value) : value_(std::string(value)) {}
Json::Json(Array value) : value_(std::move(value)) {}
Json::Json(Object value) : value_(std::move(value)) {}
Json::Json(const Json& other) = default;
Json::Json(Json&& other) noexcept = default;
Json& Json::operator=(const Json& other) = default;
Json& Json::operator=(Json&& other) noexcept = default;
Json::~Json() = default;

const bool* Json::AsBool() const {
    return std::get_if<bool>(&value_);
}

const std::int64_t* Json::AsInteger() const {
    return std::get_if<std::int64_t>(&value_);
}

const std::string* Json::AsText() const {
    return std::get_if<std::string>(&value_);
}

const Json::Array* Json::AsArray() const {
    return std::get_if<Array>(&value_);
}

Json::Array* Json::AsArray() {
    return std::get_if<Array>(&value_);
}

const Json::Object* Json::AsObject() const {
    return std::get_if<Object>(&value_);
}

Json::Object* Json::AsObject() {
    return std::get_if<Object>(&value_);
}

std::optional<double> Json::AsNumber() const {
    if (const auto* const number = std::get_if<double>(&value_)) return *number;
    if (const std::int64_t* const integer = AsInteger()) return static_cast<double>(*integer);
    return std::nullopt;
}

const Json* Json::Find(std::string_view name) const {
    const Object* const members = AsObject();
    if (members == nullptr) return nullptr;
    const auto found = std::ranges::find(*members, name, &JsonMember::name);
    return found == members->end() ? nullptr : &found->value;
}

void Json::Add(std::string_view name, Json value) {
    if (IsNull()) value_ = Object();
    std::get<Object>(value_).push_back({std::string(name), std::move(value)});
}

void Json::Append(Json value) {
    if (IsNull()) value_ = Array();
    std::get<Array>(value_).push_back(std::move(value));
}

bool Json::operator==(const Json& other) const {
    return value_ == other.value_;
}

JsonReading ParseJson(std::string_view text) {
    return Read(text, false);
}

JsonReading SalvageJson(std::string_view text) {
    return Read(text, true);
}

std::string DumpJson(const Json& value, JsonLayout layout) {
    std::string out;
    JsonWriting{out, layout}.Write(value, 0);
    return out;
}

}  // namespace tw
