// Colours between the settings, where blue, green and red stand from the highest byte down, and Qt.
#pragma once

#include <QColor>
#include <optional>

namespace tw {

inline QColor ColorOf(int stored) {
    const auto value = static_cast<unsigned>(stored);
    return {static_cast<int>(value & 0xFF), static_cast<int>(value >> 8 & 0xFF),
            static_cast<int>(value >> 16 & 0xFF)};
}

// An invalid colour for nothing stored.
inline QColor ColorOf(std::optional<int> stored) {
    return stored ? ColorOf(*stored) : QColor();
}

inline int StoredColorOf(const QColor& color) {
    return color.red() | color.green() << 8 | color.blue() << 16;
}

}  // namespace tw
