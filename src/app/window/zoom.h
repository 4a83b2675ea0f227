// How the keyboard and the wheel change the zoom of the page. The engine keeps the level; page_zoom_linux.h applies it.
#pragma once

/// Levels are factors of the natural size, from 0.8 to 3. The level next to `level`, or the last one in that direction.
[[nodiscard]] double largerZoom(double level);
[[nodiscard]] double smallerZoom(double level);

/// Makes whole notches of what a wheel or a touchpad is turned by in small parts.
class WheelNotches {
public:
    /// `turn` is counted in notches, downwards when positive. Gives the whole notches that are reached, and keeps the
    /// rest. A turn in the other direction starts anew.
    [[nodiscard]] int add(double turn);

private:
    double rest_ = 0;
};
