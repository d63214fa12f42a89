// The pages of the help, shown by the desktop's browser: by the window and the place in it that asks, or by
// their names.
#pragma once

#include <string>
#include <string_view>

#include "help/HelpPorts.h"
#include "platform/Ports.h"

namespace tw {

// The context of a window that is not divided further.
inline constexpr std::string_view kWholeWindow = "?";
// "Tab{position}", the context of a tab; positions count from 1.
std::string TabContext(int position);

// Why a document was not opened, by the code of BrowserPort::Open: "Access Denied" for 5.
std::string_view BrowserFailure(int code);

class Help {
  public:
    // programFolder holds help.mdb, index_template.dat and the folder OnlineHelp with the pages; an empty one
    // is the present folder. All references must outlive the object.
    Help(std::string programFolder, MessagePort& messages, BrowserPort& browser, TextFilePort& files);

    // The page of that context of a form; a box says so when there is none. The home page for an empty form.
    // Raises Error when help.mdb cannot be read, and for a context or form with a "'" in it, which goes into
    // the query as it stands, on purpose.
    void ShowContextHelp(std::string_view formName, std::string_view context);
    // A page within the frame of the contents; the home page for an empty name. What goes wrong is shown.
    void ShowHelpPage(std::string_view page);
    // Writes the template over target, with startPage for each "$START_PAGE". False when that fails; the
    // reason has been shown.
    bool WriteHelpIndex(const std::string& target, std::string_view startPage,
                        const std::string& templateFile);

    // help.mdb.
    std::string DatabasePath() const { return Base() + "help.mdb"; }

  private:
    // The program's folder with a separator at its end.
    std::string Base() const;
    void OpenInBrowser(const std::string& file);

    std::string programFolder_;
    MessagePort& messages_;
    BrowserPort& browser_;
    TextFilePort& files_;
};

}  // namespace tw
