#pragma once

class IDataLayer;
class IDesktopHost;

/// The layer of the project's data on the map "DataMap"; null while there is none.
[[nodiscard]] IDataLayer* findDataLayer(IDesktopHost& host);
