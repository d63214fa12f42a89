// The formats of report files: the same titles, labels and texts as plain text, HTML or rich text. Lines end
// with "\r\n".
#pragma once

#include <string_view>

namespace tw {

// Where a report goes.
class ReportStream {
  public:
    virtual ~ReportStream() = default;
    // Raises an error when the text cannot be written.
    virtual void Write(std::string_view text) = 0;
};

class ReportWriter {
  public:
    virtual ~ReportWriter() = default;

    // Before the first recipe, and behind the last.
    virtual void BeginReport() = 0;
    virtual void EndReport() = 0;
    // Between two recipes.
    virtual void ReportSeparator() = 0;
    virtual void ReportNewLine() = 0;
    // In the font and the colours of titles, labels and texts, as far as the format has some. What is centred
    // is a line of its own.
    virtual void WriteTitle(std::string_view text, bool centred) = 0;
    virtual void WriteLabel(std::string_view text, bool centred) = 0;
    virtual void WriteText(std::string_view text, bool centred) = 0;
};

}  // namespace tw
