// Writes report files: recipes of the database, chosen by name, in one file.
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

// The file of a report, written completely or not at all.
class ReportFile final : public ReportStream {
  public:
    // Raises Error if the file must not be written. append: adds to an existing file, or creates it.
    ReportFile(const std::string& path, bool append, const OwnFiles& own)
        : target_(path, own), append_(append) {}

    void Write(std::string_view text) override { text_ += text; }
    // Writes the file. Raises Error if that fails; the file is then as before. Without Close, nothing
    // is written.
    void Close();

  private:
    TargetFile target_;
    bool append_;
    std::string text_;
};

// Writes the recipes with these names, in this order. A name without a recipe writes only the separator that
// follows it. Raises the errors of the database and of the stream.
void WriteReport(Database& database, const std::vector<std::string>& names, const ReportUnits& units,
                 ReportType type, const ReportOptions& options, ReportStream& stream);

// What to report, and how.
struct ReportRequest {
    ReportType type = ReportType::Text;
    std::string path;
    std::vector<std::string> names;
    ReportUnits units;
};

// Creates the report file with the stored options of its type. Returns false if that fails or if the file is
// one of the program's own; the error has then been shown.
bool CreateReportFile(Database& database, const SettingsStore& store, const ReportRequest& request,
                      const OwnFiles& own, MessagePort& messages);

}  // namespace tw
