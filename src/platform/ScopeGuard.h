// Guards that act at the end of a scope, even if an exception ends it.
#pragma once

#include <utility>

namespace tw {

// Runs an action when its scope ends. REQUIRES: the action raises nothing.
template <typename Action>
class [[nodiscard]] ScopeGuard {
  public:
    explicit ScopeGuard(Action action) : action_(std::move(action)) {}
    ~ScopeGuard() { action_(); }
    ScopeGuard(const ScopeGuard&) = delete;
    ScopeGuard& operator=(const ScopeGuard&) = delete;

  private:
    Action action_;
};

// Sets a variable to a value for the duration of a scope, and then back to the value that it had before.
template <typename Value>
class [[nodiscard]] ScopedValue {
  public:
    ScopedValue(Value& variable, Value during)
        : variable_(variable), before_(std::exchange(variable, std::move(during))) {}
    ~ScopedValue() { variable_ = std::move(before_); }
    ScopedValue(const ScopedValue&) = delete;
    ScopedValue& operator=(const ScopedValue&) = delete;

  private:
    Value& variable_;
    Value before_;
};

}  // namespace tw
