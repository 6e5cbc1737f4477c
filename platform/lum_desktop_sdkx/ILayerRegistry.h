#pragma once

#include <QString>

#include <cstddef>

class ILayerViewer;

/// The layers of one map, from bottom to top.
class ILayerRegistry
{
public:
    virtual ~ILayerRegistry() = default;

    /// Null when there is no layer of that name.
    [[nodiscard]] virtual ILayerViewer* find(const QString& layerName) const = 0;
    [[nodiscard]] virtual std::size_t count() const = 0;
    /// Null when there is no layer of this index.
    [[nodiscard]] virtual ILayerViewer* at(std::size_t index) const = 0;
};
