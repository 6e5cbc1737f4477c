#include "views/problems/ProblemKindBar.h"

#include "lum_sdk/GroupedNumber.h"
#include "views/problems/SeverityIcon.h"

#include <QHeaderView>
#include <QSignalBlocker>

#include <algorithm>

ProblemKindBar::ProblemKindBar(QWidget* parent) : QTreeWidget(parent)
{
    setColumnCount(2);
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setFrameStyle(QFrame::NoFrame);
    setSelectionMode(ExtendedSelection);
    setTabKeyNavigation(false);
    setAccessibleName(tr("Kinds of problems"));
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(0, QHeaderView::Stretch);
    header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    connect(this, &QTreeWidget::itemSelectionChanged, this, &ProblemKindBar::chosen);
}

void ProblemKindBar::addEntry(const Place& place, const QString& caption, int count,
                              const QIcon& icon)
{
    auto* const item = new QTreeWidgetItem(this, {caption, lum::groupedNumber(count)});
    item->setIcon(0, icon);
    item->setToolTip(0, caption);
    item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    m_places.push_back(place);
}

void ProblemKindBar::setKinds(const std::vector<ProblemKindCount>& kinds)
{
    const std::vector<Place> before = chosenPlaces();
    const QSignalBlocker quiet(this);
    clear();
    m_places.clear();
    int open = 0;
    int accepted = 0;
    for (const ProblemKindCount& kind : kinds) {
        open += kind.open;
        accepted += kind.accepted;
    }
    addEntry({Entry::AllOpen, nullptr}, tr("All open problems"), open,
             QIcon::fromTheme(QStringLiteral("view-list-details")));
    for (const ProblemKindCount& kind : kinds) {
        if (kind.open > 0)
            addEntry({Entry::Kind, kind.kind}, kind.kind->captionText(), kind.open,
                     severityIcon(kind.kind->severity));
    }
    if (accepted > 0)
        addEntry({Entry::Accepted, nullptr}, tr("Accepted"), accepted,
                 QIcon::fromTheme(QStringLiteral("dialog-ok-apply")));
    for (std::size_t row = 0; row < m_places.size(); ++row)
        topLevelItem(static_cast<int>(row))
            ->setSelected(std::ranges::find(before, m_places[row]) != before.end());
    if (selectedItems().isEmpty())
        topLevelItem(0)->setSelected(true);
    setCurrentItem(selectedItems().first(), 0, QItemSelectionModel::NoUpdate);
}

void ProblemKindBar::chooseAll()
{
    if (topLevelItemCount() > 0)
        setCurrentItem(topLevelItem(0));
}

std::vector<ProblemKindBar::Place> ProblemKindBar::chosenPlaces() const
{
    std::vector<Place> places;
    for (QTreeWidgetItem* const item : selectedItems())
        places.push_back(m_places[static_cast<std::size_t>(indexOfTopLevelItem(item))]);
    return places;
}

ProblemTableModel::Choice ProblemKindBar::choice() const
{
    ProblemTableModel::Choice choice;
    for (const auto& [entry, kind] : chosenPlaces()) {
        if (entry == Entry::AllOpen)
            return {};
        if (entry == Entry::Accepted)
            return {.isAccepted = true, .kinds = {}};
        choice.kinds.push_back(kind);
    }
    return choice;
}
