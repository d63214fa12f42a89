#include "platform/OwnFiles.h"

#include <algorithm>
#include <filesystem>
#include <sys/stat.h>

namespace tw {
namespace {

namespace fs = std::filesystem;

// The number of links that the operating system follows, too.
constexpr int kMostLinks = 40;

bool SameFile(const std::string& a, const std::string& b) {
    if (a == b) return true;
    struct stat first {
    }, second{};
    if (stat(a.c_str(), &first) != 0 || stat(b.c_str(), &second) != 0) return false;
    return first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

// True if path, or a folder above it, is folder.
bool IsWithin(const fs::path& path, const std::string& folder) {
    for (fs::path at = path;; at = at.parent_path()) {
        if (SameFile(at.string(), folder)) return true;
        if (at == at.parent_path()) return false;
    }
}

}  // namespace

std::string FollowLinks(const std::string& path) {
    std::error_code failure;
    fs::path at = fs::absolute(path, failure);
    for (int links = 0; links < kMostLinks && fs::is_symlink(at, failure); ++links) {
        const fs::path target = fs::read_symlink(at, failure);
        if (failure) break;
        at = target.is_absolute() ? target : at.parent_path() / target;
    }
    const fs::path canonical = fs::weakly_canonical(at, failure);
    return failure || canonical.empty() ? at.string() : canonical.string();
}

void OwnFiles::AddDatabase(const std::string& path) {
    AddFile(path, "is the database of the recipes themselves");
    // SQLite names these files after the target of a link, not after the link.
    for (const std::string& name : {path, FollowLinks(path)})
        for (const char* suffix : {"-journal", "-wal", "-shm"})
            AddFile(name + suffix, "belongs to the database of the recipes");
}

void OwnFiles::AddFile(const std::string& path, std::string_view what) {
    entries_.push_back({path, std::string(what), false});
}

void OwnFiles::AddFolder(const std::string& path, std::string_view what) {
    entries_.push_back({path, std::string(what), true});
}

void OwnFiles::RemoveFile(const std::string& path) {
    const auto found =
        std::find_if(entries_.rbegin(), entries_.rend(), [&](const Entry& e) { return e.path == path; });
    if (found != entries_.rend()) entries_.erase(std::next(found).base());
}

void OwnFiles::Check(const std::string& path) const {
    const std::string target = FollowLinks(path);
    for (const Entry& entry : entries_) {
        const std::string own = FollowLinks(entry.path);
        if (entry.isFolder ? IsWithin(target, own) : SameFile(target, own))
            throw OwnFileError(path, entry.what);
    }
}

std::string FileAdvice(const Error& error) {
    const bool isOwn = dynamic_cast<const OwnFileError*>(&error) != nullptr;
    return error.Description() + (isOwn ? " Please choose another name." : "");
}

}  // namespace tw
