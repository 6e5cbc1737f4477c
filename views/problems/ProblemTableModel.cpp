#include "views/problems/ProblemTableModel.h"

#include "basalt_utilities/FixedDecimals.h"
#include "basalt_utilities/Numbers.h"
#include "exchange/ShownTimes.h"
#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_sdk/Text.h"
#include "model/PointNumber.h"
#include "views/problems/SeverityIcon.h"
#include "views/tables/SortKeys.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <optional>
#include <utility>

namespace {

constexpr double kTolerance = 0.0005; // of numbers that are shown with three decimals

ProblemField field(int column)
{
    return static_cast<ProblemField>(column);
}

/// The text of a column that is stored as it is shown; nothing for the others.
std::optional<std::string_view> storedText(const Problem& problem, ProblemField column)
{
    switch (column) {
    case ProblemField::Line:
        return problem.line.view();
    case ProblemField::Point:
        return shownPointNumber(problem);
    case ProblemField::Rover:
        return problem.rover.view();
    case ProblemField::Surveyor:
        return problem.surveyor.view();
    default:
        return std::nullopt;
    }
}

bool isOfKindAlone(ProblemField column)
{
    return column == ProblemField::Severity || column == ProblemField::Kind;
}

bool isNumber(ProblemField column)
{
    return column == ProblemField::Value || column == ProblemField::Limit;
}

FilteredValue filteredValue(ProblemField column)
{
    if (column == ProblemField::Day)
        return FilteredValue::Time;
    return isNumber(column) ? FilteredValue::Number : FilteredValue::Text;
}

double number(const Problem& problem, ProblemField column)
{
    return column == ProblemField::Value ? problem.value : problem.limit;
}

char smallLetter(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

void addSmall(std::string& text, std::string_view more)
{
    std::transform(more.begin(), more.end(), std::back_inserter(text), smallLetter);
}

bool isSame(const Problem& a, const Problem& b)
{
    return a.kind == b.kind && a.isDesign == b.isDesign && a.point == b.point && a.line == b.line &&
           a.otherPoint == b.otherPoint && a.detail == b.detail;
}

} // namespace

ProblemTableModel::ProblemTableModel(QObject* parent)
    : ShownRowsModel(parent), m_expressions(problemColumns().size()),
      m_filters(problemColumns().size()), m_icons{severityIcon(Severity::Note),
                                                  severityIcon(Severity::Warning),
                                                  severityIcon(Severity::Error)}
{
}

int ProblemTableModel::setProblems(ProblemList&& problems, int row)
{
    const Problem followed = row < 0 ? Problem() : problem(row);
    beginResetModel();
    const ProblemList before = std::exchange(m_problems, std::move(problems)); // has its texts
    m_rows.clear();
    count();
    putInOrder();
    arrange();
    endResetModel();
    const auto isFollowed = [&](std::uint32_t place) { return isSame(*m_rows[place], followed); };
    const int count = followed.kind == nullptr ? 0 : rowCount();
    int found = 0;
    while (found < count && !isFollowed(m_shown.pointAt(found)))
        ++found;
    return found < count ? found : -1;
}

/// Counts the kinds, and gives them their order.
void ProblemTableModel::count()
{
    m_kinds.clear();
    std::size_t last = 0; // the next problem is mostly of the same kind
    for (const Problem& problem : m_problems) {
        if (last >= m_kinds.size() || m_kinds[last].kind != problem.kind)
            last = rankOf(problem.kind);
        if (last == m_kinds.size())
            m_kinds.push_back({problem.kind});
        ++(problem.isAccepted ? m_kinds[last].accepted : m_kinds[last].open);
    }
    std::ranges::stable_sort(m_kinds, {}, [](const ProblemKindCount& kind) {
        return std::pair(-static_cast<int>(kind.kind->severity), kind.kind->rank);
    });
}

void ProblemTableModel::putInOrder()
{
    std::vector<std::size_t> places(m_kinds.size() + 1); // where each kind begins
    for (std::size_t i = 0; i < m_kinds.size(); ++i)
        places[i + 1] = places[i] + static_cast<std::size_t>(m_kinds[i].open + m_kinds[i].accepted);
    m_rows.resize(m_problems.size());
    std::size_t rank = 0;
    for (const Problem& problem : m_problems) {
        if (m_kinds[rank].kind != problem.kind)
            rank = rankOf(problem.kind);
        m_rows[places[rank]++] = &problem;
    }
}

/// The number of kinds for one that is not among them.
std::size_t ProblemTableModel::rankOf(const ProblemKind* kind) const
{
    const auto found = std::ranges::find(m_kinds, kind, &ProblemKindCount::kind);
    return static_cast<std::size_t>(found - m_kinds.begin());
}

int ProblemTableModel::rowOf(bool isDesign, std::string_view line, std::string_view point) const
{
    for (int row = 0; row < rowCount(); ++row) {
        const Problem& shown = problem(row);
        if (shown.isDesign == isDesign && shown.point == point && shown.line == line)
            return row;
    }
    return -1;
}

void ProblemTableModel::setChoice(Choice choice)
{
    if (choice == m_choice)
        return;
    m_choice = std::move(choice);
    relayout();
}

void ProblemTableModel::setSearch(const QString& text)
{
    m_search.clear();
    addSmall(m_search, text.trimmed().toStdString());
    relayout();
}

void ProblemTableModel::setFilter(int column, const QString& expression)
{
    const auto place = static_cast<std::size_t>(column);
    if (m_expressions[place] == expression)
        return;
    m_expressions[place] = expression;
    m_filters[place] = RowFilter(expression, filteredValue(field(column)),
                                 isNumber(field(column)) ? kTolerance : 0);
    relayout();
}

QString ProblemTableModel::filterFault(int column) const
{
    return m_filters[static_cast<std::size_t>(column)].fault();
}

QString ProblemTableModel::filterFor(const QModelIndex& cell) const
{
    const ProblemField name = field(cell.column());
    if (!isNumber(name))
        return rowFilterFor(cell.data().toString());
    const double value = number(problem(cell.row()), name);
    return std::isnan(value)
               ? QString()
               : QStringLiteral("= ") + QString::fromStdString(basalt::formatFixed(value, 3));
}

bool ProblemTableModel::isFiltered() const
{
    return !m_search.empty() ||
           std::ranges::any_of(m_filters, [](const RowFilter& f) { return !f.isEmpty(); });
}

void ProblemTableModel::clearFilters()
{
    m_search.clear();
    std::ranges::fill(m_expressions, QString());
    std::ranges::fill(m_filters, RowFilter());
    relayout();
}

void ProblemTableModel::sortBy(int column, Qt::SortOrder order)
{
    m_sortColumn = column;
    m_sortOrder = order;
    relayout();
}

void ProblemTableModel::refresh()
{
    if (m_zoneName != shownZone())
        relayout();
}

void ProblemTableModel::relayout()
{
    changeLayout([this](const Places& /*places*/) { arrange(); });
}

template <class Judge>
void ProblemTableModel::keep(Places& places, Judge judge) const
{
    std::erase_if(places, [&](std::uint32_t place) { return !judge(*m_rows[place]); });
}

void ProblemTableModel::arrange()
{
    m_zone = shownTimes();
    m_zoneName = shownZone();
    Places places(m_rows.size());
    std::iota(places.begin(), places.end(), 0U);
    keep(places, [this](const Problem& problem) { return isChosen(problem); });
    m_chosen = static_cast<int>(places.size());
    if (!m_search.empty())
        keep(places, [this](const Problem& problem) { return isFound(problem); });
    for (int column = 0; column < columnCount(); ++column) {
        if (!m_filters[static_cast<std::size_t>(column)].isEmpty())
            narrow(places, column);
    }
    if (m_sortColumn >= 0)
        sort(places);
    m_shown.set(std::move(places), m_sortColumn < 0, m_rows.size());
}

bool ProblemTableModel::isChosen(const Problem& problem) const
{
    return problem.isAccepted == m_choice.isAccepted &&
           (m_choice.kinds.empty() ||
            std::ranges::find(m_choice.kinds, problem.kind) != m_choice.kinds.end());
}

bool ProblemTableModel::isFound(const Problem& problem) const
{
    m_text.clear();
    const auto add = [this](char separator, std::string_view text) {
        m_text += separator;
        addSmall(m_text, text);
    };
    add('\n', problem.line);
    add('/', shownPointNumber(problem));
    add('\n', problem.otherLine);
    add('/', writtenPointNumber(problem.otherPoint.view()));
    add('\n', problem.rover);
    add('\n', problem.surveyor);
    add('\n', problem.detail);
    if (std::exchange(m_foundKind, problem.kind) != problem.kind) {
        m_foundCaption = '\n';
        addSmall(m_foundCaption, problem.kind->captionText().toStdString());
    }
    m_text += m_foundCaption;
    return m_text.find(m_search) != std::string::npos;
}

/// Keeps the problems that pass the filter of a column.
void ProblemTableModel::narrow(Places& places, int column) const
{
    constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
    const RowFilter& filter = m_filters[static_cast<std::size_t>(column)];
    const ProblemField name = field(column);
    const auto passes = [&](const Problem& problem) {
        return filter.passes(
            [&] {
                return isNumber(name) ? number(problem, name)
                                      : basalt::wholeDecimal(text(problem, column)).value_or(kNone);
            },
            [&] { return text(problem, column); });
    };
    if (!isOfKindAlone(name))
        return keep(places, passes);
    const ProblemKind* last = nullptr;
    bool hasPassed = false;
    keep(places, [&](const Problem& problem) {
        if (std::exchange(last, problem.kind) != problem.kind)
            hasPassed = passes(problem);
        return hasPassed;
    });
}

void ProblemTableModel::sort(Places& places) const
{
    const bool isDescending = m_sortOrder == Qt::DescendingOrder;
    const ProblemField name = field(m_sortColumn);
    std::vector<SortItem> items;
    items.reserve(places.size());
    for (const std::uint32_t place : places)
        items.push_back({0, place});
    const auto sortBy = [&](const auto& keyOf) {
        for (SortItem& item : items)
            item.key = keyOf(*m_rows[item.row]);
        sortByKeys(items, isDescending);
    };
    const auto stored = [&](std::uint32_t row) { return *storedText(*m_rows[row], name); };
    switch (name) {
    case ProblemField::Severity:
        sortBy([](const Problem& problem) {
            return sortKey(static_cast<std::int64_t>(problem.kind->severity));
        });
        break;
    case ProblemField::Line:
    case ProblemField::Point:
        sortByNames(items, isDescending, stored);
        break;
    case ProblemField::Rover:
    case ProblemField::Surveyor:
        sortByTexts(items, isDescending, stored);
        break;
    case ProblemField::Kind:
        sortByTexts(items, isDescending,
                    [&](std::uint32_t row) { return text(*m_rows[row], m_sortColumn); });
        break;
    case ProblemField::What: // the sentences of a kind differ by their numbers
        sortBy([](const Problem& problem) { return sortKey(problem.value); });
        sortBy([&](const Problem& problem) { return std::uint64_t(rankOf(problem.kind)); });
        break;
    case ProblemField::Day:
        sortBy([](const Problem& problem) {
            return problem.timeMs == 0 ? kNoValueKey : sortKey(problem.timeMs);
        });
        break;
    default:
        sortBy([&](const Problem& problem) { return sortKey(number(problem, name)); });
    }
    std::ranges::transform(items, places.begin(), &SortItem::row);
}

/// As it is shown, valid until the next call.
std::string_view ProblemTableModel::text(const Problem& problem, int column) const
{
    if (const auto stored = storedText(problem, field(column)))
        return *stored;
    m_text = problemColumns()[static_cast<std::size_t>(column)].text(problem, m_zone).toStdString();
    return m_text;
}

QVariant ProblemTableModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Problem& shown = problem(index.row());
    const ProblemField name = field(index.column());
    switch (role) {
    case Qt::DisplayRole:
        return problemColumns()[static_cast<std::size_t>(index.column())].text(shown, m_zone);
    case Qt::DecorationRole:
        return name == ProblemField::Severity
                   ? QVariant(m_icons[static_cast<std::size_t>(shown.kind->severity)])
                   : QVariant();
    case Qt::ToolTipRole: // the sentence may be cut off, and the severity be an icon
        return name == ProblemField::Severity ? severityText(shown.kind->severity)
                                              : shown.kind->what(shown);
    case Qt::TextAlignmentRole:
        return int((isNumber(name) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    default:
        return {};
    }
}

QVariant ProblemTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return ShownRowsModel::headerData(section, orientation, role);
    const ProblemField name = field(section);
    switch (role) {
    case Qt::DisplayRole:
        return problemColumns()[static_cast<std::size_t>(section)].captionText();
    case Qt::TextAlignmentRole:
        return int((isNumber(name) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    case CustomTableWidget::kLongestTextsRole:
        if (name == ProblemField::Severity)
            return QStringList{QStringLiteral("___") + severityText(Severity::Warning),
                               QStringLiteral("___") + severityText(Severity::Error)};
        return {};
    default:
        return ShownRowsModel::headerData(section, orientation, role);
    }
}
