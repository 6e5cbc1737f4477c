#pragma once

#include "lum_sdk/IHost.h"

#include <memory>
#include <vector>

class ICommandList;
class ICoordTransformHelper;
class IDictionary;
class IGuiAssistant;
class IWindowRegistry;
class QString;
class QWidget;

/// What the desktop offers to windows, layers, commands and assistants.
class IDesktopHost : public IHost
{
public:
    [[nodiscard]] virtual IWindowRegistry& windows() = 0;
    [[nodiscard]] virtual ICommandList& commands() = 0;
    [[nodiscard]] virtual ICoordTransformHelper& coordTransformHelper() = 0;

    /// The parent of dialogs; null while there is no main frame.
    [[nodiscard]] virtual QWidget* dialogParent() = 0;

    /// Shows the name of what is open in the frame's title. An empty name means that nothing is
    /// open.
    virtual void setDocument(const QString& name) = 0;
    [[nodiscard]] virtual bool hasDocument() const = 0;
};

/// The helper of the host that converts project coordinates to map coordinates and back.
[[nodiscard]] ICoordTransformHelper* get_instance_ICoordTransformHelper(IDesktopHost* host);
