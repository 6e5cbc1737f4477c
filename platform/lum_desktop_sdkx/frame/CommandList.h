#pragma once

#include "lum_desktop_sdkx/ComponentKinds.h"
#include "lum_desktop_sdkx/frame/FrameLayout.h"
#include "lum_desktop_sdkx/ICommandList.h"

#include <QHash>

#include <vector>

class QAction;
class QActionGroup;
class QObject;

/// The commands of the frame, and the actions that show them in menus and tool bars.
class CommandList final : public ICommandList
{
public:
    [[nodiscard]] ICommandExecuterx* find(const QString& name) const override;
    bool execute(const QString& name) override;

    /// Makes the entry's command and its action.
    /// \returns null, and a line in the log, when the command's class is not registered
    QAction* add(const FrameLayout::Command& entry, IDesktopHost* host, QObject* actionParent);

    /// The action of a command; null when there is no command of this name.
    [[nodiscard]] QAction* action(const QString& name) const;

    /// Asks every command for its state and caption again, and updates its action.
    void refresh();

    /// Deletes the commands. Their actions belong to their parents, and stay.
    void clear();

private:
    struct Entry
    {
        QString name;
        QString caption; ///< of the layout, in English
        ICommandExecuterxFactory::Pointer command;
        QAction* action; ///< owned by the frame
        FrameLayout::StatusRule enabledWhile;
        FrameLayout::StatusRule checkedWhile;
    };

    [[nodiscard]] const Entry* entry(const QString& name) const;
    [[nodiscard]] static bool isEnabled(const Entry& entry);
    [[nodiscard]] static QString captionOf(const Entry& entry);
    void run(ICommandExecuterx& command);

    std::vector<Entry> m_entries;
    QHash<QString, QActionGroup*> m_groups; ///< by the name in the layout; owned by the frame
};
