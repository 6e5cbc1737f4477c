#pragma once

#include "lum_sdk/events/EventSubscription.h"
#include "lum_sdk/events/IEventManager.h"
#include "quality/RepeatChoice.h"
#include "quality/ui/ResultList.h"

#include <QTimer>

class ChoiceBox;
class PointNames;
class QLabel;
class QLineEdit;
class QPushButton;

/// The points that were measured more than once, and what would become of each. A choice above them
/// says which measurement stays; buttons below give the selected points, or all, one result. That
/// is one step that can be taken back.
///
/// There is one such list; it stays open beside the work and follows every change of the results.
class DlgRepeatChoice final : public ResultList, private IEventHandler
{
    Q_OBJECT

public:
    static DlgRepeatChoice& open(IDesktopHost& host);

    /// Selects the points of these results.
    void selectPointsOf(const PointNames& results);

private:
    explicit DlgRepeatChoice(IDesktopHost& host);

    void handleEvent(const char* eventName, const char* payload, int reserved) override;
    void addChoice();
    void addButtons();
    /// What is chosen; a tolerance that cannot be read lets nothing pass.
    [[nodiscard]] RepeatChoice choice() const;
    /// Also keeps what is selected.
    void refresh();
    void showState();
    void resolve(const std::vector<const RepeatedPoint*>& points);
    void resolveAll();
    void resolveSelected();

    std::vector<RepeatedPoint> m_points; ///< a row each
    std::uint64_t m_revision = 0;        ///< of the results that they point to
    ChoiceBox* m_rule;
    QLabel* m_toleranceLabel;
    QLineEdit* m_tolerance;
    QPushButton* m_resolveSelected;
    QPushButton* m_resolveAll;
    QTimer m_refresh; ///< once what has changed the results is done
    EventSubscription m_subscription;
};
