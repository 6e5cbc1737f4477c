#pragma once

/// Registers the window "MapWindow", the layer "BoundaryLayer" and the mouse handler
/// "ReactorDefault"; a second call does nothing.
void registerMapComponents();
