// A lock between processes, held on a file. The system releases the lock of a process that ends, however it
// ends, so that no stale lock is ever left behind. The file itself stays.
#pragma once

#include <string>

#include "platform/Descriptor.h"

namespace tw {

class FileLock {
  public:
    // Creates the file if it is missing, accessible to this user only. False if it cannot be opened.
    bool Open(const std::string& path);
    // Returns true if this object now holds the lock; false at once if another holds it or if no file
    // is open.
    bool TryTake();
    // Waits for the lock without a time limit. False if the system cannot lock the file.
    bool Take();
    void Release();

  private:
    Descriptor file_;
};

}  // namespace tw
