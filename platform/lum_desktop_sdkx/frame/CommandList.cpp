#include "lum_desktop_sdkx/frame/CommandList.h"

#include "basalt_utilities/ILogger.h"
#include "lum_desktop_sdkx/controls/OpenEdit.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/frame/LayoutText.h"
#include "lum_desktop_sdkx/frame/Mnemonics.h"
#include "lum_desktop_sdkx/ICommandExecuterx.h"
#include "lum_sdk/files/SystemDictionaries.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QIcon>
#include <QKeySequence>

#include <algorithm>

namespace {

bool holds(const FrameLayout::StatusRule& rule)
{
    return get_system_status_dictionary().text(rule.key) == rule.value;
}

} // namespace

ICommandExecuterx* CommandList::find(const QString& name) const
{
    const Entry* found = entry(name);
    return found != nullptr ? found->command.get() : nullptr;
}

bool CommandList::execute(const QString& name)
{
    const Entry* const found = entry(name);
    if (found == nullptr || !isEnabled(*found))
        return false;
    run(*found->command);
    return true;
}

QAction* CommandList::add(const FrameLayout::Command& entry, IDesktopHost* host,
                          QObject* actionParent)
{
    const std::string className = entry.className.toStdString();
    if (!extensible_factory_ICommandExecuterx().knows(className)) {
        basalt::logDebug("Left out of the menus, no such command: " + className);
        return nullptr;
    }
    auto command =
        extensible_factory_ICommandExecuterx().make(className, entry.config.constData(), host);
    if (!command)
        return nullptr; // `make` has logged why
    if (find(entry.name) != nullptr)
        basalt::logWarning("Two commands are named \"" + entry.name.toStdString() +
                           "\"; the first is found");
    auto* const action = new QAction(actionParent);
    action->setObjectName(entry.name);
    if (!entry.icon.isEmpty())
        action->setIcon(QIcon::fromTheme(entry.icon));
    action->setShortcuts(QKeySequence::listFromString(entry.shortcut, QKeySequence::PortableText));
    const QString tip = desktop::layoutText(entry.tip);
    action->setStatusTip(tip);
    const QString keys = action->shortcut().toString(QKeySequence::NativeText);
    if (!tip.isEmpty())
        action->setToolTip(keys.isEmpty() ? tip : tip + QStringLiteral(" (%1)").arg(keys));
    if (!entry.group.isEmpty()) {
        QActionGroup*& group = m_groups[entry.group];
        if (group == nullptr)
            group = new QActionGroup(actionParent);
        group->addAction(action);
    }
    ICommandExecuterx* const target = command.get();
    QObject::connect(action, &QAction::triggered, action, [this, target] { run(*target); });
    m_entries.push_back({entry.name, entry.caption, std::move(command), action, entry.enabledWhile,
                         entry.checkedWhile});
    return action;
}

QAction* CommandList::action(const QString& name) const
{
    const Entry* found = entry(name);
    return found != nullptr ? found->action : nullptr;
}

void CommandList::refresh()
{
    for (const Entry& each : m_entries) {
        each.action->setText(captionOf(each));
        each.action->setVisible(!each.action->text().isEmpty());
        const bool isRuled = !each.checkedWhile.key.empty();
        const bool isCheckable = isRuled || each.command->isCheckable();
        each.action->setEnabled(isEnabled(each));
        each.action->setCheckable(isCheckable);
        each.action->setChecked(isCheckable &&
                                (isRuled ? holds(each.checkedWhile) : each.command->isChecked()));
    }
}

void CommandList::clear()
{
    for (const Entry& each : m_entries)
        each.action->disconnect();
    m_entries.clear();
    m_groups.clear();
}

const CommandList::Entry* CommandList::entry(const QString& name) const
{
    const auto found = std::find_if(m_entries.begin(), m_entries.end(),
                                    [&](const Entry& each) { return each.name == name; });
    return found == m_entries.end() ? nullptr : &*found;
}

bool CommandList::isEnabled(const Entry& entry)
{
    const bool isRuled = !entry.enabledWhile.key.empty();
    return entry.command->isEnabled() && (!isRuled || holds(entry.enabledWhile));
}

/// A caption that the command gives keeps the mnemonic of the layout.
QString CommandList::captionOf(const Entry& entry)
{
    const QString caption = entry.command->caption();
    const QString configured = desktop::layoutText(entry.caption);
    return caption.isEmpty() ? configured
                             : desktop::withMnemonic(caption, desktop::mnemonicOf(configured));
}

void CommandList::run(ICommandExecuterx& command)
{
    desktop::enterOpenEdit();
    try {
        command.execute();
    } catch (const std::exception& fault) {
        basalt::logError(std::string("A command failed: ") + fault.what());
        LumMessageBox::error(QApplication::activeWindow(),
                             QCoreApplication::translate("CommandList", "Error"),
                             QCoreApplication::translate("CommandList", "The command failed: %1")
                                 .arg(QString::fromUtf8(fault.what())));
    }
    refresh();
}
