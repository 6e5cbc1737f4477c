#include "reports/ParameterWords.h"

#include "basalt_utilities/IDictionary.h"
#include "basalt_utilities/KeyList.h"
#include "basalt_utilities/Numbers.h"
#include "lum_sdk/coords/CoordProjections.h"
#include "lum_sdk/coords/LengthUnit.h"
#include "lum_sdk/Text.h"
#include "quality/QualityLimits.h"
#include "reports/ControlRows.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <set>

namespace {

std::set<std::string_view> words(std::string_view list)
{
    std::set<std::string_view> result;
    while (!list.empty())
        result.insert(next_word3(list, ','));
    return result;
}

void add(std::vector<ParameterGroup>& groups, const QString& caption, const QString& text)
{
    if (groups.empty() || groups.back().caption != caption)
        groups.push_back({caption, text});
    else
        groups.back().text += QLatin1String("; ") + text;
}

/// Decides which rows of a coordinate system have an effect.
class UsedRows
{
public:
    explicit UsedRows(const IDictionary& parameters) : m_parameters(parameters)
    {
        for (const lum::ProjectionKind& kind : lum::projectionKinds())
            m_ofProjections.merge(words(kind.keys));
        const lum::ProjectionKind* const kind = lum::projectionKind(parameters);
        m_ofThis = words(kind == nullptr ? "" : kind->keys);
    }

    /// To be asked for each row in turn: the first of some groups switches them on.
    bool isUsed(const ControlRow& row)
    {
        const bool isFirst = row.group != m_group;
        m_group = row.group;
        if (isFirst) {
            m_isSwitched = row.editor == "flag" || row.key == "_7type";
            m_isOn = !m_isSwitched || m_parameters.integer(row.key) != 0;
        }
        if (row.key == "ellipsoid_name")
            return m_parameters.text(row.key, row.fallback) != row.fallback;
        if (m_ofProjections.contains(row.key))
            return m_ofThis.contains(row.key);
        return m_isOn && row.editor != "flag" && (!m_isSwitched || !isUsual(row));
    }

private:
    /// Of a shift or correction, that it does not change.
    [[nodiscard]] bool isUsual(const ControlRow& row) const
    {
        return row.editor != "file" &&
               basalt::parseNumber(m_parameters.text(row.key, row.fallback)) ==
                   basalt::parseNumber(row.fallback);
    }

    const IDictionary& m_parameters;
    std::set<std::string_view> m_ofProjections;
    std::set<std::string_view> m_ofThis;
    QString m_group;
    bool m_isSwitched = false;
    bool m_isOn = true;
};

} // namespace

std::vector<ParameterGroup> coordSystemWords(const IDictionary& coordParameters)
{
    std::vector<ParameterGroup> groups;
    if (coordParameters.number("ellipsoid_a") == 0 && coordParameters.integer("project_type") == 0)
        return groups;
    const auto planeLengths = words(lum::kPlaneLengths);
    const QString planeUnit = lum::toQString(symbolOf(lum::lengthUnitOf(coordParameters)));
    UsedRows used(coordParameters);
    for (ControlRow& row : readControlRows("CoordSystem")) {
        if (!used.isUsed(row))
            continue;
        if (planeLengths.contains(row.key))
            row.unit = planeUnit;
        QString value = row.textOf(coordParameters.text(row.key));
        if (row.editor == "file")
            value = QFileInfo(value).fileName();
        add(groups, row.group,
            row.editor == "choice" ? value : row.caption + QLatin1Char(' ') + value);
    }
    return groups;
}

QString heightKind(const IDictionary& coordParameters)
{
    if (coordParameters.integer("geoid_valid") == 0)
        return QCoreApplication::translate(
            "Reports", "Elevation as measured; no geoid is in use, so the sea height is the same.");
    const QString file = lum::toQString(coordParameters.text("geoid_file"));
    return QCoreApplication::translate(
               "Reports", "Elevation as measured; the sea height is by the geoid \"%1\".")
        .arg(QFileInfo(file).fileName());
}

std::vector<ParameterGroup> limitWords(const IDictionary& qualityParameters)
{
    std::vector<ParameterGroup> groups;
    for (const ControlRow& row : readControlRows("QCParam"))
        add(groups, row.group,
            row.caption + QLatin1Char(' ') +
                row.textOf(qualityParameter(qualityParameters, row.key)));
    return groups;
}
