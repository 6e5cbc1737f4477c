#pragma once

#include <QColor>

class QPalette;

// The colours of values that are wrong, readable in light and dark.

/// Behind a value: shines through, so that it suits the colour below and the text above it.
[[nodiscard]] QColor faultBackground();

/// The base of a field whose text is wrong: opaque, as the base is.
[[nodiscard]] QColor faultBase(const QPalette& palette);

/// Behind a sentence that warns; shines through as well.
[[nodiscard]] QColor warningBackground();

/// Of a text on the palette's base: red, and a lighter one on a dark base.
[[nodiscard]] QColor faultText(const QPalette& palette);
