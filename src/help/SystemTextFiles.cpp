#include "help/SystemTextFiles.h"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <sstream>
#include <utility>

#include "platform/Error.h"

namespace tw {
namespace {

[[noreturn]] void Refuse(const std::string& file, const char* what) {
    const int number = errno;
    throw Error("SystemTextFiles", "'" + file + "' " + what + ": " + std::strerror(number) + ".", number);
}

}  // namespace

std::string SystemTextFiles::Read(const std::string& file) {
    errno = 0;
    std::ifstream stream(file, std::ios::binary);
    std::ostringstream text;
    // The first byte tells a folder, which opens but cannot be read, from a file; an empty file has none.
    if (stream.peek() != std::ifstream::traits_type::eof()) text << stream.rdbuf();
    if (!stream.is_open() || stream.bad()) Refuse(file, "cannot be read");
    return std::move(text).str();
}

void SystemTextFiles::Write(const std::string& file, std::string_view text) {
    errno = 0;
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    stream.write(text.data(), static_cast<std::streamsize>(text.size()));
    stream.close();
    if (!stream) Refuse(file, "cannot be written");
}

}  // namespace tw
