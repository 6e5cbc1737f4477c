#include "views/tables/SurveyTableModel.h"

#include "exchange/CsvRow.h"
#include "exchange/ShownTimes.h"
#include "exchange/SurveyFieldTexts.h"
#include "lum_desktop_sdkx/controls/FaultColors.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "model/CodeTables.h"
#include "project/DataProcessDataManager.h"
#include "protocol/StatusKeys.h"
#include "quality/QualityLimits.h"
#include "quality/QualityTests.h"
#include "views/tables/PointTable.h"
#include "views/tables/ResultMarks.h"
#include "views/tables/SurveyTableColumns.h"

#include <QColor>

namespace {

constexpr int kUnknownSolution = 8; // the first code without a name of its own

using Column = TableColumn<SurveyPoint>;

void setKind(Column& column, CsvForm form)
{
    switch (form) {
    case CsvForm::Angle:
        column.decimals = 8;
        break;
    case CsvForm::Decimals4:
        column.decimals = 4;
        break;
    case CsvForm::Decimals6:
        column.decimals = 6;
        break;
    case CsvForm::SixDigitsReadWhole:
    case CsvForm::Integer:
    case CsvForm::WholePart:
        break;
    case CsvForm::Time:
        column.kind = ColumnKind::Time;
        break;
    case CsvForm::PointNumber:
        column.kind = ColumnKind::Name;
        break;
    case CsvForm::SolutionType:
        column.kind = ColumnKind::Text;
        for (int code = 0; code <= kUnknownSolution; ++code)
            column.longestTexts << solutionTypeText(code);
        break;
    case CsvForm::MeasureMode:
        column.kind = ColumnKind::Text;
        column.longestTexts << measureModeText(0) << measureModeText(1);
        break;
    default:
        column.kind = ColumnKind::Text;
    }
}

std::vector<Column> makeColumns()
{
    const QStringList captions = surveyTableCaptions();
    std::vector<Column> columns;
    for (int i = 0; i < captions.size(); ++i) {
        const SurveyColumn& shown = surveyTableColumn(i);
        Column column{surveyTableKeys()[i], captions[i], ColumnKind::Number, shown.member};
        setKind(column, shown.csv);
        if (shown.member == SurveyColumn::Member(&SurveyPoint::lineNumber))
            column.kind = ColumnKind::Name;
        columns.push_back(std::move(column));
    }
    return columns;
}

SurveyFieldTexts makeTexts()
{
    return SurveyFieldTexts(get_system_status_dictionary().integer(status::kDegreeFormat),
                            shownTimes());
}

class SurveyTableModel final : public PointTable<SurveyPoint>
{
public:
    SurveyTableModel() : PointTable(makeColumns()), m_texts(makeTexts()) {}

protected:
    [[nodiscard]] const SurveyPoints* points() const override
    {
        return DataProcessDataManager::hasInstance()
                   ? &DataProcessDataManager::instance().surveyPoints()
                   : nullptr;
    }
    void renewTexts(Renewal renewal) override
    {
        m_texts = makeTexts();
        m_marks.renew(renewal == Renewal::Values);
    }
    [[nodiscard]] std::string_view text(const SurveyPoint& point, int column) const override
    {
        m_row.clear();
        m_texts.add(m_row, point, surveyTableColumn(column));
        std::string_view text = m_row.finished();
        text.remove_suffix(1); // the end of the line
        return text;
    }
    [[nodiscard]] QVariant look(const SurveyPoint& point, int column, int role) const override
    {
        if (role == Qt::ForegroundRole)
            return {};
        const SurveyColumn::Member& field = surveyTableColumn(column).member;
        const bool isNumber = field == SurveyColumn::Member(&SurveyPoint::pointNumber);
        if (isNumber && m_marks.areShown() && role != Qt::BackgroundRole)
            return m_marks.look(&point, role);
        const QualityTest* const failed =
            role == Qt::DecorationRole ? nullptr : failedTest(point, field);
        if (failed == nullptr)
            return {};
        if (role == Qt::BackgroundRole)
            return faultBackground();
        return failureText(*failed, point, DataProcessDataManager::instance().qualityLimits());
    }

private:
    ResultMarks m_marks;
    mutable SurveyFieldTexts m_texts;
    mutable CsvRow m_row;
};

} // namespace

std::unique_ptr<PointTableModel> makeSurveyTableModel()
{
    return std::make_unique<SurveyTableModel>();
}
