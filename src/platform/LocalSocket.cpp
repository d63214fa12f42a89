#include "platform/LocalSocket.h"

#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/un.h>

namespace tw {
namespace {

constexpr int kBacklog = 128;
constexpr unsigned kOthers = 077;

std::string Variable(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

bool IsOwn(const Descriptor& folder, struct stat& info) {
    return folder.IsOpen() && fstat(folder.Number(), &info) == 0 && info.st_uid == geteuid();
}

// Returns the folder "tunwright" below parent, creating it if needed; empty if it belongs to another user or
// cannot be created.
std::string PrivateFolderIn(const std::string& parent) {
    struct stat info {};
    if (!parent.starts_with('/') || !IsOwn(OpenFolder(parent), info)) return {};
    std::string path = parent + "/tunwright";
    mkdir(path.c_str(), 0700);
    const Descriptor folder(open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (!IsOwn(folder, info)) return {};
    if ((info.st_mode & kOthers) != 0 && fchmod(folder.Number(), 0700) != 0) return {};
    return path;
}

std::string CacheFolder() {
    std::string path = Variable("XDG_CACHE_HOME");
    if (!path.starts_with('/')) path = Variable("HOME") + "/.cache";
    std::error_code ignored;
    if (path.starts_with('/')) std::filesystem::create_directories(path, ignored);
    return path;
}

// False if the path is too long for a socket address.
bool MakeAddress(const Descriptor& folder, std::string_view name, sockaddr_un& address) {
    std::string path = "/proc/self/fd/" + std::to_string(folder.Number()) + "/";
    path += name;
    if (path.size() >= sizeof address.sun_path) return false;
    address = {};
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
    return true;
}

const sockaddr* AsAddress(const sockaddr_un& address) {
    return reinterpret_cast<const sockaddr*>(&address);
}

}  // namespace

std::string RuntimeFolder() {
    const std::string path = PrivateFolderIn(Variable("XDG_RUNTIME_DIR"));
    return path.empty() ? PrivateFolderIn(CacheFolder()) : path;
}

Descriptor OpenFolder(const std::string& path) {
    return Descriptor(open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

Descriptor ListenAt(const Descriptor& folder, std::string_view name) {
    sockaddr_un address{};
    if (!MakeAddress(folder, name, address)) return Descriptor();
    unlinkat(folder.Number(), std::string(name).c_str(), 0);
    Descriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    if (bind(socket.Number(), AsAddress(address), sizeof address) != 0 ||
        listen(socket.Number(), kBacklog) != 0)
        socket.Close();
    return socket;
}

Descriptor ConnectTo(const Descriptor& folder, std::string_view name, int timeoutMilliseconds) {
    sockaddr_un address{};
    if (!MakeAddress(folder, name, address)) return Descriptor();
    Descriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    // A timeout of 0 would mean to wait forever.
    const int milliseconds = timeoutMilliseconds > 0 ? timeoutMilliseconds : 1;
    const timeval limit{milliseconds / 1000, milliseconds % 1000 * 1000L};
    setsockopt(socket.Number(), SOL_SOCKET, SO_SNDTIMEO, &limit, sizeof limit);
    if (connect(socket.Number(), AsAddress(address), sizeof address) != 0) socket.Close();
    return socket;
}

bool IsSameUser(int socket) {
    ucred other{};
    socklen_t size = sizeof other;
    return getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &other, &size) == 0 && other.uid == geteuid();
}

}  // namespace tw
