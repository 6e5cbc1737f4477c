#include "views/statistics/StatisticsTableModel.h"

#include "lum_desktop_sdkx/controls/FaultColors.h"
#include "lum_sdk/DpiScale.h"
#include "reports/StatisticsFigures.h"

#include <QFont>
#include <QGuiApplication>
#include <QIcon>
#include <QPalette>
#include <QPixmap>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

using statistics::GroupKey;
using statistics::KeyValue;

namespace {

constexpr int kTickSize = 16;

} // namespace

void StatisticsTableModel::setGroups(std::shared_ptr<const statistics::SurveySample> sample,
                                     Key key)
{
    beginResetModel();
    m_sample = std::move(sample);
    m_key = key;
    m_columns = statisticsColumns(key == GroupKey::Day);
    if (m_sortColumn >= columnCount())
        m_sortColumn = -1;
    m_groups.clear();
    m_members.clear();
    m_all.clear();
    if (m_sample != nullptr) {
        m_all.resize(m_sample->results.size());
        std::iota(m_all.begin(), m_all.end(), 0U);
        const auto all = statistics::figuresOf(*m_sample, statistics::groupBy(*m_sample, {}));
        const std::size_t staked = all[0].of(statistics::ResultKind::Staked);
        m_totals = groupOf(all[0], staked, tr("All"));
    }
    if (m_sample != nullptr && m_key) {
        m_grouping = statistics::groupBy(*m_sample, {*m_key});
        m_members = statistics::membersOf(m_grouping);
        std::size_t stakedUntilThen = 0;
        m_groups.reserve(m_grouping.groupCount);
        for (const statistics::Figures& figures : statistics::figuresOf(*m_sample, m_grouping)) {
            stakedUntilThen += figures.of(statistics::ResultKind::Staked);
            QString name = statisticsKeyText(*m_key, value(m_groups.size()));
            m_groups.push_back(groupOf(figures, stakedUntilThen, std::move(name)));
        }
    }
    m_hasTicks = std::ranges::any_of(m_groups, &Group::isInOrder);
    sort();
    endResetModel();
}

StatisticsTableModel::Group StatisticsTableModel::groupOf(const statistics::Figures& figures,
                                                          std::size_t stakedUntilThen,
                                                          QString name) const
{
    const bool isInOrder =
        figures.isAllWithinLimits() && (!figures.hasDesign || figures.isAllStaked());
    Group group{figures, stakedUntilThen, std::move(name), isInOrder, {}};
    group.texts.resize(m_columns.size());
    for (std::size_t i = 0; i < m_columns.size(); ++i) {
        if (m_columns[i].text != nullptr)
            group.texts[i] = m_columns[i].text(rowOf(group));
    }
    return group;
}

void StatisticsTableModel::sortBy(int column, Qt::SortOrder order)
{
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    const std::vector<std::size_t> rows = m_rows;
    m_sortColumn = column < columnCount() ? column : -1;
    m_sortOrder = order;
    sort();
    QModelIndexList after;
    after.reserve(before.size());
    for (const QModelIndex& index : before) {
        int row = index.row();
        if (row > 0) {
            const std::size_t group = rows[static_cast<std::size_t>(row) - 1];
            row = 1 + static_cast<int>(std::ranges::find(m_rows, group) - m_rows.begin());
        }
        after.append(createIndex(row, index.column()));
    }
    changePersistentIndexList(before, after);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

/// Groups are in the order of their values. What is blank comes last in either order.
void StatisticsTableModel::sort()
{
    m_rows.resize(m_groups.size());
    std::iota(m_rows.begin(), m_rows.end(), std::size_t(0));
    if (m_sortColumn < 0)
        return;
    const bool isDescending = m_sortOrder == Qt::DescendingOrder;
    const auto sortBy = [&](const auto& valueOf, const auto& isBlank) {
        std::ranges::stable_sort(m_rows, [&](std::size_t a, std::size_t b) {
            const auto& left = valueOf(isDescending ? b : a);
            const auto& right = valueOf(isDescending ? a : b);
            if (isBlank(left) || isBlank(right))
                return !isBlank(valueOf(a)) && isBlank(valueOf(b));
            return left < right;
        });
    };
    if (m_sortColumn == 0)
        sortBy([](std::size_t group) { return group; }, [](std::size_t) { return false; });
    else if (columnAt(m_sortColumn).text != nullptr)
        sortBy([&](std::size_t group) { return text(m_groups[group], m_sortColumn); },
               [](const QString& value) { return value.isEmpty(); });
    else
        sortBy([&](std::size_t group) { return number(m_groups[group], m_sortColumn); },
               [](double value) { return !std::isfinite(value); });
}

// --- groups ---

std::optional<std::size_t> StatisticsTableModel::groupAt(int row) const
{
    if (row < 1 || row > static_cast<int>(m_rows.size()))
        return std::nullopt;
    return m_rows[static_cast<std::size_t>(row) - 1];
}

int StatisticsTableModel::rowOf(const KeyValue& wanted) const
{
    const auto found =
        std::ranges::find_if(m_rows, [&](std::size_t group) { return value(group) == wanted; });
    return found == m_rows.end() ? -1 : 1 + static_cast<int>(found - m_rows.begin());
}

const KeyValue& StatisticsTableModel::value(std::size_t group) const
{
    return m_grouping.value(*m_sample, group, *m_key);
}

QString StatisticsTableModel::name(std::size_t group) const
{
    return m_key == GroupKey::PointKind
               ? m_groups[group].name
               : statisticsKeyName(*m_key) + QLatin1Char(' ') + m_groups[group].name;
}

std::span<const std::uint32_t> StatisticsTableModel::members(std::size_t group) const
{
    return m_members[group];
}

const statistics::DesignCount& StatisticsTableModel::design(std::size_t group) const
{
    const statistics::Figures& figures = m_groups[group].figures;
    return figures.hasDesign ? figures.design : m_sample->design;
}

std::optional<std::uint32_t> StatisticsTableModel::worstAt(const QModelIndex& cell) const
{
    if (!cell.isValid() || !hasWorst(cell))
        return std::nullopt;
    const auto group = groupAt(cell.row());
    return columnAt(cell.column())
        .worst(rowOf(at(cell.row())), group ? members(*group) : std::span(m_all));
}

// --- cells ---

const StatisticsTableModel::Group& StatisticsTableModel::at(int row) const
{
    const auto group = groupAt(row);
    return group ? m_groups[*group] : m_totals;
}

StatisticsRow StatisticsTableModel::rowOf(const Group& group) const
{
    return {group.figures, *m_sample, group.stakedUntilThen};
}

const StatisticsColumn& StatisticsTableModel::columnAt(int column) const
{
    return m_columns[static_cast<std::size_t>(column) - 1];
}

/// \param column  of numbers
double StatisticsTableModel::number(const Group& group, int column) const
{
    return columnAt(column).number(rowOf(group));
}

QString StatisticsTableModel::text(const Group& group, int column) const
{
    if (column == 0)
        return group.name;
    const StatisticsColumn& figure = columnAt(column);
    return figure.text != nullptr ? group.texts[static_cast<std::size_t>(column) - 1]
                                  : figure.shown(number(group, column));
}

/// The name of the group may be scrolled away.
QString StatisticsTableModel::toolTip(const QModelIndex& index) const
{
    const Group& group = at(index.row());
    if (index.column() == 0 && group.isInOrder)
        return group.name + QLatin1Char('\n') +
               (group.figures.hasDesign ? tr("All points are staked and within the limits")
                                        : tr("All results are within the limits"));
    if (index.column() == 0 || text(group, index.column()).isEmpty())
        return group.name;
    const QString figure =
        tr("%1: %2 = %3")
            .arg(group.name, columnAt(index.column()).captionText(), text(group, index.column()));
    return hasWorst(index) ? figure + QLatin1Char('\n') + tr("Click to go to this result") : figure;
}

/// The names of groups without one begin at the same place.
QVariant StatisticsTableModel::tick(const Group& group) const
{
    if (group.isInOrder)
        return QIcon::fromTheme(QStringLiteral("dialog-ok-apply"));
    if (!m_hasTicks)
        return {};
    QPixmap blank(dpi_scaled(kTickSize), dpi_scaled(kTickSize));
    blank.fill(Qt::transparent);
    return QIcon(blank);
}

QVariant StatisticsTableModel::background(const Group& group, int column) const
{
    if (column == 0)
        return {};
    const StatisticsColumn& figure = columnAt(column);
    if (figure.isWarning)
        return text(group, column).isEmpty() ? QVariant() : warningBackground();
    if (figure.number == nullptr)
        return {};
    const double value = number(group, column);
    const bool isFault = (figure.most != nullptr && value > figure.most(m_sample->limits)) ||
                         (figure.least != nullptr && value < figure.least(m_sample->limits));
    return isFault ? faultBackground() : QVariant();
}

bool StatisticsTableModel::hasWorst(const QModelIndex& index) const
{
    return index.column() > 0 && columnAt(index.column()).worst != nullptr &&
           !text(at(index.row()), index.column()).isEmpty();
}

int StatisticsTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() || m_sample == nullptr ? 0 : 1 + static_cast<int>(m_rows.size());
}

int StatisticsTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : 1 + static_cast<int>(m_columns.size());
}

QVariant StatisticsTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || m_sample == nullptr)
        return {};
    const Group& group = at(index.row());
    const int column = index.column();
    switch (role) {
    case Qt::DisplayRole:
        return text(group, column);
    case Qt::TextAlignmentRole:
        return headerData(column, Qt::Horizontal, role);
    case Qt::DecorationRole:
        return column == 0 ? tick(group) : QVariant();
    case Qt::BackgroundRole:
        return background(group, column);
    case Qt::ForegroundRole:
        return hasWorst(index) ? QGuiApplication::palette().color(QPalette::Link) : QVariant();
    case Qt::ToolTipRole:
        return toolTip(index);
    case Qt::FontRole: {
        QFont font = QGuiApplication::font();
        font.setBold(index.row() == 0);
        font.setUnderline(hasWorst(index));
        return font;
    }
    default:
        return {};
    }
}

QVariant StatisticsTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return QAbstractTableModel::headerData(section, orientation, role);
    if (role == Qt::TextAlignmentRole) {
        const bool isText = section == 0 || columnAt(section).text != nullptr;
        return int((isText ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    }
    if (role != Qt::DisplayRole)
        return {};
    if (section > 0)
        return columnAt(section).captionText();
    return m_key ? statisticsKeyName(*m_key) : tr("Results");
}
