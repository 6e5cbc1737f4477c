#pragma once

#include "lum_sdk/events/EventSubscription.h"
#include "lum_sdk/events/IEventManager.h"
#include "views/find/PointFinder.h"

#include <QFrame>
#include <QPointer>

#include <cstdint>
#include <utility>

class FoundList;
class IDesktopHost;
class QLabel;
class QLineEdit;

/// The bar over the map in which lines and points are found by their numbers.
///
/// Typing lists the matches below the field; Up and Down choose one, Enter goes to it: its table
/// comes forward and selects it, and the others follow. Then the list folds, so that the map can
/// be seen. Escape closes the bar and gives the focus back. A change of the project's points makes
/// the list anew.
class FindBar final : public QFrame, public IEventHandler
{
    Q_OBJECT

public:
    /// The bar of the host's frame, which owns it; null while there is no frame.
    [[nodiscard]] static FindBar* of(IDesktopHost& host);

    /// Shows the bar, or brings it back, with its text selected.
    void open();
    /// Goes to the next match, or the previous one, from the end on to the beginning. The first
    /// time it goes to the one that is marked in the list. Without a text it opens the bar.
    void step(bool isForward);

    void handleEvent(const char* eventName, const char* payload, int reserved) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    FindBar(IDesktopHost& host, QWidget& frame);

    [[nodiscard]] QWidget* makeFieldRow();

    void search();
    /// Searches again when the points have changed since the last time.
    void searchWhenChanged();
    void unfold(bool isUnfolded);
    void lieOverMap();
    void setCurrent(int index);
    void goToCurrent();
    void goTo(const FoundPlace& place);
    void tell();
    [[nodiscard]] QString said() const;
    void giveBack();

    IDesktopHost& m_host; // outlives every window
    QLineEdit* m_field;
    QLabel* m_told;
    FoundList* m_list;
    QPointer<QWidget> m_before; ///< had the focus before the bar
    FoundPlaces m_found;
    int m_current = 0;
    bool m_isThere = false;                              ///< the current match was gone to
    std::pair<std::uint64_t, std::uint64_t> m_revisions; ///< of design and results when searched
    EventSubscription m_subscription;
};
