#pragma once

namespace kavenda {

// A rectangle in points, as the screens place their controls.
struct Frame {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    bool operator==(const Frame&) const = default;
};

}  // namespace kavenda
