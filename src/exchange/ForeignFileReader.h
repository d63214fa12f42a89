// Reads a file of another brewing program from the disk, whichever of the formats it has.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "exchange/FileKind.h"
#include "exchange/ForeignRecipe.h"

namespace tw {

// Returns the kind of the file at that path; Other if it cannot be read or is no regular file. Reads only its
// beginning.
FileKind KindOfFile(const std::string& path);

// Returns the content of a file. Raises Error if it cannot be read, is no regular file, or is larger than a
// foreign file may be.
std::string ReadForeignBytes(const std::string& path);

// Returns everything that the bytes of a file contain, with the findings of reading it; nullopt if they are
// of neither format. Raises Error if the file exceeds a limit or is of a format that cannot be read.
std::optional<ForeignFile> ReadForeignFile(std::string_view bytes);

}  // namespace tw
