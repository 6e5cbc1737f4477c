#include "project/ui/EditSteps.h"

#include "basalt_utilities/ILogger.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/WaitCursor.h"
#include "lum_sdk/events/EventNames.h"
#include "lum_sdk/GroupedNumber.h"
#include "project/DataProcessDataManager.h"
#include "project/ProjectPlace.h"
#include "project/ui/ProjectState.h"
#include "protocol/Events.h"

#include <QUndoCommand>

#include <cstdlib>
#include <cstring>
#include <new>

namespace {

constexpr std::size_t kMebibyte = 1 << 20;

EditSteps* stepsInUse = nullptr;

QString openProject()
{
    return ProjectState::isOpen() ? ProjectState::place().folder : QString();
}

} // namespace

/// An edit on the stack, which does it when it is pushed: that one time nothing is left to do.
class EditStep final : public QUndoCommand
{
public:
    EditStep(EditSteps& steps, std::shared_ptr<Edit> edit)
        : QUndoCommand(edit->title()), m_steps(steps), m_edit(std::move(edit))
    {
    }

    void undo() override { m_steps.exchange(m_edit, true); }
    void redo() override
    {
        if (m_isPushed)
            m_steps.exchange(m_edit, false);
        m_isPushed = true;
    }

    [[nodiscard]] const std::shared_ptr<Edit>& edit() const { return m_edit; }
    [[nodiscard]] std::size_t bytes() const { return m_edit == nullptr ? 0 : m_edit->bytes(); }
    void letGo() { m_edit.reset(); }

private:
    EditSteps& m_steps;
    std::shared_ptr<Edit> m_edit;
    bool m_isPushed = false;
};

EditSteps::EditSteps(IDesktopHost& host, std::size_t mostBytes)
    : m_host(host), m_mostBytes(mostBytes), m_project(openProject()),
      m_subscription(*this,
                     lum::eventNames({events::kUpdateSystemStatus, events::kProjectModified}),
                     host.eventManager())
{
    DataProcessDataManager::instance().setEditHandler(
        [this](const std::shared_ptr<Edit>& edit) { add(edit); });
    stepsInUse = this;
}

EditSteps::~EditSteps()
{
    if (stepsInUse == this)
        stepsInUse = nullptr;
    if (DataProcessDataManager::hasInstance())
        DataProcessDataManager::instance().setEditHandler({});
}

EditSteps* EditSteps::instance()
{
    return stepsInUse;
}

EditStep& EditSteps::step(int index) const
{
    // The stack gives its steps to look at; only this class makes them.
    return static_cast<EditStep&>(const_cast<QUndoCommand&>(*m_stack.command(index)));
}

bool EditSteps::canUndo() const
{
    return m_stack.index() > m_letGo;
}

QString EditSteps::undoTitle() const
{
    return canUndo() ? m_stack.undoText() : QString();
}

QStringList EditSteps::titles() const
{
    QStringList titles;
    for (int i = m_letGo; i < m_stack.count(); ++i)
        titles << m_stack.text(i);
    return titles;
}

// --- going through the steps ---

void EditSteps::undo()
{
    if (canUndo())
        goTo(done() - 1);
}

void EditSteps::redo()
{
    if (canRedo())
        goTo(done() + 1);
}

void EditSteps::goTo(int count)
{
    const int target = m_letGo + count;
    if (target == m_stack.index())
        return;
    const int start = m_stack.index();
    const bool isBack = target < start;
    const QString title = isBack ? m_stack.undoText() : m_stack.redoText();
    {
        const WaitCursor waiting;
        m_hasFailed = false;
        while (!m_hasFailed && m_stack.index() > target)
            m_stack.undo();
        while (!m_hasFailed && m_stack.index() < target)
            m_stack.redo();
        if (m_hasFailed) // nothing was changed, so the stack goes back to where the project is
            isBack ? m_stack.redo() : m_stack.undo();
        announce();
    }
    const int steps = std::abs(m_stack.index() - start);
    if (steps == 1)
        tell((isBack ? tr("Taken back: %1") : tr("Done again: %1")).arg(title));
    else if (steps > 1)
        tell((isBack ? tr("Taken back: %1 steps") : tr("Done again: %1 steps"))
                 .arg(lum::groupedNumber(steps)));
    if (m_hasFailed)
        LumMessageBox::error(m_host.dialogParent(), tr("Error"), m_failure);
}

void EditSteps::exchange(const std::shared_ptr<Edit>& edit, bool isTakenBack)
{
    if (m_hasFailed)
        return;
    Outcome outcome = Outcome::done();
    DataProcessDataManager::instance().exchange(edit, isTakenBack, &outcome);
    if (outcome.isDone()) {
        m_touched |= edit->scope();
        return;
    }
    m_hasFailed = true;
    m_failure = outcome.text();
}

void EditSteps::tell(const QString& sentence)
{
    m_host.tell(sentence);
    m_isTelling = !sentence.isEmpty();
}

void EditSteps::announce()
{
    const unsigned touched = std::exchange(m_touched, 0U);
    const auto publish = [this](std::initializer_list<const char*> names) {
        for (const char* name : names)
            m_host.eventManager().publish(name, nullptr, 0);
    };
    if ((touched & kCoordSystemScope) != 0)
        publish({events::kProjectChanged, events::kSettingViewFinished});
    if ((touched & kDesignScope) != 0)
        publish({events::kRefreshDesignLayer, events::kRefreshDesignTable});
    if ((touched & (kSurveyScope | kQualityScope)) != 0)
        publish({events::kRefreshSurveyTable});
    if ((touched & kSurveyScope) != 0)
        publish({events::kRefreshSurveyLayer});
    if ((touched & kAcceptanceScope) != 0)
        publish({events::kAcceptancesChanged});
    publish({events::kUpdateSystemStatus}); // the captions of the menu
    Q_EMIT changed();
}

// --- what is kept ---

void EditSteps::add(const std::shared_ptr<Edit>& edit)
{
    m_hasFailed = false;
    if (m_isTelling)
        tell({});
    try {
        m_stack.push(new EditStep(*this, edit)); // the stack's own from here on
        if (edit->bytes() <= m_mostBytes)
            letOldestGo();
        // Later, when whoever has made the edit has told about it.
        QMetaObject::invokeMethod(
            this, [this, made = std::weak_ptr<Edit>(edit)] { settle(made.lock()); },
            Qt::QueuedConnection);
    } catch (const std::bad_alloc&) {
        forget(); // the steps do not lead to the project as it is now
        basalt::logError("No memory to keep an edit: none can be taken back any more.");
    }
}

void EditSteps::settle(const std::shared_ptr<Edit>& edit)
{
    announce();
    const int last = m_stack.index() - 1;
    if (edit == nullptr || edit->bytes() <= m_mostBytes || last < m_letGo ||
        step(last).edit() != edit)
        return;
    if (wantsBack(*edit)) {
        undo();
        if (!m_hasFailed)
            dropTakenBack();
    } else {
        letGo(last);
    }
    announce();
}

void EditSteps::dropTakenBack()
{
    auto none = std::make_unique<QUndoCommand>();
    none->setObsolete(true);
    m_stack.push(none.release()); // ends what was taken back, and then itself
}

void EditSteps::letGo(int last)
{
    DataProcessDataManager::instance().letGo(step(last).edit());
    for (; m_letGo <= last; ++m_letGo)
        step(m_letGo).letGo();
}

bool EditSteps::wantsBack(const Edit& edit)
{
    const auto mebibytes = [](std::size_t count) {
        return lum::groupedNumber((count + kMebibyte - 1) / kMebibyte);
    };
    QString text = tr("\"%1\" can be taken back now, but not later: to keep what it replaced takes "
                      "%2 MiB, more than the %3 MiB for all steps.")
                       .arg(edit.title(), mebibytes(edit.bytes()), mebibytes(m_mostBytes));
    if (const int before = done() - 1; before > 0)
        text += QLatin1Char(' ') + tr("The steps before it cannot be taken back later either: %1.")
                                       .arg(lum::groupedNumber(before));
    return LumMessageBox::question(m_host.dialogParent(), tr("Undo"),
                                   text + QLatin1Char(' ') + tr("Take it back?")) ==
           LumMessageBox::Button::Yes;
}

void EditSteps::letOldestGo()
{
    std::size_t bytes = 0;
    for (int i = m_stack.count() - 1; i >= m_letGo; --i) {
        bytes += step(i).bytes();
        if (bytes > m_mostBytes && i < m_stack.count() - 1)
            return letGo(i);
    }
}

void EditSteps::forget()
{
    m_stack.clear();
    m_letGo = 0;
}

void EditSteps::handleEvent(const char* eventName, const char* /*payload*/, int /*reserved*/)
{
    if (std::strcmp(eventName, events::kProjectModified) == 0) {
        if (m_isTelling)
            tell({});
        return;
    }
    const QString project = openProject();
    if (project == m_project)
        return;
    m_project = project;
    forget();
    Q_EMIT changed();
}
