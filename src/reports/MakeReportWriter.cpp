#include "reports/MakeReportWriter.h"

#include "reports/HtmlReport.h"
#include "reports/RichTextReport.h"
#include "reports/TextReport.h"

namespace tw {

std::unique_ptr<ReportWriter> MakeReportWriter(ReportType type, const ReportOptions& options,
                                               ReportStream& stream) {
    switch (type) {
        case ReportType::Html:
            return std::make_unique<HtmlReport>(options, stream);
        case ReportType::RichText:
            return std::make_unique<RichTextReport>(options, stream);
        case ReportType::Text:
            break;
    }
    return std::make_unique<TextReport>(options, stream);
}

}  // namespace tw
