#include "values/NumberText.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <iterator>

#include "platform/Error.h"
#include "values/DecimalDigits.h"
#include "values/NumberReader.h"

namespace tw {
namespace {

// Below this every whole number is a double, so that its shortest digits are all its digits.
constexpr double kExactWholeNumbers = 9007199254740992.0;  // 2^53

// Room for the longest text that to_chars writes for a double when it may choose the notation.
constexpr std::size_t kNumberRoom = 32;

// True if the text [begin, end) that to_chars wrote ends with an exponent: "e-07" or "e+123".
bool HasExponent(const char* begin, const char* end) {
    return (end - begin > 4 && end[-4] == 'e') || (end - begin > 5 && end[-5] == 'e');
}

// Writes the number to buffer if to_chars writes it in the form of NumberText, and returns the end; returns
// nullptr otherwise.
char* WriteDirectly(char* buffer, double value) {
    // For a larger number, to_chars writes all digits of the double, not only the shortest ones.
    if (!(std::fabs(value) < kExactWholeNumbers)) return nullptr;
    char* const limit = buffer + kNumberRoom;
    const auto whole = static_cast<std::int64_t>(value);
    if (static_cast<double>(whole) == value) return std::to_chars(buffer, limit, whole).ptr;
    char* const end = std::to_chars(buffer, limit, value).ptr;
    return HasExponent(buffer, end) ? nullptr : end;
}

void AppendDigits(std::string& out, const DecimalDigits& digits) {
    if (digits.IsNegative()) out.push_back('-');
    digits.AppendMagnitude(out, 1, 0);
}

// What one pass over the characters of a number finds.
struct Scan {
    Numeric kind = Numeric::No;
    bool negative = false;
    bool wholePartIsZero = true;
    int digits = 0;  // all of them, leading zeros too
    int places = 0;
    std::uint64_t mantissa = 0;  // meaningful up to kMantissaDigits digits
};

constexpr int kMantissaDigits = 15;

Scan ScanNumber(std::string_view text) {
    Scan scan;
    std::size_t at = 0;
    if (!text.empty() && text[0] == '-') {
        scan.negative = true;
        at = 1;
    }
    bool point = false;
    for (; at < text.size(); ++at) {
        const auto digit = static_cast<unsigned>(text[at]) - static_cast<unsigned>('0');
        if (digit <= 9) {
            scan.mantissa = scan.mantissa * 10 + digit;
            ++scan.digits;
            if (point)
                ++scan.places;
            else if (digit != 0)
                scan.wholePartIsZero = false;
        } else if (text[at] == '.' && !point) {
            point = true;
        } else {
            return scan;
        }
    }
    if (scan.digits > 0) scan.kind = point ? Numeric::Real : Numeric::Whole;
    return scan;
}

// The powers of ten that are needed. A double holds each of them exactly.
constexpr double kPowersOfTen[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                   1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
static_assert(std::size(kPowersOfTen) == kMantissaDigits + 1);

double ReadLong(std::string_view text, const Scan& scan) {
    double read = 0;
    const std::from_chars_result result =
        std::from_chars(text.data(), text.data() + text.size(), read, std::chars_format::fixed);
    if (result.ec != std::errc::result_out_of_range && std::isfinite(read)) return read;
    if (!scan.wholePartIsZero) RaiseOverflow();
    return 0;
}

}  // namespace

NumericText ReadNumeric(std::string_view text) {
    const Scan scan = ScanNumber(text);
    if (scan.kind == Numeric::No) return {};
    if (scan.digits > kMantissaDigits) return {scan.kind, ReadLong(text, scan)};
    // Both numbers are exact, so their quotient is the double nearest to the text.
    const double magnitude = static_cast<double>(scan.mantissa) / kPowersOfTen[scan.places];
    return {scan.kind, scan.negative ? -magnitude : magnitude};
}

std::optional<double> ReadNumber(std::string_view text) {
    const NumericText read = ReadNumeric(text);
    if (read.kind == Numeric::No) return std::nullopt;
    return read.value;
}

std::string NumberText(double value) {
    char buffer[kNumberRoom];
    if (const char* const end = WriteDirectly(buffer, value))
        return std::string(buffer, static_cast<std::size_t>(end - buffer));
    std::string text;
    AppendDigits(text, DecimalDigits(value));
    return text;
}

void AppendNumberText(std::string& out, double value) {
    char buffer[kNumberRoom];
    if (const char* const end = WriteDirectly(buffer, value))
        out.append(buffer, static_cast<std::size_t>(end - buffer));
    else
        AppendDigits(out, DecimalDigits(value));
}

}  // namespace tw
