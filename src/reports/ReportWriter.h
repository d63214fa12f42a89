// Writers for the formats of report files: plain text, HTML and rich text. Lines end with "\r\n".
#pragma once

#include <string_view>

namespace tw {

// The destination of a report.
class ReportStream {
  public:
    virtual ~ReportStream() = default;
    // Raises Error if the text cannot be written.
    virtual void Write(std::string_view text) = 0;
};

class ReportWriter {
  public:
    virtual ~ReportWriter() = default;

    // Called before the first recipe and after the last.
    virtual void BeginReport() = 0;
    virtual void EndReport() = 0;
    // Called between two recipes.
    virtual void ReportSeparator() = 0;
    virtual void ReportNewLine() = 0;
    // Each writes text in the font and colours of its kind if the format has them. A centred text becomes a
    // line of its own.
    virtual void WriteTitle(std::string_view text, bool centred) = 0;
    virtual void WriteLabel(std::string_view text, bool centred) = 0;
    virtual void WriteText(std::string_view text, bool centred) = 0;
};

}  // namespace tw
