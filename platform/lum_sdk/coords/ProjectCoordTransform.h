#pragma once

class ICoordTransform;

/// The coordinate transformation of the open project, both of whose systems are the project's.
/// One for the process, of kind "coord_wjl"; it belongs to the GUI thread, and is without a system
/// until somebody calls `initialise`.
[[nodiscard]] ICoordTransform& get_project_coord_transform();
