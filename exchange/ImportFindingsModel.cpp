#include "exchange/ImportFindingsModel.h"

#include "lum_sdk/Text.h"
#include "model/PointNumber.h"

#include <QCoreApplication>

#include <iterator>

namespace {

using Place = ImportSummary::Findings::Place;

struct Column
{
    const char* caption = "";
    QString (*shown)(const QString& kind, const Place& place) = nullptr;
    Qt::Alignment alignment = Qt::AlignLeft;
};

constexpr Column kColumns[] = {
    {QT_TRANSLATE_NOOP("ImportFindingsModel", "Finding"),
     [](const QString& kind, const Place& /*place*/) { return kind; }},
    {QT_TRANSLATE_NOOP("ImportFindingsModel", "Line of the File"),
     [](const QString& /*kind*/, const Place& place) {
         return place.line == 0 ? QString() : QString::number(place.line);
     },
     Qt::AlignRight},
    {QT_TRANSLATE_NOOP("ImportFindingsModel", "Line Num"),
     [](const QString& /*kind*/, const Place& place) { return lum::toQString(place.point.line); }},
    {QT_TRANSLATE_NOOP("ImportFindingsModel", "Point Num"),
     [](const QString& /*kind*/, const Place& place) {
         return lum::toQString(writtenPointNumber(place.point.point));
     }},
    {QT_TRANSLATE_NOOP("ImportFindingsModel", "What Was Found"),
     [](const QString& /*kind*/, const Place& place) { return place.text; }},
};

constexpr int kFileLineColumn = 1;

} // namespace

ImportFindingsModel::ImportFindingsModel(const ImportSummary& summary, QObject* parent)
    : QAbstractTableModel(parent), m_isDatabase(summary.isDatabase)
{
    for (const ImportSummary::Kind& kind : summary.kinds()) {
        for (const Place& place : kind.findings.first)
            m_rows.push_back({kind.caption, place});
    }
}

int ImportFindingsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int ImportFindingsModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(std::size(kColumns));
}

QVariant ImportFindingsModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& row = m_rows[static_cast<std::size_t>(index.row())];
    const Column& column = kColumns[index.column()];
    if (role == Qt::DisplayRole)
        return column.shown(row.kind, row.place);
    if (role == Qt::TextAlignmentRole)
        return int(column.alignment | Qt::AlignVCenter);
    if (role == Qt::ToolTipRole && index.column() == columnCount() - 1)
        return row.place.text.toHtmlEscaped();
    if (index.column() != 0)
        return {};
    switch (role) {
    case kPointNumber:
        return lum::toQString(row.place.point.point);
    case kLineNumber:
        return lum::toQString(row.place.point.line);
    case kFileLine:
        return static_cast<qulonglong>(row.place.line);
    default:
        return {};
    }
}

QVariant ImportFindingsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal || section < 0 ||
        section >= columnCount())
        return QAbstractTableModel::headerData(section, orientation, role);
    const char* const caption = section == kFileLineColumn && m_isDatabase
                                    ? QT_TRANSLATE_NOOP("ImportFindingsModel", "Result")
                                    : kColumns[section].caption;
    return QCoreApplication::translate("ImportFindingsModel", caption);
}
