#pragma once

/// Registers the window "MapWindow", the layers "BoundaryLayer" and "RasterLayerImp" and the mouse
/// handler "ReactorDefault"; a second call does nothing.
void registerMapComponents();
