#include "store/JournalFile.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <string>
#include <system_error>

namespace tw {
namespace {

namespace fs = std::filesystem;

// A journal is a sequence of segments. Each consists of a header, one disk sector long, and records: the
// number of a page, its content before the change, a checksum. Numbers are big-endian.
constexpr std::string_view kMagic{"\xd9\xd5\x05\xf9\x20\xa1\x63\xd7", 8};
constexpr std::size_t kHeaderBytes = 28;
constexpr std::size_t kRecordsAt = 8;
constexpr std::size_t kPageCountAt = 16;
constexpr std::size_t kSectorSizeAt = 20;
constexpr std::size_t kPageSizeAt = 24;
constexpr std::int64_t kNumberBytes = 4;
constexpr std::uint32_t kUpToTheEnd = 0xffffffff;  // as the record count: up to the end of the file
constexpr std::int64_t kCounterInPage = 24;        // offset in the first page of a database

std::uint32_t NumberAt(const unsigned char* bytes) {
    return static_cast<std::uint32_t>(bytes[0]) << 24 | static_cast<std::uint32_t>(bytes[1]) << 16 |
           static_cast<std::uint32_t>(bytes[2]) << 8 | bytes[3];
}

class Journal {
  public:
    explicit Journal(const fs::path& path) : in_(path, std::ios::binary) {
        std::error_code failure;
        const std::uintmax_t size = fs::file_size(path, failure);
        size_ = failure ? 0 : static_cast<std::int64_t>(size);
    }

    // Reads the header of the segment at an offset. False at the end, and if there is no valid segment.
    bool ReadSegment(std::int64_t at) {
        std::array<unsigned char, kHeaderBytes> header{};
        if (!Read(at, header.data(), header.size())) return false;
        const std::string_view front(reinterpret_cast<const char*>(header.data()), kMagic.size());
        if (front != kMagic) return false;
        // SQLite, too, reads the sizes only from the first header.
        if (at == 0) {
            pageCount_ = NumberAt(header.data() + kPageCountAt);
            sectorSize_ = NumberAt(header.data() + kSectorSizeAt);
            pageSize_ = NumberAt(header.data() + kPageSizeAt);
        }
        constexpr std::int64_t kLeast = 32;
        constexpr std::int64_t kMost = 65536;
        if (sectorSize_ < kLeast || sectorSize_ > kMost || pageSize_ < kLeast || pageSize_ > kMost)
            return false;
        first_ = at + sectorSize_;
        const std::int64_t room = (size_ - first_) / RecordBytes();
        const std::uint32_t count = NumberAt(header.data() + kRecordsAt);
        records_ = count == kUpToTheEnd ? room : std::min<std::int64_t>(count, room);
        return true;
    }
    std::int64_t PageSize() const { return pageSize_; }
    // The page count of the database in the state that the journal restores.
    std::uint32_t PageCount() const { return pageCount_; }
    std::int64_t Records() const { return records_; }
    // The offset of the next segment.
    std::int64_t End() const {
        const std::int64_t end = first_ + records_ * RecordBytes();
        return (end + sectorSize_ - 1) / sectorSize_ * sectorSize_;
    }
    // The change counter in the database's first page, if this segment contains that page.
    std::optional<std::uint32_t> ChangeCounter() {
        for (std::int64_t i = 0; i < records_; ++i) {
            const std::int64_t at = first_ + i * RecordBytes();
            std::array<unsigned char, kNumberBytes> number{};
            if (!Read(at, number.data(), number.size())) return std::nullopt;
            if (NumberAt(number.data()) != 1) continue;
            if (!Read(at + kNumberBytes + kCounterInPage, number.data(), number.size())) return std::nullopt;
            return NumberAt(number.data());
        }
        return std::nullopt;
    }

  private:
    std::int64_t RecordBytes() const { return pageSize_ + 2 * kNumberBytes; }
    bool Read(std::int64_t at, unsigned char* to, std::size_t count) {
        in_.clear();
        in_.seekg(at);
        return static_cast<bool>(in_.read(reinterpret_cast<char*>(to), static_cast<std::streamsize>(count)));
    }

    std::ifstream in_;
    std::int64_t size_ = 0;
    std::uint32_t pageCount_ = 0;
    std::int64_t sectorSize_ = 0;
    std::int64_t pageSize_ = 0;
    std::int64_t first_ = 0;  // offset of the first record of the segment
    std::int64_t records_ = 0;
};

bool MayBeOf(const DatabaseState& state, const fs::path& path) {
    Journal journal(path);
    bool hasRecords = false;
    for (std::int64_t at = 0; journal.ReadSegment(at); at = journal.End()) {
        if (journal.PageSize() != state.pageSize) return false;
        hasRecords = hasRecords || journal.Records() > 0;
        // SQLite writes the first page last, with the counter increased by one.
        if (const auto counter = journal.ChangeCounter())
            return *counter == state.changeCounter || *counter + 1 == state.changeCounter;
    }
    // The journal does not contain the first page, so that has not been written and still has the old
    // page count.
    return hasRecords && journal.PageCount() == state.pageCount;
}

bool IsMissing(const fs::path& path) {
    std::error_code failure;
    return fs::symlink_status(path, failure).type() == fs::file_type::not_found;
}

}  // namespace

bool HasUnfinishedWork(const fs::path& path) {
    std::error_code failure;
    if (!fs::is_regular_file(path, failure)) return false;
    Journal journal(path);
    return journal.ReadSegment(0) && journal.Records() > 0;
}

std::optional<fs::path> JournalOfAnotherName(const fs::path& database, const DatabaseState& state) {
    std::error_code failure;
    for (fs::directory_iterator at(database.parent_path(), failure), end; !failure && at != end;
         at.increment(failure)) {
        const std::string path = at->path().string();
        if (!path.ends_with(kJournalSuffix)) continue;
        if (!IsMissing(path.substr(0, path.size() - kJournalSuffix.size()))) continue;
        if (HasUnfinishedWork(path) && MayBeOf(state, path)) return path;
    }
    return std::nullopt;
}

}  // namespace tw
