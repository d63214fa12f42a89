// Report files: recipes of the database, by their names, in one file.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Ports.h"
#include "platform/SettingsStore.h"
#include "reports/ReportOptions.h"
#include "reports/ReportUnits.h"
#include "reports/ReportWriter.h"
#include "store/Database.h"

namespace tw {

// A file that a report is written into. What was in it before stays until Close, also when writing fails, for
// the new text goes into a file beside it meanwhile; only a device, or a file in a folder that takes no
// other, is written at once. Appending takes back what it wrote when it fails.
class ReportFile final : public ReportStream {
  public:
    // Raises an error when the file cannot be opened. append adds to what it holds, or makes it.
    ReportFile(std::string path, bool append);
    // Without Close before it nothing has happened.
    ~ReportFile() override;
    ReportFile(const ReportFile&) = delete;
    ReportFile& operator=(const ReportFile&) = delete;

    void Write(std::string_view text) override;
    // Raises an error when the text has not reached the file.
    void Close();

  private:
    bool OpenBeside();
    void TakeBack() const;
    [[noreturn]] static void Raise(int number);

    std::string path_;
    std::string besidePath_;  // empty when the file itself is written
    bool append_;
    bool existed_ = false;
    std::uintmax_t oldSize_ = 0;  // of a file that is appended to
    std::FILE* file_ = nullptr;
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

// Makes the file with the stored options of its type. False when that failed; its box has been shown.
bool CreateReportFile(Database& database, const SettingsStore& store, const ReportRequest& request,
                      MessagePort& messages);

}  // namespace tw
