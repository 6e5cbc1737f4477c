#include "exchange/ui/FileImports.h"

#include "exchange/CsvHead.h"
#include "exchange/ImportSummary.h"
#include "exchange/ui/DlgCsvKind.h"
#include "exchange/ui/DlgImportSummary.h"
#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "lum_sdk/Text.h"
#include "project/DataProcessDataManager.h"
#include "project/ILineList.h"
#include "project/ui/ProjectState.h"
#include "protocol/Events.h"
#include "protocol/Payloads.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QGuiApplication>

#include <memory>

namespace {

using Operation = int (DataProcessDataManager::*)(const QString& path, Outcome* outcome,
                                                  ImportSummary* counts);

constexpr const char* kMap = "DataMap";
constexpr const char* kDesignTable = "Design Data List";
constexpr const char* kSurveyTable = "Survey Data List";

struct ImportKind
{
    Operation operation;
    const char* filter;
    void (*announce)(IDesktopHost& host, const ImportSummary& summary);
    const char* pointList; ///< the window that lists the points
};

void announceDesign(IDesktopHost& host, const ImportSummary& summary)
{
    host.eventManager().publish(events::kRefreshDesignLayer, nullptr, 0);
    if (summary.hasPoints())
        host.windows().reveal(QLatin1String(kDesignTable), {QLatin1String(kMap)});
}

/// The line that has got points is shown by the table, and marked in the tree, which is on all
/// lines at first.
void announceSurvey(IDesktopHost& host, const ImportSummary& summary)
{
    host.eventManager().publish(events::kRefreshSurveyLayer, nullptr, 0);
    const SurveyPoints& points = DataProcessDataManager::instance().surveyPoints();
    if (!summary.hasPoints() || points.empty())
        return;
    const std::string& line = summary.firstLine.empty() ? points.begin()->first : summary.firstLine;
    const QString shown = lum::toQString(line);
    host.eventManager().publish(events::kSurveyLineSwitched, payload::line(shown).constData(), 0);
    if (auto* const tree = host.windows().findAs<ILineList>(QStringLiteral("Survey Lines")))
        tree->followLine(shown);
    host.windows().reveal(QLatin1String(kSurveyTable), {QLatin1String(kMap)});
}

/// A file has no sea heights: they are computed before they are shown.
void announceSurveyFile(IDesktopHost& host, const ImportSummary& summary)
{
    if (summary.hasPoints())
        DataProcessDataManager::instance().recomputeSeaHeights();
    announceSurvey(host, summary);
}

constexpr ImportKind kDesignCsv = {&DataProcessDataManager::importDesignCsv, "csv file(*.csv)",
                                   announceDesign, kDesignTable};
constexpr ImportKind kSurveyCsv = {&DataProcessDataManager::importSurveyCsv, "csv file(*.csv)",
                                   announceSurveyFile, kSurveyTable};
constexpr ImportKind kSurveyDatabase = {&DataProcessDataManager::importSurveyDatabase,
                                        "db file(*.db)", announceSurvey, kSurveyTable};

QString translated(const char* text)
{
    return QCoreApplication::translate("FileImports", text);
}

/// A small box when all went well, else a window with what was found.
void tell(IDesktopHost& host, const ImportSummary& summary, const char* pointList)
{
    if (summary.kinds().empty() && summary.hasPoints() && summary.remarks.isEmpty()) {
        LumMessageBox::information(
            host.dialogParent(), translated(QT_TRANSLATE_NOOP("FileImports", "Success")),
            translated(QT_TRANSLATE_NOOP("FileImports", "Import Success!")),
            LumMessageBox::Button::Ok, summary.numbers().join(QLatin1Char('\n')));
        return;
    }
    // Not modal, and deletes itself when it is closed.
    auto dialog = std::make_unique<DlgImportSummary>(host, summary, pointList);
    dialog.release()->show();
}

bool import(IDesktopHost& host, const ImportKind& kind, const QString& path)
{
    const QString file = !path.isEmpty()
                             ? path
                             : FileDialog::getOpenFileName(
                                   host.dialogParent(),
                                   translated(QT_TRANSLATE_NOOP("FileImports", "Choose Open File")),
                                   QLatin1String(kind.filter));
    if (file.isEmpty())
        return false;
    Outcome outcome = Outcome::done();
    ImportSummary summary;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const bool isDone =
        (DataProcessDataManager::instance().*kind.operation)(file, &outcome, &summary) != 0;
    if (isDone)
        kind.announce(host, summary);
    QGuiApplication::restoreOverrideCursor();
    if (isDone)
        tell(host, summary, kind.pointList);
    else if (!outcome.text().isEmpty()) // otherwise the user has been told
        LumMessageBox::error(
            host.dialogParent(), translated(QT_TRANSLATE_NOOP("FileImports", "Error")),
            translated(QT_TRANSLATE_NOOP("FileImports", "Import Failed!")), outcome.text());
    return isDone && summary.hasPoints();
}

bool hasSuffix(const QString& path, const char* suffix)
{
    return QFileInfo(path).suffix().compare(QLatin1String(suffix), Qt::CaseInsensitive) == 0;
}

void importCsvFile(IDesktopHost& host, const QString& path)
{
    const std::optional<CsvHead> head = readCsvHead(path);
    CsvHead::Kind kind = head ? head->kind : CsvHead::Kind::Survey; // says what is wrong with it
    if (kind == CsvHead::Kind::Unknown)
        kind = DlgCsvKind::ask(host.dialogParent(), path, head->lines);
    if (kind == CsvHead::Kind::Design)
        FileImports::importDesignCsv(host, path);
    else if (kind == CsvHead::Kind::Survey)
        FileImports::importSurveyCsv(host, path);
}

} // namespace

namespace FileImports {

bool importDesignCsv(IDesktopHost& host, const QString& path)
{
    return import(host, kDesignCsv, path);
}

bool importSurveyCsv(IDesktopHost& host, const QString& path)
{
    return import(host, kSurveyCsv, path);
}

bool importSurveyDatabase(IDesktopHost& host, const QString& path)
{
    return import(host, kSurveyDatabase, path);
}

bool canImport(const QString& path)
{
    return hasSuffix(path, "csv") || hasSuffix(path, "db");
}

void importFile(IDesktopHost& host, const QString& path)
{
    if (!ProjectState::isOpen())
        LumMessageBox::warning(
            host.dialogParent(), QFileInfo(path).fileName(),
            translated(QT_TRANSLATE_NOOP("FileImports",
                                         "A file of points is imported into a project. Open or "
                                         "create the project first, then import the file.")),
            LumMessageBox::Button::Ok, path);
    else if (hasSuffix(path, "db"))
        importSurveyDatabase(host, path);
    else
        importCsvFile(host, path);
}

} // namespace FileImports
