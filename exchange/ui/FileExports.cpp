#include "exchange/ui/FileExports.h"

#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/Text.h"
#include "project/DataProcessDataManager.h"

#include <QCoreApplication>
#include <QCursor>
#include <QDesktopServices>
#include <QDir>
#include <QGuiApplication>
#include <QUrl>

#include <algorithm>

namespace FileExports {

namespace {

using Button = LumMessageBox::Button;

QString translated(const char* text)
{
    return QCoreApplication::translate("FileExports", text);
}

QString askForFile(IDesktopHost& host, Form form)
{
    const auto filter = [form] {
        switch (form) {
        case Form::Database:
            return QStringLiteral("db file(*.db)");
        case Form::Kml:
            return QStringLiteral("Kml file(*.kml)");
        case Form::Csv:
            break;
        }
        return QStringLiteral("csv file(*.csv)");
    }();
    return FileDialog::getSaveFileName(
        host.dialogParent(), translated(QT_TRANSLATE_NOOP("FileExports", "Input Saving File Name")),
        filter);
}

template <class Points>
QStringList numbersOf(const Points& points)
{
    QStringList numbers;
    numbers.reserve(static_cast<int>(points.lineCount()));
    for (const auto& [number, line] : points)
        numbers << lum::toQString(number);
    return numbers;
}

/// How much of the lines is written, in words.
template <class Points, class IsWritten>
QString amountOf(const Points& points, const QStringList& lines, IsWritten isWritten)
{
    qint64 pointCount = 0;
    int lineCount = 0;
    for (const QString& number : lines) {
        const auto* const line = points.findLine(number.toStdString());
        if (line == nullptr)
            continue;
        const qint64 written = std::count_if(line->begin(), line->end(), isWritten);
        pointCount += written;
        lineCount += written != 0 ? 1 : 0;
    }
    return translated(QT_TRANSLATE_NOOP("FileExports", "Points: %1, lines: %2."))
        .arg(QString::number(pointCount), QString::number(lineCount));
}

/// Writes under a wait cursor. \returns the outcome, which the manager has logged
template <class Write>
Outcome outcomeOf(Write write)
{
    Outcome outcome = Outcome::done();
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    write(&outcome);
    QGuiApplication::restoreOverrideCursor();
    return outcome;
}

/// Tells that the export has failed. \returns false then
bool isDone(IDesktopHost& host, const Outcome& outcome)
{
    if (!outcome.isDone())
        LumMessageBox::error(
            host.dialogParent(), translated(QT_TRANSLATE_NOOP("FileExports", "Error")),
            translated(QT_TRANSLATE_NOOP("FileExports", "Export Failed!")), outcome.text());
    return outcome.isDone();
}

/// What was written, and what the writer has to say about it.
QString withNotice(const QString& amount, const Outcome& outcome)
{
    return outcome.text().isEmpty() ? amount : amount + QLatin1Char('\n') + outcome.text();
}

/// A CSV file without the columns of line and point number has a heading only.
bool hasNumberColumns(DataProcessDataManager& manager)
{
    const QStringList& all = manager.surveyCaptions();
    const QStringList& chosen = manager.exportCaptions();
    return chosen.isEmpty() || (chosen.contains(all[0]) && chosen.contains(all[1]));
}

} // namespace

void exportDesign(IDesktopHost& host, Form form, const QStringList& lines, bool onlyUnsurveyed)
{
    const QString path = askForFile(host, form);
    if (path.isEmpty())
        return;
    DataProcessDataManager& manager = DataProcessDataManager::instance();
    const Outcome outcome = outcomeOf([&](Outcome* asked) {
        if (form == Form::Csv)
            manager.exportDesignCsv(lines, path, onlyUnsurveyed, asked);
        else if (form == Form::Database)
            manager.exportDesignDatabase(lines, path, onlyUnsurveyed, asked);
        else
            manager.exportDesignKml(lines, path, onlyUnsurveyed, asked);
    });
    if (!isDone(host, outcome))
        return;
    const QString amount = amountOf(manager.designPoints(), lines, [&](const DesignPoint& point) {
        return !onlyUnsurveyed || point.status == 0;
    });
    if (form == Form::Csv)
        offerToOpen(host, path, withNotice(amount, outcome));
    else
        LumMessageBox::information(host.dialogParent(),
                                   translated(QT_TRANSLATE_NOOP("FileExports", "Success")),
                                   translated(QT_TRANSLATE_NOOP("FileExports", "Export Succeed!")),
                                   Button::Ok, withNotice(amount, outcome));
}

void exportSurvey(IDesktopHost& host, Form form, const QStringList& lines)
{
    const QString path = askForFile(host, form);
    if (path.isEmpty())
        return;
    DataProcessDataManager& manager = DataProcessDataManager::instance();
    const bool isCsv = form == Form::Csv;
    Outcome outcome = outcomeOf([&](Outcome* asked) {
        if (isCsv)
            manager.exportSurveyCsv(lines, path, {}, asked);
        else
            manager.exportSurveyKml(lines, path, asked);
    });
    if (!isDone(host, outcome))
        return;
    const bool hasRows = !isCsv || hasNumberColumns(manager);
    if (!hasRows)
        outcome.add(translated(QT_TRANSLATE_NOOP(
            "FileExports", "\"View > Survey Columns\" leaves out the line number or the point "
                           "number of exported files. Without both no point is written.")));
    const QString amount =
        amountOf(manager.surveyPoints(), lines, [&](const SurveyPoint&) { return hasRows; });
    offerToOpen(host, path, withNotice(amount, outcome));
}

QStringList allDesignLines()
{
    return numbersOf(DataProcessDataManager::instance().designPoints());
}

QStringList allSurveyLines()
{
    return numbersOf(DataProcessDataManager::instance().surveyPoints());
}

void offerToOpen(IDesktopHost& host, const QString& path, const QString& details)
{
    offerToOpen(host.dialogParent(), path,
                translated(QT_TRANSLATE_NOOP("FileExports", "Export Succeed, Open it?")), details);
}

void offerToOpen(QWidget* parent, const QString& path, const QString& text, const QString& details)
{
    const Button answer =
        LumMessageBox::question(parent, translated(QT_TRANSLATE_NOOP("FileExports", "Success")),
                                text, LumMessageBox::Buttons(Button::Yes) | Button::No, details);
    if (answer == Button::Yes)
        open(parent, path);
}

void open(QWidget* parent, const QString& path)
{
    if (QDesktopServices::openUrl(QUrl::fromLocalFile(path)))
        return;
    LumMessageBox::error(
        parent, translated(QT_TRANSLATE_NOOP("FileExports", "Error")),
        translated(
            QT_TRANSLATE_NOOP("FileExports", "The desktop has no program that opens \"%1\"."))
            .arg(QDir::toNativeSeparators(path)));
}

} // namespace FileExports
