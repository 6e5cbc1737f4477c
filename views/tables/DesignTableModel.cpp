#include "views/tables/DesignTableModel.h"

#include "basalt_utilities/FixedDecimals.h"
#include "basalt_utilities/Numbers.h"
#include "lum_desktop_sdkx/controls/FaultColors.h"
#include "project/DataProcessDataManager.h"
#include "views/tables/PointTable.h"
#include "views/tables/ResultMarks.h"

#include <QColor>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QPalette>

#include <array>

namespace {

using Column = TableColumn<DesignPoint>;

constexpr int kDecimals = 3;
constexpr int kSurveyed = 1;
constexpr int kNumberColumn = 0;
constexpr int kStatusColumn = 8;
constexpr const char* kSurveyedText = QT_TRANSLATE_NOOP("DesignTable", "surveyed");
constexpr const char* kNotSurveyedText = QT_TRANSLATE_NOOP("DesignTable", "not surveyed");

QString translated(const char* text)
{
    return QCoreApplication::translate("DesignTable", text);
}

std::vector<Column> makeColumns()
{
    using Kind = ColumnKind;
    struct Plan
    {
        const char* key;
        const char* caption;
        Column::Field field;
        Kind kind;
        int decimals = -1;
    };
    const Plan plans[] = {
        {"point_num", QT_TRANSLATE_NOOP("DesignTable", "point num"), &DesignPoint::pointNumber,
         Kind::Name},
        {"line_num", QT_TRANSLATE_NOOP("DesignTable", "line num"), &DesignPoint::lineNumber,
         Kind::Name},
        {"north", QT_TRANSLATE_NOOP("DesignTable", "north"), &DesignPoint::north, Kind::Number,
         kDecimals},
        {"east", QT_TRANSLATE_NOOP("DesignTable", "east"), &DesignPoint::east, Kind::Number,
         kDecimals},
        {"elevation", QT_TRANSLATE_NOOP("DesignTable", "elevation"), &DesignPoint::elevation,
         Kind::Number, kDecimals},
        {"design_code", QT_TRANSLATE_NOOP("DesignTable", "design code"), &DesignPoint::pointNumber,
         Kind::Name}, // points have no code of their own
        {"azimuth", QT_TRANSLATE_NOOP("DesignTable", "azimuth"), &DesignPoint::azimuth,
         Kind::Number},
        {"type", QT_TRANSLATE_NOOP("DesignTable", "type"), &DesignPoint::type, Kind::Text},
        {"status", QT_TRANSLATE_NOOP("DesignTable", "status"), &DesignPoint::status, Kind::Text},
    };
    std::vector<Column> columns;
    for (const Plan& plan : plans)
        columns.push_back({QString::fromLatin1(plan.key), translated(plan.caption), plan.kind,
                           plan.field, plan.decimals});
    columns[kStatusColumn].longestTexts << translated(kSurveyedText)
                                        << translated(kNotSurveyedText);
    return columns;
}

class DesignTableModel final : public PointTable<DesignPoint>
{
public:
    DesignTableModel() : PointTable(makeColumns()) {}

protected:
    [[nodiscard]] const DesignPoints* points() const override
    {
        return DataProcessDataManager::hasInstance()
                   ? &DataProcessDataManager::instance().designPoints()
                   : nullptr;
    }
    void renewTexts(Renewal renewal) override
    {
        m_surveyed = translated(kSurveyedText).toStdString();
        m_notSurveyed = translated(kNotSurveyedText).toStdString();
        m_lineStart = nullptr;
        m_marks.renew(renewal == Renewal::Values);
    }
    [[nodiscard]] std::string_view text(const DesignPoint& point, int column) const override
    {
        switch (column) {
        case 0:
        case 5:
            return point.pointNumber;
        case 1:
            return point.lineNumber;
        case 2:
            return fixed(point.north);
        case 3:
            return fixed(point.east);
        case 4:
            return fixed(point.elevation);
        case 6:
            return m_number = basalt::formatShortest(point.azimuth);
        case 7:
            return lineType(point) == 0 ? "S" : "R";
        default:
            return point.status == kSurveyed ? m_surveyed : m_notSurveyed;
        }
    }
    [[nodiscard]] QVariant look(const DesignPoint& point, int column, int role) const override
    {
        if (column == kNumberColumn && m_marks.areShown() && role != Qt::ForegroundRole)
            return m_marks.look(resultOf(point), role);
        const bool isMissing = column == kStatusColumn && point.status != kSurveyed;
        return isMissing && role == Qt::ForegroundRole
                   ? QVariant(faultText(QGuiApplication::palette()))
                   : QVariant();
    }

private:
    /// The result with the point's own numbers; null when there is none.
    [[nodiscard]] static const SurveyPoint* resultOf(const DesignPoint& point)
    {
        const SurveyPoints& survey = DataProcessDataManager::instance().surveyPoints();
        return survey.find(point.lineNumber, point.pointNumber);
    }
    [[nodiscard]] std::string_view fixed(double value) const
    {
        const char* const end = basalt::writeFixed(m_buffer.data(), value, kDecimals);
        return {m_buffer.data(), static_cast<std::size_t>(end - m_buffer.data())};
    }
    /// That of its first point. The next point is mostly of the same line.
    [[nodiscard]] int lineType(const DesignPoint& point) const
    {
        if (m_lineStart == nullptr || m_lineStart->lineNumber != point.lineNumber)
            m_lineStart = &*points()->findLine(point.lineNumber)->begin();
        return m_lineStart->type;
    }

    ResultMarks m_marks;
    std::string m_surveyed;
    std::string m_notSurveyed;
    mutable std::array<char, basalt::kFixedSize> m_buffer{};
    mutable std::string m_number;
    mutable const DesignPoint* m_lineStart = nullptr;
};

} // namespace

std::unique_ptr<PointTableModel> makeDesignTableModel()
{
    return std::make_unique<DesignTableModel>();
}
