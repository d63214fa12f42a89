#include "shell/Recovery.h"

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sys/stat.h>

#include "platform/TargetFile.h"

namespace tw {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kExtension = ".unsaved";
constexpr std::string_view kUnderWayOnce = ".unsaved.new";  // used by earlier releases
constexpr std::string_view kAside = ".damaged";
// The owner file of a folder: the database's id, a line feed, and the database's path.
constexpr std::string_view kOwnerFile = "database";
// No recovery file is larger than this; a larger file was not written here.
constexpr std::uintmax_t kMostBytes = 64 << 20;

std::optional<std::string> ReadFile(const std::string& path) {
    std::error_code error;
    if (!fs::is_regular_file(path, error)) return std::nullopt;
    const std::uintmax_t size = fs::file_size(path, error);
    if (error || size > kMostBytes) return std::nullopt;
    std::string text(static_cast<std::size_t>(size), '\0');
    std::ifstream stream(path, std::ios::binary);
    if (!stream.read(text.data(), static_cast<std::streamsize>(text.size()))) return std::nullopt;
    return text;
}

// Creates the folder and its missing parents, readable only by this user. False if that failed.
bool MakePrivateFolder(const fs::path& folder) {
    std::error_code error;
    if (fs::is_directory(folder, error)) return true;
    if (folder.has_parent_path() && folder != folder.parent_path() &&
        !MakePrivateFolder(folder.parent_path()))
        return false;
    return mkdir(folder.c_str(), S_IRWXU) == 0 || errno == EEXIST;
}

// Writes a file that only this user can read. False if that failed.
bool WritePrivately(const std::string& path, std::string_view text) {
    try {
        TargetFile(path, {}, TargetFile::Readers::OwnerAlone).Replace(text);
        return true;
    } catch (const Error&) {
        return false;
    }
}

// True for a file whose writing was interrupted by a crash; the file that it was to replace is intact.
bool IsUnderWay(const std::string& path) {
    return path.ends_with(kUnderWay) || path.ends_with(kUnderWayOnce);
}

std::string CanonicalPath(const std::string& path) {
    std::error_code error;
    const fs::path canonical = fs::weakly_canonical(path, error);
    return error ? path : canonical.string();
}

// Returns the paths in folder, sorted by name; none if it is not a folder.
std::vector<std::string> PathsIn(const std::string& folder) {
    std::vector<std::string> paths;
    std::error_code error;
    for (fs::directory_iterator at(folder, error), end; !error && at != end; at.increment(error))
        paths.push_back(at->path().string());
    std::ranges::sort(paths);
    return paths;
}

DateTime LocalTimeOf(const std::string& path) {
    struct stat status {};
    std::tm local{};
    if (stat(path.c_str(), &status) != 0 || !localtime_r(&status.st_mtime, &local)) return {};
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec};
}

}  // namespace

Recovery::Recovery(const std::string& root, const std::string& databasePath, std::string databaseId)
    : root_(root),
      databasePath_(CanonicalPath(databasePath)),
      databaseId_(std::move(databaseId)),
      folder_(FolderOf(root, databasePath)) {}

std::string Recovery::FolderOf(std::string_view root, const std::string& databasePath) {
    return (fs::path(root) / HashText(CanonicalPath(databasePath))).string();
}

bool Recovery::IsOfThis(const std::string& folder) const {
    const std::string owner = ReadFile(folder + "/" + std::string(kOwnerFile)).value_or("");
    const std::size_t line = owner.find('\n');
    if (line == std::string::npos || folder == folder_ || owner.substr(0, line) != databaseId_) return false;
    const std::string path = owner.substr(line + 1);
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    return status.type() == fs::file_type::not_found || fs::equivalent(path, databasePath_, error);
}

void Recovery::TakeFilesFrom(const std::string& folder) {
    // If this fails, the next start tries again.
    if (!MakePrivateFolder(folder_)) return;
    std::error_code error;
    for (const std::string& path : PathsIn(folder)) {
        if (IsUnderWay(path)) Discard(path);
        if (path.ends_with(kExtension)) fs::rename(path, NewFile(), error);
        if (error) return;
    }
    Discard(folder + "/" + std::string(kOwnerFile));
    // A folder that still contains other files remains.
    Discard(folder);
}

FoundRecipes Recovery::Find() {
    FoundRecipes found;
    if (!databaseId_.empty())
        for (const std::string& folder : PathsIn(root_))
            if (IsOfThis(folder)) TakeFilesFrom(folder);
    for (const std::string& path : PathsIn(folder_)) {
        if (IsUnderWay(path)) Discard(path);
        const auto own = [&](const auto& entry) { return entry.second == path; };
        if (!path.ends_with(kExtension) || std::ranges::any_of(files_, own)) continue;
        const std::optional<std::string> text = ReadFile(path);
        std::optional<RecipeSnapshot> snapshot = text ? ReadSnapshot(*text) : std::nullopt;
        if (snapshot)
            found.lost.push_back({path, LocalTimeOf(path), std::move(*snapshot)});
        else
            found.putAside.push_back(PutAside(path));
    }
    std::ranges::stable_sort(found.lost, {}, &LostRecipe::keptWhen);
    return found;
}

std::string Recovery::PutAside(const std::string& file) const {
    std::error_code error;
    std::string name = file + std::string(kAside);
    for (int number = 2; fs::exists(name, error); ++number)
        name = file + std::string(kAside) + std::to_string(number);
    fs::rename(file, name, error);
    return error ? file : name;
}

void Recovery::Discard(const std::string& file) const {
    std::error_code ignored;
    fs::remove(file, ignored);
}

bool Recovery::Keep(const std::string& key, const RecipeSnapshot& snapshot) {
    if (!MakePrivateFolder(folder_)) return false;
    std::error_code error;
    // An earlier release created the folder readable by everyone.
    fs::permissions(folder_, fs::perms::owner_all, error);
    MarkFolder();
    const auto known = files_.find(key);
    const std::string file = known == files_.end() ? NewFile() : known->second;
    if (!WritePrivately(file, SnapshotText(snapshot))) return false;
    files_[key] = file;
    return true;
}

void Recovery::MarkFolder() {
    // Without the owner file, the recovery files are still found by the path of the database.
    if (!marked_ && !databaseId_.empty())
        marked_ = WritePrivately(folder_ + "/" + std::string(kOwnerFile), databaseId_ + "\n" + databasePath_);
}

void Recovery::Forget(const std::string& key) {
    const auto known = files_.find(key);
    if (known == files_.end()) return;
    Discard(known->second);
    files_.erase(known);
}

std::string Recovery::NewFile() const {
    std::error_code error;
    for (int number = 1;; ++number) {
        const fs::path path = fs::path(folder_) / (std::to_string(number) + std::string(kExtension));
        if (!fs::exists(path, error)) return path.string();
    }
}

}  // namespace tw
