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
struct DesktopDocument;

/// What the desktop offers to windows, layers, commands and assistants.
class IDesktopHost : public IHost
{
public:
    [[nodiscard]] virtual IWindowRegistry& windows() = 0;
    [[nodiscard]] virtual ICommandList& commands() = 0;
    [[nodiscard]] virtual ICoordTransformHelper& coordTransformHelper() = 0;

    /// The parent of dialogs; null while there is no main frame.
    [[nodiscard]] virtual QWidget* dialogParent() = 0;

    /// Shows in the frame's title what is open.
    virtual void setDocument(const DesktopDocument& document) = 0;
    [[nodiscard]] virtual bool hasDocument() const = 0;

    /// Shows a sentence in the status bar until the next one comes or another document is open.
    virtual void tell(const QString& sentence) = 0;
};

/// The helper of the host that converts project coordinates to map coordinates and back.
[[nodiscard]] ICoordTransformHelper* get_instance_ICoordTransformHelper(IDesktopHost* host);
