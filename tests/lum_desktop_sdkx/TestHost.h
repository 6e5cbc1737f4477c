#pragma once

#include "lum_desktop_sdkx/DesktopDocument.h"
#include "lum_desktop_sdkx/frame/CoordTransformHelper.h"
#include "lum_desktop_sdkx/ICommandList.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "lum_sdk/events/EventManager.h"

#include <QHash>
#include <QStringList>

/// The windows that a test has set, by name.
class TestWindowRegistry final : public IWindowRegistry
{
public:
    [[nodiscard]] IWindow* find(const QString& name) const override { return windows.value(name); }
    bool activate(const QString& name) override
    {
        activated.append(name);
        return windows.contains(name);
    }
    bool reveal(const QString& name, const QStringList& uncovered) override
    {
        revealed.append(name + QStringLiteral(" beside ") + uncovered.join(QStringLiteral(", ")));
        return find(name) != nullptr;
    }
    bool close(const QString& name) override
    {
        closed.append(name);
        return windows.contains(name);
    }
    IWindow* open(const QString& className, const IDictionary& /*parameters*/) override
    {
        opened.append(className);
        return find(className);
    }

    QHash<QString, IWindow*> windows;
    QStringList activated;
    QStringList revealed;
    QStringList closed;
    QStringList opened;
};

/// The commands that a test has set, by name. It notes what is executed, and runs nothing.
class TestCommandList final : public ICommandList
{
public:
    [[nodiscard]] ICommandExecuterx* find(const QString& name) const override
    {
        return commands.value(name);
    }
    bool execute(const QString& name) override
    {
        executed.append(name);
        return commands.contains(name);
    }

    QHash<QString, ICommandExecuterx*> commands;
    QStringList executed;
};

/// A desktop without a frame, for the tests of its components.
class TestHost final : public IDesktopHost
{
public:
    [[nodiscard]] IEventManager& eventManager() override { return events; }
    [[nodiscard]] IWindowRegistry& windows() override { return windowRegistry; }
    [[nodiscard]] ICommandList& commands() override { return commandList; }
    [[nodiscard]] ICoordTransformHelper& coordTransformHelper() override { return coordHelper; }
    [[nodiscard]] QWidget* dialogParent() override { return frame; }
    void setDocument(const DesktopDocument& open) override { document = open; }
    [[nodiscard]] bool hasDocument() const override { return !document.name.isEmpty(); }
    void tell(const QString& sentence) override { told = sentence; }

    EventManager events;
    TestWindowRegistry windowRegistry;
    QWidget* frame = nullptr;
    DesktopDocument document; ///< as the title shows it
    QString told;             ///< the sentence in the status bar
    TestCommandList commandList;
    CoordTransformHelper coordHelper;
};
