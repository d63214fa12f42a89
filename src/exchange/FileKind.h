// Tells the formats of other brewing programs apart by the first bytes of a file, whatever its name is.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tw {

enum class FileKind : std::uint8_t {
    Other,  // anything else, the program's own exchange files included
    BeerXml,
    BeerXml2Draft,  // the draft of a second version, which nothing here reads
    BeerJson
};

// The key "beerjson" may stand behind comments of any length: give KindOf so many bytes of a file, or all.
inline constexpr std::size_t kBytesForKind = std::size_t{64} * 1024;

// Returns the kind of a file that begins with firstBytes. BeerXML is a text with a record or record set of
// BeerXML as a tag, in any case, within its first 4,096 characters, before any tag of a web page or drawing.
// BeerJSON begins with "{" or a comment, blanks aside, and has a key "beerjson". Byte order marks and UTF-16
// behind one are understood.
FileKind KindOf(std::string_view firstBytes);

}  // namespace tw
