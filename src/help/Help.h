// Shows the pages of the help in the desktop's browser: the page for a window and a part of it, or a page
// by name.
#pragma once

#include <string>
#include <string_view>

#include "help/HelpPorts.h"
#include "platform/Ports.h"

namespace tw {

// The context of a window without parts of its own.
inline constexpr std::string_view kWholeWindow = "?";
// Returns "Tab{position}", the context of a tab; positions count from 1.
std::string TabContext(int position);

// Returns the reason why a document was not opened, for a code of BrowserPort::Open; for example "Access
// Denied" for 5.
std::string_view BrowserFailure(int code);

class Help {
  public:
    // programFolder contains help.mdb, index_template.dat and the folder OnlineHelp with the pages; empty
    // means the current folder. All references must outlive the object.
    Help(std::string programFolder, MessagePort& messages, BrowserPort& browser, TextFilePort& files);

    // Shows the page for that context of a form, or the home page if formName is empty. Shows a message if
    // there is no page. Raises Error if help.mdb cannot be read, and if context or formName contains a "'".
    // Do not escape them in the query: this error is observable behaviour.
    void ShowContextHelp(std::string_view formName, std::string_view context);
    // Shows a page within the frame that has the contents, or the home page if page is empty. Shows a
    // message if that fails.
    void ShowHelpPage(std::string_view page);
    // Writes the template to target, with every "$START_PAGE" replaced by startPage. Overwrites target.
    // Returns false if that fails, after showing the reason.
    bool WriteHelpIndex(const std::string& target, std::string_view startPage,
                        const std::string& templateFile);

    // Returns the path of help.mdb.
    std::string DatabasePath() const { return Base() + "help.mdb"; }

  private:
    // Returns the program's folder, with a separator at its end unless it is empty.
    std::string Base() const;
    void OpenInBrowser(const std::string& file);

    std::string programFolder_;
    MessagePort& messages_;
    BrowserPort& browser_;
    TextFilePort& files_;
};

}  // namespace tw
