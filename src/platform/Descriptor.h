// An open file or socket descriptor of the operating system.
#pragma once

#include <unistd.h>
#include <utility>

namespace tw {

// Owns a descriptor and closes it on destruction. A negative number means that there is none.
class Descriptor {
  public:
    explicit Descriptor(int number = -1) : number_(number) {}
    ~Descriptor() { Close(); }
    Descriptor(Descriptor&& other) noexcept : number_(other.Release()) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        Close();
        number_ = other.Release();
        return *this;
    }

    bool IsOpen() const { return number_ >= 0; }
    int Number() const { return number_; }
    // Gives up ownership and returns the descriptor, which the caller must close.
    int Release() { return std::exchange(number_, -1); }
    void Close() {
        if (IsOpen()) close(Release());
    }

  private:
    int number_;
};

}  // namespace tw
