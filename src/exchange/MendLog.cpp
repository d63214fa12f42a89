#include "exchange/MendLog.h"

#include "exchange/ExchangeLimits.h"

namespace tw {

std::size_t CountLineBreaks(std::string_view text) {
    if (text.empty()) return 0;
    // Every line feed, and every carriage return that none follows.
    std::size_t count = text.back() == '\r' ? 1 : 0;
    for (std::size_t i = 0; i + 1 < text.size(); ++i)
        count += static_cast<std::size_t>(text[i] == '\n') |
                 (static_cast<std::size_t>(text[i] == '\r') & static_cast<std::size_t>(text[i + 1] != '\n'));
    return count + (text.back() == '\n' ? 1 : 0);
}

std::size_t MendLog::LineAt(std::size_t offset) {
    if (offset >= counted_)
        line_ += CountLineBreaks(text_.substr(counted_, offset - counted_));
    else
        line_ -= CountLineBreaks(text_.substr(offset, counted_ - offset));
    counted_ = offset;
    return line_;
}

void MendLog::CountFaults(std::size_t count) {
    faults_ += count;
    if (faults_ > kMostFaults)
        RefuseFile(
            "The file has more than 250,000 faults. It is no file with recipes, or it was damaged on its "
            "way: "
            "export or download it again.");
}

bool MendLog::Count(FindingCode code) {
    CountFaults(1);
    return ++ofCode_[static_cast<std::size_t>(code)] <= Findings::kKeptOfOneCode;
}

}  // namespace tw
