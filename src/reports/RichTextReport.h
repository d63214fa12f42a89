// A report as rich text (RTF).
#pragma once

#include <utility>

#include "reports/ReportOptions.h"
#include "reports/ReportWriter.h"

namespace tw {

class RichTextReport final : public ReportWriter {
  public:
    RichTextReport(ReportOptions options, ReportStream& stream)
        : options_(std::move(options)), stream_(stream) {}

    void BeginReport() override;
    void EndReport() override;
    void ReportSeparator() override;
    void ReportNewLine() override;
    void WriteTitle(std::string_view text, bool centred) override;
    void WriteLabel(std::string_view text, bool centred) override;
    void WriteText(std::string_view text, bool centred) override;

  private:
    void Write(const ReportFont& font, std::string_view colors, std::string_view text, bool centred);
    void Line(std::string line);

    ReportOptions options_;
    ReportStream& stream_;
};

}  // namespace tw
