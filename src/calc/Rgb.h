// A colour on the screen.
#pragma once

#include <cstdint>

namespace tw {

// Red, green and blue from 0 to 255; white by default.
struct Rgb {
    std::uint8_t red = 255;
    std::uint8_t green = 255;
    std::uint8_t blue = 255;
    bool operator==(const Rgb&) const = default;
};

}  // namespace tw
