// The journals that SQLite keeps beside a database while writing it. After a crash, a journal is the only way
// back to the state before.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>

namespace tw {

inline constexpr std::string_view kJournalSuffix = "-journal";

// True if the file at path is a journal with pages to be restored; false if it is missing or cannot be read.
bool HasUnfinishedWork(const std::filesystem::path& path);

// The state of a database as its header describes it.
struct DatabaseState {
    std::uint32_t changeCounter = 0;  // increases with each state
    std::uint32_t pageCount = 0;
    std::int64_t pageSize = 0;  // bytes
};

// Finds a journal with unfinished work, in the database's folder, that may belong to this database under an
// earlier name: the database after which it is named is missing, and the journal was begun in this state or
// the one before. nullopt if there is none.
std::optional<std::filesystem::path> JournalOfAnotherName(const std::filesystem::path& database,
                                                          const DatabaseState& state);

}  // namespace tw
