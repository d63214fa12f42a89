// A file that the program writes. The one way in which files come onto the disk, so that a crash, a full disk
// or a loss of power leaves the old file or the new one, whole, and never a part of one under its name.
#pragma once

#include <string>
#include <string_view>

#include "platform/OwnFiles.h"

namespace tw {

// The end of the name of a file under way. What a killed program has left of one is written over by the next
// write of the same file; it is hidden, and nothing else reads it.
inline constexpr std::string_view kUnderWay = ".tunwright.new";

class TargetFile {
  public:
    // Who may read a file that is made anew. An older one keeps its mode.
    enum class Readers { AsUsual, OwnerAlone };

    // Changes nothing on the disk. A link is followed and stays one. Raises OwnFileError for a file of the
    // program's own, and an Error that names the file for one that is not to be written: an empty name, a
    // folder, a device or pipe, a file that is write-protected.
    TargetFile(const std::string& path, const OwnFiles& own, Readers readers = Readers::AsUsual);

    // As it was given.
    const std::string& Name() const { return name_; }
    // Behind all links.
    const std::string& Path() const { return path_; }

    // Both write a file beside the old one, bring it onto the disk and then give it the name. Raise an Error,
    // "'{name}' cannot be written: {reason}.", with the number of the system; the old file, or none, is there
    // then, unless the folder alone could not be brought onto the disk.
    void Replace(std::string_view content) const;
    // Adds to what the file holds; to nothing when it is missing.
    void Append(std::string_view content) const;

  private:
    void Write(bool append, std::string_view content) const;

    std::string name_;
    std::string path_;
    Readers readers_;
};

}  // namespace tw
