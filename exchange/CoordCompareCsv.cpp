#include "exchange/CoordCompareCsv.h"

#include "exchange/CoordCompare.h"
#include "exchange/CsvFaults.h"
#include "exchange/CsvRow.h"
#include "exchange/SurveyFieldTexts.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "lum_sdk/files/WholeFileWriter.h"

#include <QCoreApplication>

#include <array>

namespace {

constexpr std::size_t kRowsAStep = 5000; // of the progress

constexpr std::array kAddedCaptions = {
    QT_TRANSLATE_NOOP("CoordCompareCsv", "trans north"),
    QT_TRANSLATE_NOOP("CoordCompareCsv", "trans east"),
    QT_TRANSLATE_NOOP("CoordCompareCsv", "trans height"),
    QT_TRANSLATE_NOOP("CoordCompareCsv", "north diff"),
    QT_TRANSLATE_NOOP("CoordCompareCsv", "east diff"),
    QT_TRANSLATE_NOOP("CoordCompareCsv", "height diff"),
    QT_TRANSLATE_NOOP("CoordCompareCsv", "trans fault"),
};

bool isWritten(const SurveyColumn& column)
{
    return column.stored != StoredForm::None;
}

void addTriple(CsvRow& row, const CoordTriple& triple)
{
    constexpr int kDecimals = 4;
    constexpr double kLastDigit = 1e-4;
    for (const double number : {triple.first, triple.second, triple.third}) {
        if (std::isfinite(number))
            row.addFixed(withoutMinusZero(number, kLastDigit), kDecimals);
        else
            row.addText({});
    }
}

std::string_view headingLine(CsvRow& row)
{
    const QStringList captions = surveyCaptions();
    for (std::size_t i = 0; i < surveyColumns().size(); ++i) {
        if (isWritten(surveyColumns()[i]))
            row.addText(captions[static_cast<int>(i)].toStdString());
    }
    for (const char* const caption : kAddedCaptions)
        row.addText(QCoreApplication::translate("CoordCompareCsv", caption).toStdString());
    return row.finished();
}

std::string_view comparisonLine(const CoordCompare& comparison, std::size_t at,
                                SurveyFieldTexts& fields, CsvRow& row)
{
    row.clear();
    for (const SurveyColumn& column : surveyColumns()) {
        if (isWritten(column))
            fields.add(row, comparison.record(at), column);
    }
    addTriple(row, comparison.transformed(at));
    addTriple(row, comparison.difference(at));
    QString message = comparison.message(at);
    row.addText(message.replace(QLatin1Char(','), QLatin1Char(';')).toStdString());
    return row.finished();
}

} // namespace

Outcome writeCoordCompareCsv(const QString& path, const CoordCompare& comparison, int degreeFormat,
                             ProgressReporter& progress)
{
    lum::WholeFileWriter file(path);
    SurveyFieldTexts fields(degreeFormat);
    CsvRow row;
    file.write(headingLine(row));
    for (std::size_t at = 0; at < comparison.size() && file.fault().isEmpty(); ++at) {
        file.write(comparisonLine(comparison, at, fields, row));
        if (at % kRowsAStep == 0)
            progress.report(QCoreApplication::translate("CoordCompareCsv", "Export Comparison"), at,
                            comparison.size());
    }
    const QString fault = file.commit();
    progress.finish();
    return fault.isEmpty() ? Outcome::done() : cannotWrite(path, fault);
}
