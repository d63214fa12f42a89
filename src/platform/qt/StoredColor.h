// Conversions between Qt's colours and those in the settings, which are integers of the form 0xBBGGRR.
#pragma once

#include <QColor>
#include <optional>

namespace tw {

inline QColor ColorOf(int stored) {
    const auto value = static_cast<unsigned>(stored);
    return {static_cast<int>(value & 0xFF), static_cast<int>(value >> 8 & 0xFF),
            static_cast<int>(value >> 16 & 0xFF)};
}

// Returns an invalid colour if nothing is stored.
inline QColor ColorOf(std::optional<int> stored) {
    return stored ? ColorOf(*stored) : QColor();
}

inline int StoredColorOf(const QColor& color) {
    return color.red() | color.green() << 8 | color.blue() << 16;
}

}  // namespace tw
