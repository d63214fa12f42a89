// The journals that SQLite keeps beside a database while it writes: what a crash leaves of one is the only
// way back to the state before.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>

namespace tw {

inline constexpr std::string_view kJournalSuffix = "-journal";

// Whether that file is a journal that holds pages to be put back. False for none and for one that cannot be
// read.
bool HasUnfinishedWork(const std::filesystem::path& journal);

// What the header of a database says of its state.
struct DatabaseState {
    std::uint32_t changeCounter = 0;  // counts the states
    std::uint32_t pageCount = 0;
    std::int64_t pageSize = 0;  // bytes
};

// A journal with unfinished work in the database's folder whose own database is no longer there, and which
// may be this database's from the time of another name, since it leads back to or from this state. Nothing
// when there is none.
std::optional<std::filesystem::path> JournalOfAnotherName(const std::filesystem::path& database,
                                                          const DatabaseState& state);

}  // namespace tw
