#pragma once

#include <memory>

#include "reports/ReportOptions.h"
#include "reports/ReportWriter.h"

namespace tw {

// Creates the writer for reports of that type. stream must outlive the writer.
std::unique_ptr<ReportWriter> MakeReportWriter(ReportType type, const ReportOptions& options,
                                               ReportStream& stream);

}  // namespace tw
