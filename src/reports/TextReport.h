// A report as plain UTF-8 text, wrapped to a width in characters.
#pragma once

#include <string>

#include "reports/ReportOptions.h"
#include "reports/ReportWriter.h"

namespace tw {

class TextReport final : public ReportWriter {
  public:
    TextReport(const ReportOptions& options, ReportStream& stream);

    void BeginReport() override {}
    void EndReport() override {}
    void ReportSeparator() override;
    void ReportNewLine() override;
    void WriteTitle(std::string_view text, bool centred) override { WriteWrapped(text, centred); }
    void WriteLabel(std::string_view text, bool centred) override { WriteWrapped(text, centred); }
    void WriteText(std::string_view text, bool centred) override { WriteWrapped(text, centred); }

  private:
    void WriteWrapped(std::string_view text, bool centred);
    void WritePiece(std::string_view piece, bool centred);
    void Emit(std::string_view text, bool centred, bool endsLine);

    ReportStream& stream_;
    int width_;
    bool pageBreak_;
    int textColumn_ = 0;  // characters already on the line
    bool textCentred_ = false;
};

}  // namespace tw
