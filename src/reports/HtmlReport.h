// A report as HTML.
#pragma once

#include <utility>

#include "reports/ReportOptions.h"
#include "reports/ReportWriter.h"

namespace tw {

class HtmlReport final : public ReportWriter {
  public:
    HtmlReport(ReportOptions options, ReportStream& stream) : options_(std::move(options)), stream_(stream) {}

    void BeginReport() override;
    void EndReport() override;
    void ReportSeparator() override;
    void ReportNewLine() override;
    void WriteTitle(std::string_view text, bool centred) override { Write(options_.title, text, centred); }
    void WriteLabel(std::string_view text, bool centred) override { Write(options_.label, text, centred); }
    void WriteText(std::string_view text, bool centred) override { Write(options_.text, text, centred); }

  private:
    void Write(const ReportFont& font, std::string_view text, bool centred);
    void Line(std::string line);

    ReportOptions options_;
    ReportStream& stream_;
};

}  // namespace tw
