#include "exchange/CoordCompareWorkbook.h"

#include "exchange/AngleText.h"
#include "exchange/CoordCompare.h"
#include "exchange/workbook/Workbook.h"
#include "lum_sdk/events/ProgressReporter.h"

#include <QCoreApplication>

#include <array>

namespace {

using Form = SheetColumn::Form;

constexpr std::size_t kRowsAStep = 5000; // of the progress
constexpr int kAngleDecimals = 8;
constexpr int kDecimals = 3;

// The texts of this table are Chinese in every language.
QString title()
{
    return QStringLiteral("外业坐标参数转换对照表");
}

std::vector<SheetColumn> columns(bool isDecimal)
{
    const SheetColumn latitude{QStringLiteral("纬度"), isDecimal ? Form::Number : Form::Code,
                               kAngleDecimals};
    SheetColumn longitude = latitude;
    longitude.caption = QStringLiteral("经度");
    std::vector<SheetColumn> all{{QStringLiteral("序号"), Form::Number},
                                 {QStringLiteral("测线名"), Form::Code},
                                 {QStringLiteral("测点名"), Form::Code},
                                 latitude,
                                 longitude};
    for (const char* caption :
         {"大地高", "北", "东", "高", "北", "东", "高", "北差", "东差", "高差"})
        all.push_back({QString::fromUtf8(caption), Form::Number, kDecimals});
    return all;
}

SheetLook look()
{
    constexpr int kNameColumns = 3;
    SheetLook look;
    look.title = title();
    look.groups = {{{}, kNameColumns},
                   {QStringLiteral("原始坐标"), 6},
                   {QStringLiteral("转换坐标"), 3},
                   {QStringLiteral("对比"), 3}};
    look.frozenColumns = kNameColumns;
    return look;
}

/// Latitudes and longitudes as cells.
class AngleCells
{
public:
    explicit AngleCells(int degreeFormat) : m_isDecimal(degreeFormat == 0), m_text(degreeFormat) {}

    void add(Sheet& sheet, double degrees)
    {
        if (m_isDecimal) {
            sheet.number(degrees);
            return;
        }
        const char* const end = m_text.write(m_buffer.data(), degrees);
        sheet.text({m_buffer.data(), static_cast<std::size_t>(end - m_buffer.data())});
    }

private:
    bool m_isDecimal;
    AngleText m_text;
    std::array<char, AngleText::kMostSize> m_buffer{};
};

void addTriple(Sheet& sheet, const CoordTriple& triple)
{
    sheet.number(triple.first).number(triple.second).number(triple.third);
}

} // namespace

Outcome writeCoordCompareWorkbook(const QString& path, const CoordCompare& comparison,
                                  int degreeFormat, ProgressReporter& progress)
{
    WorkbookInfo info;
    info.title = title();
    info.font = QStringLiteral("Simsun");
    Workbook book(path, info);
    Sheet& sheet = book.addSheet(title(), columns(degreeFormat == 0), look());
    AngleCells angles(degreeFormat);
    for (std::size_t row = 0; row < comparison.size() && !book.hasFailed(); ++row) {
        const SurveyPoint& record = comparison.record(row);
        sheet.integer(static_cast<std::int64_t>(row) + 1)
            .text(record.lineNumber)
            .text(record.pointNumber);
        angles.add(sheet, record.latitude);
        angles.add(sheet, record.longitude);
        sheet.number(record.altitude);
        addTriple(sheet, comparison.stored(row));
        addTriple(sheet, comparison.transformed(row));
        addTriple(sheet, comparison.difference(row));
        sheet.endRow();
        if (row % kRowsAStep == 0)
            progress.report(QCoreApplication::translate("CoordCompareCsv", "Export Comparison"),
                            row, comparison.size());
    }
    Outcome writing = book.commit();
    progress.finish();
    return writing;
}
