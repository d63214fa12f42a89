// An immutable text that is shared by its copies: the four entries of one recipe store its name once, plus
// eight bytes each. Not thread-safe.
#pragma once

#include <cstdint>
#include <cstring>
#include <new>
#include <string_view>
#include <utility>

namespace tw {

class SharedText {
  public:
    // Creates the empty text.
    SharedText() noexcept = default;
    explicit SharedText(std::string_view text) {
        if (text.empty()) return;
        body_ = new (operator new(sizeof(Body) + text.size())) Body{text.size(), 1};
        std::memcpy(body_ + 1, text.data(), text.size());
    }
    SharedText(const SharedText& other) noexcept : body_(other.body_) {
        if (body_ != nullptr) ++body_->owners;
    }
    SharedText(SharedText&& other) noexcept : body_(std::exchange(other.body_, nullptr)) {}
    SharedText& operator=(SharedText other) noexcept {
        std::swap(body_, other.body_);
        return *this;
    }
    ~SharedText() {
        if (body_ != nullptr && --body_->owners == 0) operator delete(body_);
    }

    // Valid as long as one of the copies exists.
    std::string_view View() const noexcept {
        if (body_ == nullptr) return {};
        return {reinterpret_cast<const char*>(body_ + 1), body_->size};
    }

  private:
    // The header of the shared memory; the characters follow it.
    struct Body {
        std::size_t size;
        std::uint32_t owners;
    };
    Body* body_ = nullptr;
};

}  // namespace tw
