// The files that the program itself depends on: the database with its journals, the settings, unsaved work.
// Every file that the brewer asks for (a report, a PDF file, an export, a picture) is checked here before it
// is written, so that it can never overwrite one of them.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Error.h"

namespace tw {

// Raised when one of the program's own files would be overwritten.
class OwnFileError : public Error {
  public:
    OwnFileError(const std::string& path, std::string_view what)
        : Error("OwnFiles", "'" + path + "' " + std::string(what) + ".", kNumber) {}
    static constexpr int kNumber = 5;  // SQLite's number for a file in use
};

// The set of the program's own files. A file is recognised by any path that leads to it: through symbolic or
// hard links, through "..", and through other names of its folders.
class OwnFiles {
  public:
    // Adds the file and the journal files that SQLite keeps beside it, whether they exist or not.
    void AddDatabase(const std::string& path);
    // Adds one file. what completes the sentence "'{path}' ... .", as in "is the file of the settings".
    void AddFile(const std::string& path, std::string_view what);
    // Adds everything below the folder, which need not exist yet.
    void AddFolder(const std::string& path, std::string_view what);
    // Undoes the latest AddFile of exactly that path.
    void RemoveFile(const std::string& path);

    // Raises OwnFileError, "'{path}' {what}.", if path is one of these files.
    void Check(const std::string& path) const;

  private:
    struct Entry {
        std::string path;
        std::string what;
        bool isFolder = false;
    };
    std::vector<Entry> entries_;
};

// Adds a file to the program's own files until the end of a scope. REQUIRES: own outlives it.
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

// Returns the absolute path to which path leads after following every link, even one whose target is missing.
std::string FollowLinks(const std::string& path);

// Returns the text below a message about a file that could not be written: the reason and, for one of the
// program's own files, what to do instead.
std::string FileAdvice(const Error& error);

}  // namespace tw
