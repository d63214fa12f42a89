// The port to the dialog in which the brewer says where a file is to be saved.
#pragma once

#include <optional>
#include <string>

namespace tw {

struct SaveFileRequest {
    std::string title;
    std::string extension;  // for a name typed without one, without the dot
    // Kinds of files and their patterns in turn: "Text Files (*.TXT)|*.TXT|All Files (*.*)|*.*||".
    std::string filter;
    std::string name;         // the file to start on; may be empty
    std::string folder = {};  // the folder to start in; the user's documents when it is empty or gone
};

class SaveFilePort {
  public:
    virtual ~SaveFilePort() = default;
    // The path chosen; nothing when it was called off. An existing file has been asked about.
    virtual std::optional<std::string> AskSaveFile(const SaveFileRequest& request) = 0;
};

}  // namespace tw
