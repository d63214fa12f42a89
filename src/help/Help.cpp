#include "help/Help.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "platform/Error.h"
#include "store/Database.h"
#include "values/Text.h"

namespace tw {
namespace {

constexpr std::string_view kHomePage = "home.html";
constexpr std::string_view kPageToken = "$START_PAGE";
constexpr std::string_view kShowingTitle = "Error Showing Help";

struct FailureRow {
    int code;
    std::string_view reason;
};

constexpr FailureRow kFailures[] = {
    {0, "Out of Memory"},
    {2, "File or Path Not Found"},
    {3, "File or Path Not Found"},
    {5, "Access Denied"},
    {8, "Out of Memory"},
    {11, "The .EXE File is Invalid"},
    {26, "A Sharing Violation Occurred"},
    {27, "No Program is Associated with this File Extension"},
    {28, "The DDE Operation Failed"},
    {29, "The DDE Operation Failed"},
    {30, "The DDE Operation Failed"},
    {31, "No Program is Associated with this File Extension"},
    {32, "DLL Not Found"},
};

bool IsHomePage(std::string_view page) {
    const std::string_view name = Trim(page);
    return name.empty() || SameName(name, kHomePage);
}

// Returns the page that help.mdb lists for a context; none if there is no row.
std::optional<std::string> PageOf(const std::string& databasePath, std::string_view formName,
                                  std::string_view context) {
    const auto database = Database::OpenDatabase(databasePath, false);
    std::string sql = "SELECT HELP_URL FROM CONTEXT_HELP WHERE FORM_NAME = '";
    sql.append(formName).append("' AND FORM_CONTEXT = '").append(context).append("';");
    const Recordset rows = database->OpenRecordset(sql);
    if (rows.AtEnd()) return std::nullopt;
    return rows.Fields("HELP_URL").Text();
}

}  // namespace

std::string TabContext(int position) {
    return "Tab" + std::to_string(position);
}

std::string_view BrowserFailure(int code) {
    const auto* const row = std::ranges::find(kFailures, code, &FailureRow::code);
    return row == std::end(kFailures) ? "Unknown Error" : row->reason;
}

Help::Help(std::string programFolder, MessagePort& messages, BrowserPort& browser, TextFilePort& files)
    : programFolder_(std::move(programFolder)), messages_(messages), browser_(browser), files_(files) {}

std::string Help::Base() const {
    if (programFolder_.empty() || programFolder_.ends_with('/')) return programFolder_;
    return programFolder_ + "/";
}

void Help::ShowContextHelp(std::string_view formName, std::string_view context) {
    if (formName.empty()) return ShowHelpPage("");
    if (const std::optional<std::string> page = PageOf(DatabasePath(), formName, context))
        ShowHelpPage(*page);
    else
        messages_.ShowMessage("Error Loading Help Topic", "Error: Topic Not Found");
}

void Help::ShowHelpPage(std::string_view page) {
    const std::string pages = Base() + "OnlineHelp/";
    if (IsHomePage(page)) return OpenInBrowser(pages + "index.html");
    const std::string index = pages + "temp_index.html";
    if (WriteHelpIndex(index, page, Base() + "index_template.dat")) OpenInBrowser(index);
}

bool Help::WriteHelpIndex(const std::string& target, std::string_view startPage,
                          const std::string& templateFile) {
    try {
        files_.Write(target, ReplaceAll(files_.Read(templateFile), kPageToken, startPage));
        return true;
    } catch (const Error& error) {
        messages_.ShowMessage(kShowingTitle, "Error Browsing to Help Page: " + error.Description());
        return false;
    }
}

void Help::OpenInBrowser(const std::string& file) {
    const int code = browser_.Open(file);
    if (code >= kOpenedCode) return;
    std::string text = "An error occurred opening the help document " + file + "\r\n";
    messages_.ShowMessage(kShowingTitle, text.append(BrowserFailure(code)));
}

}  // namespace tw
