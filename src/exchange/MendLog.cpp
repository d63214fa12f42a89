#include "exchange/MendLog.h"

#include "exchange/ExchangeLimits.h"

namespace tw {

std::size_t CountLineBreaks(std::string_view text) {
    std::size_t count = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool loneReturn = text[i] == '\r' && (i + 1 == text.size() || text[i + 1] != '\n');
        if (text[i] == '\n' || loneReturn) ++count;
    }
    return count;
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
