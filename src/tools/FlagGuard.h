// A flag that keeps an operation from running into itself.
#pragma once

namespace tw {

// Sets a flag for the time of a block; every way out clears it.
class FlagGuard {
  public:
    explicit FlagGuard(bool& flag) : flag_(flag) { flag_ = true; }
    ~FlagGuard() { flag_ = false; }
    FlagGuard(const FlagGuard&) = delete;
    FlagGuard& operator=(const FlagGuard&) = delete;

  private:
    bool& flag_;
};

}  // namespace tw
