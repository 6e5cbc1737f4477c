#include "views/find/FoundList.h"

#include "lum_sdk/Text.h"

#include <QHeaderView>
#include <QIcon>

#include <algorithm>
#include <array>
#include <memory>

namespace {

constexpr std::array kShares = {16, 16, 24}; ///< of the columns, percent; the last has the rest

} // namespace

FoundList::FoundList(QWidget* parent) : QTreeWidget(parent)
{
    setHeaderLabels({tr("Data"), tr("Kind"), tr("Line"), tr("Point")});
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextElideMode(Qt::ElideMiddle);
    header()->setSectionsMovable(false);
    connect(this, &QTreeWidget::itemClicked, this,
            [this](QTreeWidgetItem* item) { Q_EMIT rowClicked(indexOfTopLevelItem(item)); });
}

void FoundList::setPlaces(const std::vector<FoundPlace>& places)
{
    clear();
    const QIcon design = QIcon::fromTheme(QStringLiteral("view-grid"));
    const QIcon survey = QIcon::fromTheme(QStringLiteral("flag"));
    QList<QTreeWidgetItem*> rows;
    for (const FoundPlace& place : places) {
        auto row = std::make_unique<QTreeWidgetItem>(QStringList{
            place.isSurvey ? tr("Survey") : tr("Design"),
            place.isReceiver ? tr("receiver") : tr("source"), lum::toQString(place.line),
            place.isLine() ? tr("whole line, points: %1").arg(place.lineSize)
                           : lum::toQString(place.point)});
        row->setIcon(0, place.isSurvey ? survey : design);
        rows << row.release();
    }
    addTopLevelItems(rows); // the list owns them
}

void FoundList::setCurrentRow(int row)
{
    if (QTreeWidgetItem* const item = topLevelItem(row))
        setCurrentItem(item);
}

void FoundList::shareWidth(int width)
{
    for (std::size_t column = 0; column < kShares.size(); ++column)
        header()->resizeSection(static_cast<int>(column), width * kShares[column] / 100);
}

int FoundList::neededHeight() const
{
    return header()->sizeHint().height() + 2 * frameWidth() +
           std::min(kMostRows, topLevelItemCount()) * std::max(1, sizeHintForRow(0));
}
