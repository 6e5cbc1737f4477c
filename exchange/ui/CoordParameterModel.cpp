#include "exchange/ui/CoordParameterModel.h"

#include "basalt_utilities/IDictionary.h"
#include "basalt_utilities/Product.h"
#include "exchange/SameCoordSystem.h"
#include "lum_desktop_sdkx/controls/FaultColors.h"
#include "lum_desktop_sdkx/controls/PropertyGridInput.h"
#include "lum_desktop_sdkx/controls/PropertyGridLayout.h"
#include "lum_desktop_sdkx/coords/CoordSystemRows.h"
#include "lum_sdk/coords/EpsgSystem.h"
#include "lum_sdk/coords/LengthUnit.h"
#include "lum_sdk/Text.h"

#include <QColor>
#include <QFile>

#include <algorithm>

namespace {

constexpr const char* kRegister = "EPSG:";

QString dash()
{
    return QStringLiteral("\u2013");
}

PropertyGridLayout parameterLayout()
{
    QFile file(QString::fromStdString(basalt::controlFile("CoordSystem")));
    PropertyGridLayout layout;
    if (file.open(QIODevice::ReadOnly))
        static_cast<void>(readPropertyGridLayout(file.readAll(), layout));
    return layout; // empty when the installation is damaged, which the coordinate dialog tells
}

QString identity(const IDictionary& parameters)
{
    const QString id = lum::toQString(parameters.text("coord_param_id"));
    if (!id.startsWith(QLatin1String(kRegister)))
        return dash();
    const QString code = id.mid(static_cast<int>(qstrlen(kRegister)));
    return QStringLiteral("%1   %2").arg(id, QString::fromStdString(epsgName(code.toStdString())));
}

QString unitOf(const IDictionary& parameters)
{
    return lum::toQString(lum::symbolOf(lum::lengthUnitOf(parameters)));
}

/// One of the two systems, as the coordinate dialog shows it.
class ShownSystem
{
public:
    explicit ShownSystem(const IDictionary& parameters)
        : m_parameters(parameters), m_unit(unitOf(parameters))
    {
        for (const auto& [key, isShown] : CoordSystemRows::visibilities(parameters)) {
            if (!isShown)
                m_hidden.insert(key);
        }
    }

    [[nodiscard]] bool shows(const PropertyGridRow& row) const
    {
        return m_hidden.count(row.key) == 0;
    }
    [[nodiscard]] QString value(PropertyGridRow row) const
    {
        const auto& lengths = CoordSystemRows::planeLengths();
        if (std::find(lengths.begin(), lengths.end(), row.key) != lengths.end())
            row.unit = m_unit;
        if (row.key == QLatin1String("ellipsoid_name"))
            return shownPropertyGridValue(row, CoordSystemRows::ellipsoidName(m_parameters));
        const auto stored = m_parameters.find(row.key.toStdString());
        const QString value = stored ? lum::toQString(*stored) : row.fallback;
        if (row.editor == PropertyGridRow::Editor::Flag)
            return value.toInt() != 0 ? CoordParameterModel::tr("yes")
                                      : CoordParameterModel::tr("no");
        return value.isEmpty() ? dash() : shownPropertyGridValue(row, value);
    }
    [[nodiscard]] QString caption(const PropertyGridRow& row) const
    {
        return row.key == QLatin1String("parallel_1_lat")
                   ? CoordSystemRows::firstParallelCaption(m_parameters)
                   : row.caption;
    }

private:
    const IDictionary& m_parameters;
    QString m_unit;
    std::set<QString> m_hidden;
};

/// What differs by the test of the same system, which passes over the geoid and the unit.
std::set<std::string> differingKeys(const IDictionary& current, const IDictionary& file)
{
    const auto differing = differingParameters(current, file);
    std::set<std::string> keys(differing.begin(), differing.end());
    const bool hasGeoid = current.integer("geoid_valid") != 0;
    if (hasGeoid != (file.integer("geoid_valid") != 0))
        keys.insert("geoid_valid");
    else if (hasGeoid && current.text("geoid_file") != file.text("geoid_file"))
        keys.insert("geoid_file");
    return keys;
}

} // namespace

CoordParameterModel::CoordParameterModel(const IDictionary& current, const IDictionary& file,
                                         QObject* parent)
    : QAbstractTableModel(parent)
{
    addIdentity(current, file);
    addParameters(current, file, differingKeys(current, file));
    std::stable_partition(m_rows.begin(), m_rows.end(), [](const Row& row) { return row.isOnTop; });
    m_differences = static_cast<int>(std::count_if(m_rows.begin(), m_rows.end(),
                                                   [](const Row& row) { return row.isDifferent; }));
}

/// What the systems are called, and their unit; names alone make no difference.
void CoordParameterModel::addIdentity(const IDictionary& current, const IDictionary& file)
{
    m_rows.push_back({tr("Coordinate system"), {}, identity(file), identity(current)});
    const QString unit = unitOf(current);
    const QString fileUnit = unitOf(file);
    m_rows.push_back(
        {tr("Unit of coordinates"), {}, fileUnit, unit, unit != fileUnit, unit != fileUnit});
}

void CoordParameterModel::addParameters(const IDictionary& current, const IDictionary& file,
                                        const std::set<std::string>& different)
{
    const ShownSystem shownCurrent(current);
    const ShownSystem shownFile(file);
    for (const PropertyGridGroup& group : parameterLayout().groups) {
        for (const PropertyGridRow& row : group.rows) {
            const bool isDifferent = different.contains(row.key.toStdString());
            const bool inFile = shownFile.shows(row);
            const bool inCurrent = shownCurrent.shows(row);
            if (!isDifferent && !inFile && !inCurrent)
                continue;
            const bool isSwitched =
                inFile != inCurrent && different.contains(group.rows.front().key.toStdString());
            const ShownSystem& named = inCurrent ? shownCurrent : shownFile;
            m_rows.push_back({tr("%1: %2").arg(group.caption, named.caption(row)), row.description,
                              inFile ? shownFile.value(row) : dash(),
                              inCurrent ? shownCurrent.value(row) : dash(), isDifferent,
                              isDifferent || isSwitched});
        }
    }
}

int CoordParameterModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int CoordParameterModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : Columns;
}

QVariant CoordParameterModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& row = m_rows[static_cast<std::size_t>(index.row())];
    if (role == Qt::BackgroundRole && row.isDifferent)
        return faultBackground();
    if (role == Qt::ToolTipRole && index.column() == Parameter && !row.description.isEmpty())
        return row.description.toHtmlEscaped();
    if (role == Qt::TextAlignmentRole)
        return int(index.column() == Sign ? Qt::AlignCenter : Qt::AlignVCenter | Qt::AlignLeft);
    if (role != Qt::DisplayRole)
        return {};
    switch (index.column()) {
    case Sign:
        return row.isDifferent ? QStringLiteral("\u2260") : QString();
    case Parameter:
        return row.name;
    case FileSystem:
        return row.file;
    default:
        return row.current;
    }
}

QVariant CoordParameterModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case Parameter:
        return tr("Parameter");
    case FileSystem:
        return tr("File Coord Sys");
    case ProjectSystem:
        return tr("Proj Coord Sys");
    default:
        return QString();
    }
}
