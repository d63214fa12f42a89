#include "platform/TargetFile.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <functional>
#include <optional>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include "platform/Descriptor.h"

namespace tw {
namespace {

constexpr mode_t kPermissions = 0777, kWriteBits = 0222, kUsual = 0666, kOwnerAlone = 0600;
constexpr std::size_t kLongestName = 255;  // bytes, the limit of most file systems

[[noreturn]] void Refuse(const std::string& name, const std::string& what, int number) {
    throw Error("TargetFile", "'" + name + "' " + what, number);
}

// Returns the status of a file; nullopt if there is none. A missing file sets errno to 0, any other failure
// leaves its reason there.
std::optional<struct stat> StatusOf(const std::string& path) {
    struct stat status {};
    errno = 0;
    if (stat(path.c_str(), &status) == 0) return status;
    if (errno == ENOENT) errno = 0;
    return std::nullopt;
}

bool IsFileAt(int file, const std::string& path) {
    struct stat open {
    }, there{};
    return fstat(file, &open) == 0 && lstat(path.c_str(), &there) == 0 && open.st_dev == there.st_dev &&
           open.st_ino == there.st_ino;
}

std::string FolderOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? "." : path.substr(0, slash + 1);
}

// The name is fixed, so that the next write to the same target finds what a killed writer left behind.
std::string BesideName(const std::string& path) {
    const std::string folder = FolderOf(path);
    std::string name = "." + path.substr(folder == "." ? 0 : folder.size()) + std::string(kUnderWay);
    if (name.size() > kLongestName)
        name = "." + std::to_string(std::hash<std::string>()(name)) + std::string(kUnderWay);
    return folder + (folder == "." ? "/" : "") + name;
}

// The new file while it is being written; deleted unless PutInPlace succeeded. Every operation returns false
// if it fails, with the reason in errno.
class BesideFile {
  public:
    explicit BesideFile(const std::string& target) : path_(BesideName(target)) {}
    ~BesideFile() {
        if (file_.IsOpen()) unlink(path_.c_str());
    }
    BesideFile(const BesideFile&) = delete;
    BesideFile& operator=(const BesideFile&) = delete;

    // Creates the file and locks it, so that a second writer to the same target can tell a file still being
    // written from the leftover of a killed writer.
    bool Make(mode_t mode) {
        for (int tries = 0; tries < kTries; ++tries) {
            Descriptor file(open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
            if (!file.IsOpen()) {
                if (errno != EEXIST || !RemoveLeftover()) return false;
                continue;
            }
            // A file system without locks refuses them to every writer, so only EWOULDBLOCK means
            // another writer.
            const bool taken = flock(file.Number(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
            if (taken || !IsFileAt(file.Number(), path_)) continue;
            file_ = std::move(file);
            return true;
        }
        errno = EBUSY;
        return false;
    }

    // Copies owner and mode of the file to be replaced, where this user is permitted to.
    void TakeAfter(const struct stat& old) {
        if (fchown(file_.Number(), old.st_uid, old.st_gid) != 0 &&
            fchown(file_.Number(), static_cast<uid_t>(-1), old.st_gid) != 0)
            errno = 0;  // the file then belongs to this user
        if (fchmod(file_.Number(), old.st_mode & kPermissions) != 0) errno = 0;  // a disk without modes
    }

    bool Write(std::string_view text) {
        while (!text.empty()) {
            const ssize_t written = write(file_.Number(), text.data(), text.size());
            if (written < 0 && errno == EINTR) continue;
            if (written == 0) errno = ENOSPC;
            if (written <= 0) return false;
            text.remove_prefix(static_cast<std::size_t>(written));
        }
        return true;
    }

    // Appends all of the file at path.
    bool Copy(const std::string& path) {
        const Descriptor from(open(path.c_str(), O_RDONLY | O_CLOEXEC));
        if (!from.IsOpen()) return false;
        std::array<char, 1 << 16> buffer{};
        for (;;) {
            const ssize_t got = read(from.Number(), buffer.data(), buffer.size());
            if (got < 0 && errno == EINTR) continue;
            if (got <= 0) return got == 0;
            if (!Write({buffer.data(), static_cast<std::size_t>(got)})) return false;
        }
    }

    bool PutInPlace(const std::string& target) {
        // Without the first sync, a loss of power could leave an empty file under the name; without the
        // second, the old file.
        if (!Sync(file_) || rename(path_.c_str(), target.c_str()) != 0) return false;
        file_.Close();
        const Descriptor folder(open(FolderOf(target).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        return !folder.IsOpen() || Sync(folder);
    }

  private:
    static constexpr int kTries = 10;

    // A file system that does not support sync counts as synced: nothing safer is possible.
    static bool Sync(const Descriptor& file) {
        return fsync(file.Number()) == 0 || errno == EINVAL || errno == ENOTSUP;
    }

    // Deletes what a killed writer left behind. False, with the reason in errno, if the file is not this
    // user's regular file or if its writer is still alive.
    bool RemoveLeftover() {
        const Descriptor old(open(path_.c_str(), O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
        if (!old.IsOpen()) return errno == ENOENT;
        struct stat status {};
        if (fstat(old.Number(), &status) != 0) return false;
        if (!S_ISREG(status.st_mode) || status.st_uid != geteuid()) {
            errno = EEXIST;
            return false;
        }
        if (flock(old.Number(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
            errno = EBUSY;
            return false;
        }
        // Since the file was opened, its writer may have put it in place and another writer may have begun.
        return !IsFileAt(old.Number(), path_) || unlink(path_.c_str()) == 0;
    }

    std::string path_;
    Descriptor file_;
};

}  // namespace

TargetFile::TargetFile(const std::string& path, const OwnFiles& own, Readers readers)
    : name_(path), readers_(readers) {
    if (path.empty() || path.find('\0') != std::string::npos) Refuse(path, "is no file name.", ENOENT);
    own.Check(path);
    path_ = FollowLinks(path);
    const std::optional<struct stat> old = StatusOf(path_);
    if (!old && errno != 0)
        Refuse(path, std::string("cannot be written: ") + std::strerror(errno) + ".", errno);
    if (path.back() == '/' || (old && S_ISDIR(old->st_mode))) Refuse(path, "is a folder.", EISDIR);
    if (!old) return;
    // Checked without opening: opening a pipe would wait for its other end.
    if (!S_ISREG(old->st_mode)) Refuse(path, "is not a file.", EINVAL);
    // Both checks are needed: access alone lets an administrator's process write a file that its owner
    // has protected.
    if ((old->st_mode & kWriteBits) == 0 || faccessat(AT_FDCWD, path_.c_str(), W_OK, AT_EACCESS) != 0)
        Refuse(path, "is write-protected.", EACCES);
}

void TargetFile::Replace(std::string_view content) const {
    Write(false, content);
}

void TargetFile::Append(std::string_view content) const {
    Write(true, content);
}

void TargetFile::Write(bool append, std::string_view content) const {
    const std::optional<struct stat> old = StatusOf(path_);
    // Until the new file has the mode of the file it replaces, only its owner may read it: the old one may
    // be private.
    const mode_t mode = old || readers_ == Readers::OwnerAlone ? kOwnerAlone : kUsual;
    BesideFile file(path_);
    bool written = file.Make(mode);
    if (written && old) file.TakeAfter(*old);
    if (written && old && append) written = file.Copy(path_);
    if (written && file.Write(content) && file.PutInPlace(path_)) return;
    const int number = errno;
    Refuse(name_, std::string("cannot be written: ") + std::strerror(number) + ".", number);
}

}  // namespace tw
