#include "platform/FileLock.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>

namespace tw {

bool FileLock::Open(const std::string& path) {
    file_ = Descriptor(open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600));
    return file_.IsOpen();
}

bool FileLock::TryTake() {
    return flock(file_.Number(), LOCK_EX | LOCK_NB) == 0;
}

bool FileLock::Take() {
    int result = 0;
    do result = flock(file_.Number(), LOCK_EX);
    while (result != 0 && errno == EINTR);
    return result == 0;
}

void FileLock::Release() {
    flock(file_.Number(), LOCK_UN);
}

}  // namespace tw
