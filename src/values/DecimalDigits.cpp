#include "values/DecimalDigits.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace tw {

DecimalDigits::DecimalDigits(double value) : negative_(std::signbit(value)) {
    char buffer[32];
    const char* const end =
        std::to_chars(buffer, buffer + sizeof buffer, std::fabs(value), std::chars_format::scientific).ptr;
    const char* at = buffer;
    for (; at < end && *at != 'e'; ++at) {
        if (*at != '.' && count_ < kMostDigits) digits_[count_++] = *at;
    }
    const char* exponent = at + 1;
    if (exponent < end && *exponent == '+') ++exponent;
    if (exponent < end) std::from_chars(exponent, end, point_);
    ++point_;
    DropTrailingZeros();
}

void DecimalDigits::DropTrailingZeros() {
    while (count_ > 0 && digits_[count_ - 1] == '0') --count_;
    if (count_ == 0) point_ = 0;
}

bool DecimalDigits::RoundTo(int places) {
    const long long keep = static_cast<long long>(point_) + places;
    if (keep >= count_) return false;
    if (keep < 0) {
        count_ = point_ = 0;
        return true;
    }
    const bool up = digits_[keep] >= '5';
    count_ = static_cast<int>(keep);
    if (up) {
        while (count_ > 0 && digits_[count_ - 1] == '9') --count_;
        if (count_ > 0) {
            ++digits_[count_ - 1];
        } else {
            digits_[count_++] = '1';
            ++point_;
        }
    }
    DropTrailingZeros();
    return true;
}

void DecimalDigits::AppendMagnitude(std::string& out, int minWhole, int minPlaces) const {
    const int whole = std::max(point_, 0);
    if (whole < minWhole) out.append(static_cast<std::size_t>(minWhole - whole), '0');
    const int shownWhole = std::min(whole, count_);
    out.append(digits_, static_cast<std::size_t>(shownWhole));
    out.append(static_cast<std::size_t>(whole - shownWhole), '0');

    const int places = std::max(count_ - point_, 0);
    if (places == 0 && minPlaces == 0) return;
    out.push_back('.');
    int written = 0;
    if (count_ > 0 && places > 0) {
        const int leadingZeros = std::max(-point_, 0);
        out.append(static_cast<std::size_t>(leadingZeros), '0');
        out.append(digits_ + shownWhole, static_cast<std::size_t>(count_ - shownWhole));
        written = leadingZeros + count_ - shownWhole;
    }
    if (written < minPlaces) out.append(static_cast<std::size_t>(minPlaces - written), '0');
}

}  // namespace tw
