// Report files: recipes of the database, by their names, in one file.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Ports.h"
#include "platform/SettingsStore.h"
#include "platform/TargetFile.h"
#include "reports/ReportOptions.h"
#include "reports/ReportUnits.h"
#include "reports/ReportWriter.h"
#include "store/Database.h"

namespace tw {

// A file that a report is written into: wholly, or not at all.
class ReportFile final : public ReportStream {
  public:
    // Raises an error for a file that is not to be written. append adds to what it holds, or makes it.
    ReportFile(const std::string& path, bool append, const OwnFiles& own)
        : target_(path, own), append_(append) {}

    void Write(std::string_view text) override { text_ += text; }
    // Raises an error when the text has not reached the file, which is as before then. Without Close nothing
    // has happened.
    void Close();

  private:
    TargetFile target_;
    bool append_;
    std::string text_;
};

// The recipes of these names in their order. A name without a recipe gives nothing but the separator behind
// it. Raises the errors of the database and of the stream.
void WriteReport(Database& database, const std::vector<std::string>& names, const ReportUnits& units,
                 ReportType type, const ReportOptions& options, ReportStream& stream);

// What is to be reported, and how.
struct ReportRequest {
    ReportType type = ReportType::Text;
    std::string path;
    std::vector<std::string> names;
    ReportUnits units;
};

// Makes the file with the stored options of its type. False when that failed, or when it is one of the
// program's own; its box has been shown.
bool CreateReportFile(Database& database, const SettingsStore& store, const ReportRequest& request,
                      const OwnFiles& own, MessagePort& messages);

}  // namespace tw
