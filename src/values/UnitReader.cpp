#include "values/UnitReader.h"

#include "values/QuantityParsers.h"
#include "values/Text.h"

namespace tw {

UpperText::UpperText(std::string_view text) {
    text = Trim(text);
    unsigned char all = 0;
    if (text.size() <= kRoom) {
        for (std::size_t i = 0; i < text.size(); ++i) {
            const auto c = static_cast<unsigned char>(text[i]);
            all = static_cast<unsigned char>(all | c);
            room_[i] = static_cast<char>(c - (c >= 'a' && c <= 'z' ? 'a' - 'A' : 0));
        }
        view_ = std::string_view(room_, text.size());
    }
    if (text.size() > kRoom || all >= 0x80) {
        long_ = Upper(text);
        view_ = long_;
    }
}

UnitReader::UnitReader(std::string_view text, NumberForm form) : upper_(text), rest_(upper_.View()) {
    const std::string_view token = GetToken(rest_);
    number_ = form == NumberForm::Mixed ? ParseMixedNumber(token, rest_) : ParseReal(token);
    if (number_) units_ = UnitsOf(rest_);
}

bool UnitReader::NamesBehind(bool (*isOptional)(std::string_view), Unit unit) const {
    std::string_view behind = rest_;
    const std::string_view word = GetToken(behind);
    if (isOptional(word)) return UnitsOf(behind).Has(unit);
    // Any other word goes back to the front of the rest, with a blank behind it. If more text follows, the
    // whole is none of these units' words, which hold no blank; if not, it is the word itself, without a "~"
    // that GetToken has dropped.
    return behind.empty() && UnitsOf(word).Has(unit);
}

}  // namespace tw
