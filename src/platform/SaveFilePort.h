// The port to the dialog in which the brewer chooses where to save a file.
#pragma once

#include <optional>
#include <string>

namespace tw {

struct SaveFileRequest {
    std::string title;
    std::string extension;  // without the dot; added to a name typed without one
    // Kinds of files, each followed by its patterns: "Text Files (*.TXT)|*.TXT|All Files (*.*)|*.*||".
    std::string filter;
    std::string name;         // the file selected at first; may be empty
    std::string folder = {};  // the folder shown at first; the user's documents if it is empty or missing
};

class SaveFilePort {
  public:
    virtual ~SaveFilePort() = default;
    // Returns the path chosen; nullopt if the brewer cancelled. Replacing an existing file has already
    // been confirmed.
    virtual std::optional<std::string> AskSaveFile(const SaveFileRequest& request) = 0;
};

}  // namespace tw
