// What a typed text was read as, and whether an entry was taken. Neither shows anything: whoever asked
// decides whether the brewer hears of a refusal.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/Ports.h"

namespace tw {

// The title of the box for an entry that cannot be read.
inline constexpr std::string_view kInvalidEntry = "Invalid Entry";

// Why an entry was not taken: the box that says so. Without a text there is nothing to say.
struct Refusal {
    std::string_view title = kInvalidEntry;  // a constant
    std::string text;
    bool operator==(const Refusal&) const = default;
};

// Shows the box; none for a refusal without a text.
inline void ShowRefusal(MessagePort& messages, const Refusal& refusal) {
    if (!refusal.text.empty()) messages.ShowMessage(refusal.title, refusal.text);
}

// A value, or why there is none.
template <class T>
class [[nodiscard]] Reading {
  public:
    Reading(T value) : value_(std::move(value)) {}
    Reading(Refusal refusal) : refusal_(std::move(refusal)) {}

    bool Accepted() const { return value_.has_value(); }
    explicit operator bool() const { return Accepted(); }
    // REQUIRES: Accepted().
    const T& operator*() const { return *value_; }
    const T* operator->() const { return &*value_; }
    T ValueOr(T other) const { return value_.value_or(std::move(other)); }
    // REQUIRES: not Accepted().
    const Refusal& Why() const { return refusal_; }

  private:
    std::optional<T> value_;
    Refusal refusal_;
};

// Whether an entry was taken, and if not, why.
class [[nodiscard]] Commit {
  public:
    static Commit Accepted() { return Commit(std::nullopt); }
    static Commit Refused(Refusal refusal) { return Commit(std::move(refusal)); }

    explicit operator bool() const { return !refusal_; }
    // REQUIRES: it was refused.
    const Refusal& Why() const { return *refusal_; }

  private:
    explicit Commit(std::optional<Refusal> refusal) : refusal_(std::move(refusal)) {}
    std::optional<Refusal> refusal_;
};

}  // namespace tw
