// The files that the program itself lives on: the database with its journals, the settings, unsaved work.
// Whatever the brewer has written (a report, a PDF file, an export, a picture) asks here first, so that none
// of them ever takes the place of the recipes.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Error.h"

namespace tw {

// The refusal of a file of the program's own.
class OwnFileError : public Error {
  public:
    OwnFileError(const std::string& path, std::string_view what)
        : Error("OwnFiles", "'" + path + "' " + std::string(what) + ".", kNumber) {}
    static constexpr int kNumber = 5;  // SQLite's number for a file in use
};

// A file is the same by any path: through links of both kinds, ".." and other names of its folders.
class OwnFiles {
  public:
    // The file and what the store keeps beside it, there or not.
    void AddDatabase(const std::string& path);
    // what says what it is, as "is the file of the settings".
    void AddFile(const std::string& path, std::string_view what);
    // Everything below the folder, which need not exist yet.
    void AddFolder(const std::string& path, std::string_view what);
    // Takes back the last AddFile of just that path.
    void RemoveFile(const std::string& path);

    // Raises OwnFileError, "'{path}' {what}.", when path is one of them.
    void Check(const std::string& path) const;

  private:
    struct Entry {
        std::string path;
        std::string what;
        bool isFolder = false;
    };
    std::vector<Entry> entries_;
};

// A file counts among the program's own for the time of a scope. REQUIRES: own outlives it.
class FileInUse {
  public:
    FileInUse(OwnFiles& own, std::string path, std::string_view what) : own_(own), path_(std::move(path)) {
        own_.AddFile(path_, what);
    }
    ~FileInUse() { own_.RemoveFile(path_); }
    FileInUse(const FileInUse&) = delete;
    FileInUse& operator=(const FileInUse&) = delete;

  private:
    OwnFiles& own_;
    std::string path_;
};

// The absolute path that path stands for, every link followed, also one whose target is missing.
std::string FollowLinks(const std::string& path);

// What a window says below a message about a file that could not be written: the reason, and for a file of
// the program's own what to do instead.
std::string FileAdvice(const Error& error);

}  // namespace tw
