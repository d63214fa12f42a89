#include "exchange/ForeignFileReader.h"

#include <filesystem>
#include <fstream>

#include "exchange/BeerJsonReader.h"
#include "exchange/BeerXmlReader.h"
#include "exchange/ExchangeLimits.h"
#include "exchange/XmlMend.h"
#include "platform/Error.h"

namespace tw {
namespace {

namespace fs = std::filesystem;

// The number of the errors raised here; no other part of the program uses it.
constexpr int kCannotReadNumber = 57;

[[noreturn]] void Refuse(const std::string& path, const std::string& why) {
    throw Error("ForeignFile", "'" + path + "' " + why, kCannotReadNumber);
}

// Opens a regular file; a pipe or a device could wait for ever.
bool Open(std::ifstream& file, const std::string& path) {
    std::error_code failure;
    if (!fs::is_regular_file(path, failure)) return false;
    file.open(path, std::ios::binary);
    return file.is_open();
}

std::string Read(std::ifstream& file, std::size_t most) {
    std::string bytes(most, '\0');
    file.read(bytes.data(), static_cast<std::streamsize>(most));
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return bytes;
}

}  // namespace

FileKind KindOfFile(const std::string& path) {
    std::ifstream file;
    if (!Open(file, path)) return FileKind::Other;
    return KindOf(Read(file, kBytesForKind));
}

std::string ReadForeignBytes(const std::string& path) {
    std::ifstream file;
    if (!Open(file, path)) Refuse(path, "cannot be read.");
    std::error_code failure;
    const std::uintmax_t size = fs::file_size(path, failure);
    if (failure) Refuse(path, "cannot be read.");
    if (size > kMostExchangeBytes)
        Refuse(path, "is larger than 64 MB. Split it into smaller files and import each of them.");
    return Read(file, static_cast<std::size_t>(size));
}

std::optional<ForeignFile> ReadForeignFile(std::string_view bytes) {
    switch (KindOf(bytes.substr(0, kBytesForKind))) {
        case FileKind::Other:
            return std::nullopt;
        case FileKind::BeerXml2Draft:
            throw Error(
                "ForeignFile",
                "This file is written in a draft of BeerXML 2, which cannot be read. Export it from its "
                "program as BeerXML 1.0 or as BeerJSON.",
                kCannotReadNumber);
        case FileKind::BeerXml: {
            ForeignFile file;
            file.format = ExchangeFormat::BeerXml;
            ReadBeerXml(MendXml(bytes, file.findings), file);
            return file;
        }
        case FileKind::BeerJson:
            break;
    }
    ForeignFile file;
    file.format = ExchangeFormat::BeerJson;
    ReadBeerJson(bytes, file);
    return file;
}

}  // namespace tw
