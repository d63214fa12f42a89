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
constexpr std::string_view kUnderWayOnce = ".unsaved.new";  // in earlier releases
constexpr std::string_view kAside = ".damaged";
// No recipe is as large; a larger file is none of ours.
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

// Makes the folder, and those above it that are missing, for this user alone.
bool MakePrivateFolder(const fs::path& folder) {
    std::error_code error;
    if (fs::is_directory(folder, error)) return true;
    if (folder.has_parent_path() && folder != folder.parent_path() &&
        !MakePrivateFolder(folder.parent_path()))
        return false;
    return mkdir(folder.c_str(), S_IRWXU) == 0 || errno == EEXIST;
}

DateTime LocalTimeOf(const std::string& path) {
    struct stat status {};
    std::tm local{};
    if (stat(path.c_str(), &status) != 0 || !localtime_r(&status.st_mtime, &local)) return {};
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec};
}

}  // namespace

std::string Recovery::FolderOf(std::string_view root, const std::string& databasePath) {
    std::error_code error;
    const fs::path canonical = fs::weakly_canonical(databasePath, error);
    return (fs::path(root) / HashText(error ? databasePath : canonical.string())).string();
}

FoundRecipes Recovery::Find() {
    FoundRecipes found;
    std::vector<std::string> paths;
    std::error_code error;
    for (fs::directory_iterator at(folder_, error), end; !error && at != end; at.increment(error))
        paths.push_back(at->path().string());
    std::ranges::sort(paths);
    for (const std::string& path : paths) {
        // A crash has ended the writing; the file that it was to replace is whole.
        if (path.ends_with(kUnderWay) || path.ends_with(kUnderWayOnce)) Discard(path);
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
    // An earlier release has made it for everybody to look into.
    fs::permissions(folder_, fs::perms::owner_all, error);
    const auto known = files_.find(key);
    const std::string file = known == files_.end() ? NewFile() : known->second;
    try {
        TargetFile(file, {}, TargetFile::Readers::OwnerAlone).Replace(SnapshotText(snapshot));
    } catch (const Error&) {
        return false;
    }
    files_[key] = file;
    return true;
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
