#include "platform/SettingsFile.h"

#include <array>
#include <filesystem>
#include <fstream>

#include "platform/OwnFiles.h"

namespace tw {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void Refuse(const std::string& settings, const std::string& what) {
    throw Error("Settings", "'" + settings + "' " + what + ". Please choose another file for the settings.",
                0);
}

bool IsDatabase(const std::string& path) {
    constexpr std::string_view kMagic{"SQLite format 3\0", 16};
    std::array<char, kMagic.size()> front{};
    std::ifstream file(path, std::ios::binary);
    file.read(front.data(), front.size());
    return std::string_view(front.data(), static_cast<std::size_t>(file.gcount())) == kMagic;
}

}  // namespace

void CheckSettingsFile(const std::string& settings, const std::string& database) {
    OwnFiles own;
    own.AddDatabase(database);
    try {
        own.Check(settings);
    } catch (const OwnFileError& error) {
        throw Error(error.Source(), error.Description() + " Please choose another file for the settings.",
                    error.Number());
    }
    std::error_code failure;
    const fs::file_status status = fs::status(settings, failure);
    if (!fs::exists(status)) return;
    if (fs::is_directory(status)) Refuse(settings, "is a folder");
    if (!fs::is_regular_file(status)) Refuse(settings, "is not a file");
    if (IsDatabase(settings)) Refuse(settings, "is a database");
}

}  // namespace tw
