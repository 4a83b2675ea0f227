#include "app/window/zoom.h"

#include <algorithm>
#include <array>
#include <iterator>

static constexpr std::array levels{0.8, 0.9, 1.0, 1.1, 1.25, 1.5, 1.75, 2.0, 2.5, 3.0};

/// The engine may round what it is given.
static constexpr double same = 0.001;

double largerZoom(double level) {
    const auto* const next = std::upper_bound(levels.begin(), levels.end(), level + same);
    return next == levels.end() ? levels.back() : *next;
}

double smallerZoom(double level) {
    const auto* const next = std::lower_bound(levels.begin(), levels.end(), level - same);
    return next == levels.begin() ? levels.front() : *std::prev(next);
}

int WheelNotches::add(double turn) {
    if (turn * rest_ < 0) rest_ = 0;
    rest_ += turn;
    const int notches = static_cast<int>(rest_);
    rest_ -= notches;
    return notches;
}
