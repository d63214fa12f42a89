#include "reports/ReportFile.h"

#include "platform/Error.h"

namespace tw {

void ReportFile::Close() {
    if (append_)
        target_.Append(text_);
    else
        target_.Replace(text_);
}

bool CreateReportFile(Database& database, const SettingsStore& store, const ReportRequest& request,
                      const OwnFiles& own, MessagePort& messages) {
    const ReportOptions options = LoadReportOptions(store, request.type);
    try {
        const bool append = request.type == ReportType::Text && options.append;
        ReportFile file(request.path, append, own);
        WriteReport(database, request.names, request.units, request.type, options, file);
        file.Close();
        return true;
    } catch (const Error& error) {
        messages.ShowMessageWithAdvice("Error", "Could not create report file \"" + request.path + "\"",
                                       FileAdvice(error));
        return false;
    }
}

}  // namespace tw
