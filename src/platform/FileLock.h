// A lock between processes, on a file. The system takes it away from a process that ends, however it ends, so
// that no lock is ever left behind. The file stays.
#pragma once

#include <string>

#include "platform/Descriptor.h"

namespace tw {

class FileLock {
  public:
    // Makes the file if it is missing, for this user alone. False when it cannot be opened.
    bool Open(const std::string& path);
    // Both are true when this object has the lock. TryTake is false at once while another has it, or when the
    // file is not open. Take waits without end; it is false when the system gives no locks.
    bool TryTake();
    bool Take();
    void Release();

  private:
    Descriptor file_;
};

}  // namespace tw
