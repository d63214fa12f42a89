#include "help/SystemTextFiles.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <sstream>
#include <utility>

#include "platform/Error.h"
#include "platform/TargetFile.h"

namespace tw {
namespace {

[[noreturn]] void RefuseToRead(const std::string& file) {
    const int number = errno;
    throw Error("SystemTextFiles", "'" + file + "' cannot be read: " + std::strerror(number) + ".", number);
}

}  // namespace

std::string SystemTextFiles::Read(const std::string& file) {
    errno = 0;
    std::ifstream stream(file, std::ios::binary);
    std::ostringstream text;
    // A folder can be opened but not read; reading the first byte detects it. An empty file has none.
    if (stream.peek() != std::ifstream::traits_type::eof()) text << stream.rdbuf();
    if (!stream.is_open() || stream.bad()) RefuseToRead(file);
    return std::move(text).str();
}

void SystemTextFiles::Write(const std::string& file, std::string_view text) {
    TargetFile(file, own_).Replace(text);
}

}  // namespace tw
