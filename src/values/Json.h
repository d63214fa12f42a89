// Values of JSON texts (RFC 8259), read and written without losing the order of members or the difference
// between 1 and 1.0. Files written by hand have comments and commas before a closing bracket: both are
// accepted and reported.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/Error.h"

namespace tw {

struct JsonMember;

class Json {
  public:
    using Array = std::vector<Json>;
    // In the order of the file. A name may occur twice.
    using Object = std::vector<JsonMember>;

    // Null. These are defined where JsonMember is complete.
    Json();
    explicit Json(bool value);
    explicit Json(std::int64_t value);
    // The number has no unit. REQUIRES: value is finite.
    explicit Json(double value);
    explicit Json(std::string value);
    explicit Json(std::string_view value);
    explicit Json(const char* value);
    explicit Json(Array value);
    explicit Json(Object value);
    Json(const Json& other);
    Json(Json&& other) noexcept;
    Json& operator=(const Json& other);
    Json& operator=(Json&& other) noexcept;
    ~Json();

    bool IsNull() const { return std::holds_alternative<std::monostate>(value_); }
    // nullptr if the value is of another kind.
    const bool* AsBool() const;
    const std::int64_t* AsInteger() const;
    const std::string* AsText() const;
    const Array* AsArray() const;
    Array* AsArray();
    const Object* AsObject() const;
    Object* AsObject();
    // Returns the number, which has no unit, an integer or not; nothing for every other kind.
    std::optional<double> AsNumber() const;

    // Returns the value of the first member of that name; nullptr if there is none or this is no object.
    const Json* Find(std::string_view name) const;
    // Appends a member, even if the name exists already. REQUIRES: this is an object or null, which becomes
    // one.
    void Add(std::string_view name, Json value);
    // Appends an element. REQUIRES: this is an array or null, which becomes one.
    void Append(Json value);

    // Equal kinds and values; 1 and 1.0 differ.
    bool operator==(const Json& other) const;

  private:
    friend struct JsonWriting;
    std::variant<std::monostate, bool, std::int64_t, double, std::string, Array, Object> value_;
};

struct JsonMember {
    std::string name;
    Json value;
    bool operator==(const JsonMember&) const = default;
};

// Larger or deeper texts are refused, and so are those of more values: each would take up to 100 bytes.
inline constexpr std::size_t kMostJsonBytes = std::size_t{64} * 1024 * 1024;
inline constexpr std::size_t kMostJsonDepth = 256;
inline constexpr std::size_t kMostJsonValues = 4'000'000;

inline constexpr int kJsonNumber = 1;       // the number of an Error for a text that is not JSON
inline constexpr int kJsonLimitNumber = 2;  // and for one beyond a limit

// A value, and what its text had that RFC 8259 forbids.
struct JsonReading {
    Json value;
    int commentLine = 0;     // the line of the first comment; 0 if there is none
    int spareCommaLine = 0;  // the line of the first comma before a closing bracket; 0 if there is none
    // Why reading ended before the end, with line and column; empty if the whole text was read.
    std::string brokenOff;
};

// Reads UTF-8, with or without a byte order mark. Integers beyond 64 bits and numbers with a point or an
// exponent become doubles. Raises an Error with line and column for a text that is not JSON (comments and
// spare commas are), numbers beyond the range of a double included, or beyond a limit.
JsonReading ParseJson(std::string_view text);
// Reads as ParseJson, but a text that breaks off, or is no JSON from some place on, gives what stands before
// that place: open arrays and objects end there, and an unfinished value is left out. Raises an Error beyond
// a limit, or if not even the first value begins.
JsonReading SalvageJson(std::string_view text);

enum class JsonLayout : std::uint8_t {
    Compact,  // no blanks, one line
    Indented  // a line for each member and element, two blanks a level; no line end behind the last
};
// Returns the text, which ParseJson reads as the same value. A byte of a text that is not valid UTF-8 is
// written as U+FFFD.
std::string DumpJson(const Json& value, JsonLayout layout = JsonLayout::Compact);

}  // namespace tw
