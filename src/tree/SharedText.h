// A text that never changes and that its copies share: the four entries of one recipe hold its name once, in
// eight bytes each. For one thread.
#pragma once

#include <cstdint>
#include <cstring>
#include <new>
#include <string_view>
#include <utility>

namespace tw {

class SharedText {
  public:
    // The empty text.
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

    // Valid for as long as one of the sharing copies lives.
    std::string_view View() const noexcept {
        if (body_ == nullptr) return {};
        return {reinterpret_cast<const char*>(body_ + 1), body_->size};
    }

  private:
    // The characters stand directly behind it.
    struct Body {
        std::size_t size;
        std::uint32_t owners;
    };
    Body* body_ = nullptr;
};

}  // namespace tw
