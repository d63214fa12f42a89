// The result of reading a typed text, and of committing an entry. Neither shows a message: the caller decides
// whether the brewer sees a refusal.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/Ports.h"

namespace tw {

// The title of the box for an entry that cannot be read.
inline constexpr std::string_view kInvalidEntry = "Invalid Entry";

// Why an entry was refused, as a message box says it. With an empty text no box is shown.
struct Refusal {
    std::string_view title = kInvalidEntry;  // must be a constant
    std::string text;
    // What would be accepted, for one more line of the box; may be empty.
    std::string advice = {};
    bool operator==(const Refusal&) const = default;
};

// Returns the advice "For example 5 gal, 20 L". examples are separated by ", ".
inline std::string ForExample(std::string_view examples) {
    return "For example " + std::string(examples);
}

// Shows the box, unless the refusal has no text.
inline void ShowRefusal(MessagePort& messages, const Refusal& refusal) {
    if (!refusal.text.empty()) messages.ShowMessageWithAdvice(refusal.title, refusal.text, refusal.advice);
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

// Whether an entry was accepted, and if not, why.
class [[nodiscard]] Commit {
  public:
    static Commit Accepted() { return Commit(std::nullopt); }
    static Commit Refused(Refusal refusal) { return Commit(std::move(refusal)); }

    explicit operator bool() const { return !refusal_; }
    // REQUIRES: the entry was refused.
    const Refusal& Why() const { return *refusal_; }

  private:
    explicit Commit(std::optional<Refusal> refusal) : refusal_(std::move(refusal)) {}
    std::optional<Refusal> refusal_;
};

}  // namespace tw
