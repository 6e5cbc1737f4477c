#pragma once

namespace desktop {

/// Enters the text that is being typed in a cell of a tree, table or property grid, as Enter would.
/// A command works with what the user sees.
void enterOpenEdit();

} // namespace desktop
