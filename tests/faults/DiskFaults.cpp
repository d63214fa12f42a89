// A library for LD_PRELOAD that intercepts a program's calls to the disk. It counts the calls that change
// files below one folder, and at one of them kills the program or makes the call fail:
//     TUNWRIGHT_FAULT_FOLDER  the folder, absolute
//     TUNWRIGHT_FAULT_LOG     a file that gets a line "CALL PATH[ PATH]" for each call before it is made
//     TUNWRIGHT_FAULT_AT      the number of the call, from 1; 0 for no fault
//     TUNWRIGHT_FAULT_HOW     kill: the program ends in the middle of the call, after writing half;
//                             fail: the call fails as on a defective disk;
//                             full: from this call on, every call that needs space fails
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <string>
#include <string_view>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

// Whether a call needs space on the disk.
enum class Room { Takes, TakesNone };

std::string Variable(const char* name) {
    const char* const text = std::getenv(name);
    return text == nullptr ? "" : text;
}

struct Plan {
    std::string folder = Variable("TUNWRIGHT_FAULT_FOLDER");
    std::string log = Variable("TUNWRIGHT_FAULT_LOG");
    std::string how = Variable("TUNWRIGHT_FAULT_HOW");
    long at = std::atol(Variable("TUNWRIGHT_FAULT_AT").c_str());
    long calls = 0;
};

// Created at the first call, since other libraries open files before this one is initialised.
Plan& ThePlan() {
    static Plan plan;
    return plan;
}

template <class Function>
Function Next(const char* name) {
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

std::string PathOf(int file) {
    std::array<char, 4096> path{};
    const std::string link = "/proc/self/fd/" + std::to_string(file);
    const ssize_t length = readlink(link.c_str(), path.data(), path.size());
    return length < 0 ? "" : std::string(path.data(), static_cast<std::size_t>(length));
}

std::string Absolute(const char* path) {
    if (path[0] == '/') return path;
    std::array<char, 4096> folder{};
    return getcwd(folder.data(), folder.size()) == nullptr ? path : std::string(folder.data()) + "/" + path;
}

// Uses system calls directly, so that they are not counted.
void Log(const Plan& plan, const std::string& line) {
    const long file = syscall(SYS_openat, AT_FDCWD, plan.log.c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600);
    if (file < 0) return;
    syscall(SYS_write, file, line.data(), line.size());
    syscall(SYS_close, file);
}

// What happens to a call.
enum class Fate { Goes, Fails, Dies };

Fate FateOf(const char* call, const std::string& path, Room room, const std::string& second = "") {
    Plan& plan = ThePlan();
    const bool below = path.starts_with(plan.folder) &&
                       (path.size() == plan.folder.size() || path[plan.folder.size()] == '/');
    if (plan.folder.empty() || !below) return Fate::Goes;
    const int before = errno;
    const long number = ++plan.calls;
    Log(plan, std::string(call) + " " + path + (second.empty() ? "" : " " + second) + "\n");
    errno = before;
    if (plan.at == 0 || number < plan.at) return Fate::Goes;
    if (plan.how == "full") {
        if (room == Room::TakesNone) return Fate::Goes;
        errno = ENOSPC;
        return Fate::Fails;
    }
    if (number > plan.at) return Fate::Goes;
    if (plan.how == "kill") return Fate::Dies;
    errno = EIO;
    return Fate::Fails;
}

[[noreturn]] void Die() {
    kill(getpid(), SIGKILL);
    for (;;) pause();
}

// For a call that cannot be made in part: ends the program or returns true if the call is to fail.
bool Fails(const char* call, const std::string& path, Room room = Room::TakesNone,
           const std::string& second = "") {
    const Fate fate = FateOf(call, path, room, second);
    if (fate == Fate::Dies) Die();
    return fate == Fate::Fails;
}

template <class Call>
ssize_t Write(int file, std::size_t size, Call call) {
    const Fate fate = FateOf("write", PathOf(file), Room::Takes);
    if (fate == Fate::Fails) return -1;
    if (fate == Fate::Goes) return call(size);
    call(size / 2);
    Die();
}

bool Changes(int flags) {
    return (flags & O_ACCMODE) != O_RDONLY;
}

mode_t ModeOf(int flags, va_list arguments) {
    return (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
}

int Open(const char* name, const char* path, int flags, mode_t mode) {
    if (Changes(flags) &&
        Fails("open", Absolute(path), (flags & O_CREAT) != 0 ? Room::Takes : Room::TakesNone))
        return -1;
    return Next<int (*)(const char*, int, ...)>(name)(path, flags, mode);
}

int OpenAt(const char* name, int folder, const char* path, int flags, mode_t mode) {
    const bool known = folder == AT_FDCWD || path[0] == '/';
    if (known && Changes(flags) &&
        Fails("open", Absolute(path), (flags & O_CREAT) != 0 ? Room::Takes : Room::TakesNone))
        return -1;
    return Next<int (*)(int, const char*, int, ...)>(name)(folder, path, flags, mode);
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = ModeOf(flags, arguments);
    va_end(arguments);
    return Open("open", path, flags, mode);
}

int open64(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = ModeOf(flags, arguments);
    va_end(arguments);
    return Open("open64", path, flags, mode);
}

int openat(int folder, const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = ModeOf(flags, arguments);
    va_end(arguments);
    return OpenAt("openat", folder, path, flags, mode);
}

int openat64(int folder, const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = ModeOf(flags, arguments);
    va_end(arguments);
    return OpenAt("openat64", folder, path, flags, mode);
}

ssize_t write(int file, const void* data, size_t size) {
    return Write(file, size, [&](std::size_t part) { return syscall(SYS_write, file, data, part); });
}

ssize_t pwrite(int file, const void* data, size_t size, off_t at) {
    return Write(file, size, [&](std::size_t part) { return syscall(SYS_pwrite64, file, data, part, at); });
}

ssize_t pwrite64(int file, const void* data, size_t size, off64_t at) {
    return Write(file, size, [&](std::size_t part) { return syscall(SYS_pwrite64, file, data, part, at); });
}

int fsync(int file) {
    return Fails("sync", PathOf(file)) ? -1 : static_cast<int>(syscall(SYS_fsync, file));
}

int fdatasync(int file) {
    return Fails("sync", PathOf(file)) ? -1 : static_cast<int>(syscall(SYS_fdatasync, file));
}

int ftruncate(int file, off_t size) noexcept {
    return Fails("truncate", PathOf(file)) ? -1 : static_cast<int>(syscall(SYS_ftruncate, file, size));
}

int ftruncate64(int file, off64_t size) noexcept {
    return Fails("truncate", PathOf(file)) ? -1 : static_cast<int>(syscall(SYS_ftruncate, file, size));
}

int rename(const char* from, const char* to) noexcept {
    if (Fails("rename", Absolute(from), Room::TakesNone, Absolute(to))) return -1;
    return Next<int (*)(const char*, const char*)>("rename")(from, to);
}

int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) noexcept {
    if (Fails("link", Absolute(to), Room::Takes)) return -1;
    return static_cast<int>(syscall(SYS_linkat, fromFolder, from, toFolder, to, flags));
}

int unlink(const char* path) noexcept {
    return Fails("unlink", Absolute(path)) ? -1 : Next<int (*)(const char*)>("unlink")(path);
}

int remove(const char* path) noexcept {
    return Fails("unlink", Absolute(path)) ? -1 : Next<int (*)(const char*)>("remove")(path);
}

int mkdir(const char* path, mode_t mode) noexcept {
    if (Fails("mkdir", Absolute(path), Room::Takes)) return -1;
    return Next<int (*)(const char*, mode_t)>("mkdir")(path, mode);
}
}
