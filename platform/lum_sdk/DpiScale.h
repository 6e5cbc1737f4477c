#pragma once

/// A length in logical pixels, scaled for the resolution of the screen.
[[nodiscard]] int dpi_scaled(int length);
[[nodiscard]] double dpi_scaled(double length);

namespace lum {

/// Set once by the application object; 1 until then. Where the window system scales by itself the
/// factor is 1.
void setDpiScale(double factor);

} // namespace lum
