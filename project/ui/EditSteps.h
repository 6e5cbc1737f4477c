#pragma once

#include "lum_sdk/events/EventSubscription.h"
#include "lum_sdk/events/IEventManager.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QUndoStack>

#include <memory>

class Edit;
class EditStep;
class IDesktopHost;

/// The steps that the user can take back and do again: the edits of the open project, in order.
/// Owned by the assistant. For the GUI thread.
///
/// The steps take 256 MiB of memory at most: the oldest are let go. A step that alone needs more is
/// asked about at once, while it can still be taken back. Opening and closing a project ends them.
class EditSteps final : public QObject, public IEventHandler
{
    Q_OBJECT

public:
    static constexpr std::size_t kMostBytes = std::size_t(256) * 1024 * 1024;

    explicit EditSteps(IDesktopHost& host, std::size_t mostBytes = kMostBytes);
    ~EditSteps() override;

    /// The one of the process; null before it is made and after its end.
    [[nodiscard]] static EditSteps* instance();

    [[nodiscard]] bool canUndo() const;
    [[nodiscard]] bool canRedo() const { return m_stack.canRedo(); }
    /// What would be taken back, such as "Delete 10,000 results"; empty when there is nothing.
    [[nodiscard]] QString undoTitle() const;
    [[nodiscard]] QString redoTitle() const { return m_stack.redoText(); }

    void undo();
    void redo();

    /// The titles of the steps that are kept, the oldest first.
    [[nodiscard]] QStringList titles() const;
    /// How many of them are done; the rest is taken back.
    [[nodiscard]] int done() const { return m_stack.index() - m_letGo; }
    /// Takes steps back or does them again until so many are done. \param count 0 to all
    void goTo(int count);

    void handleEvent(const char* eventName, const char* payload, int reserved) override;

Q_SIGNALS:
    void changed();

private:
    friend class EditStep;

    void add(const std::shared_ptr<Edit>& edit);
    /// Shows what a new step has changed, and asks about one that is too large.
    void settle(const std::shared_ptr<Edit>& edit);
    /// Whether to take back the last step, which is too large to keep.
    [[nodiscard]] bool wantsBack(const Edit& edit);
    void letOldestGo();
    void letGo(int last);
    void dropTakenBack();
    void exchange(const std::shared_ptr<Edit>& edit, bool isTakenBack);
    /// In the status bar, until the project changes otherwise or is saved.
    void tell(const QString& sentence);
    /// Shows the windows what the edits have changed, once, and what the menu can do.
    void announce();
    void forget();
    [[nodiscard]] EditStep& step(int index) const;

    IDesktopHost& m_host; // outlives the steps
    std::size_t m_mostBytes;
    QUndoStack m_stack;
    int m_letGo = 0;        ///< steps at the beginning that hold no edit any more
    unsigned m_touched = 0; ///< scopes that are not announced yet
    bool m_hasFailed = false;
    QString m_failure; ///< why
    bool m_isTelling = false;
    QString m_project; ///< its folder
    EventSubscription m_subscription;
};
