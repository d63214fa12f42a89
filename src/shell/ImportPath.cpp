#include "shell/ImportPath.h"

#include <filesystem>

namespace tw {

bool IsFile(std::string_view path) {
    std::error_code ignored;
    return std::filesystem::is_regular_file(path, ignored);
}

std::string_view Unquoted(std::string_view path) {
    if (!path.starts_with('"')) return path;
    path.remove_prefix(1);
    if (path.ends_with('"')) path.remove_suffix(1);
    return path;
}

}  // namespace tw
