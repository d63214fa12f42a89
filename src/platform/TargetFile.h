// A file that the program writes. Every file except databases and settings is written here, so that after a
// crash, a full disk or a loss of power the old file or the new one is there, complete, and never a part of
// one under its name.
#pragma once

#include <string>
#include <string_view>

#include "platform/OwnFiles.h"

namespace tw {

// The suffix of a file that is being written. A leftover of a killed program is replaced by the next write to
// the same target; it is hidden, and nothing else reads it.
inline constexpr std::string_view kUnderWay = ".tunwright.new";

class TargetFile {
  public:
    // Who may read a newly created file. An existing file keeps its mode.
    enum class Readers { AsUsual, OwnerAlone };

    // Changes nothing on the disk. A symbolic link is followed and remains a link. Raises OwnFileError for
    // one of the program's own files, and an Error that names the file if it cannot be written: an empty
    // name, a folder, a device or pipe, a write-protected file.
    TargetFile(const std::string& path, const OwnFiles& own, Readers readers = Readers::AsUsual);

    // The path as given to the constructor.
    const std::string& Name() const { return name_; }
    // The absolute path, with all links followed.
    const std::string& Path() const { return path_; }

    // Replaces the content, creating the file if it is missing: writes a new file beside the old one,
    // syncs it to the disk, then renames it. Raises Error, "'{name}' cannot be written: {reason}.", with
    // the system's error number; the old file (or none) is then still there, unless only the sync of the
    // folder failed.
    void Replace(std::string_view content) const;
    // Appends to the content, creating the file if it is missing; otherwise as Replace.
    void Append(std::string_view content) const;

  private:
    void Write(bool append, std::string_view content) const;

    std::string name_;
    std::string path_;
    Readers readers_;
};

}  // namespace tw
