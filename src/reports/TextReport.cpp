#include "reports/TextReport.h"

#include <algorithm>
#include <limits>

#include "values/Text.h"

namespace tw {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

int LengthOf(std::string_view text) {
    return static_cast<int>(std::min<std::size_t>(CodePointCount(text), std::numeric_limits<int>::max()));
}

std::string_view TrimLeft(std::string_view text) {
    return text.substr(std::min(text.find_first_not_of(' '), text.size()));
}

std::string_view TrimRight(std::string_view text) {
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

}  // namespace

// If the width is not a positive number, nothing is wrapped.
TextReport::TextReport(const ReportOptions& options, ReportStream& stream)
    : stream_(stream),
      width_(options.Columns() > 0 ? options.Columns() : std::numeric_limits<int>::max()),
      pageBreak_(options.pageBreak) {}

void TextReport::ReportSeparator() {
    stream_.Write(pageBreak_ ? "\f" : kLineEnd);
    stream_.Write(kLineEnd);
    textColumn_ = 0;
    textCentred_ = false;
}

void TextReport::ReportNewLine() {
    stream_.Write(kLineEnd);
    textColumn_ = 0;
    textCentred_ = false;
}

void TextReport::WriteWrapped(std::string_view text, bool centred) {
    const bool ended = text.ends_with(kLineEnd);
    if (ended) text.remove_suffix(kLineEnd.size());
    for (std::size_t begin = 0;;) {
        const std::size_t end = text.find(kLineEnd, begin);
        WritePiece(text.substr(begin, end - begin), centred);
        if (end == std::string_view::npos) break;
        ReportNewLine();
        begin = end + kLineEnd.size();
    }
    if (ended) ReportNewLine();
}

void TextReport::WritePiece(std::string_view piece, bool centred) {
    while (true) {
        const auto limit = static_cast<std::size_t>(std::max(width_ - textColumn_, 0));
        const std::size_t cut = CodePointOffset(piece, limit);
        if (cut == piece.size()) break;
        // The last blank among the characters up to the limit.
        const std::size_t blank = piece.substr(0, cut).rfind(' ');
        const std::size_t end = blank == std::string_view::npos ? cut : blank;
        Emit(TrimRight(piece.substr(0, end)), centred, true);
        piece = TrimLeft(piece.substr(end));
    }
    Emit(piece, centred, false);
}

void TextReport::Emit(std::string_view text, bool centred, bool endsLine) {
    if (centred != textCentred_ && textColumn_ > 0) ReportNewLine();
    textCentred_ = centred;
    const int length = LengthOf(text);
    // An empty text or a report without a width is not centred.
    const bool limited = width_ != std::numeric_limits<int>::max();
    if (centred && !text.empty() && limited)
        stream_.Write(std::string(static_cast<std::size_t>(std::max((width_ - length) / 2 + 1, 0)), ' '));
    stream_.Write(text);
    if (centred || endsLine) {
        stream_.Write(kLineEnd);
        textColumn_ = 0;
    } else {
        // Only the length of this text, without the text before it on the line: a value after a label may
        // exceed the width by the label's length. It is not corrected, since the files must stay the same to
        // the byte.
        textColumn_ = length;
    }
}

}  // namespace tw
