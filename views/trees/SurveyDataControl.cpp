#include "views/trees/SurveyDataControl.h"

#include "exchange/ui/FileExports.h"
#include "exchange/ui/FileImports.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/Text.h"
#include "project/DataProcessDataManager.h"
#include "project/ui/ProjectState.h"
#include "protocol/Events.h"
#include "protocol/Payloads.h"
#include "protocol/StatusKeys.h"
#include "views/trees/LineTreeView.h"

#include <QAction>
#include <QIcon>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>

#include <memory>

using FileExports::Form;
using Kind = LineItem::Kind;

namespace {

std::size_t resultCount(const QString& lineNumber)
{
    const auto* const line =
        DataProcessDataManager::instance().surveyPoints().findLine(lineNumber.toStdString());
    return line == nullptr ? 0 : line->size();
}

QString describe(const QString& lineNumber)
{
    return SurveyDataControl::tr("Results: %1").arg(resultCount(lineNumber));
}

QIcon icon(const char* name)
{
    return QIcon::fromTheme(QLatin1String(name));
}

} // namespace

SurveyDataControl::SurveyDataControl(const char* config, IDesktopHost* host)
    : LineTree(config, *host,
               {"SurveyDataControl", "SurveyDataTable", events::kRefreshSurveyLayer,
                events::kSurveyTableSelectPoint})
{
    searchField().setPlaceholderText(tr("Point number"));
    searchField().setToolTip(
        tr("A point number whose first four characters are its line, such as 10051234 or "
           "C10051234."));
    makeRoot();
    if (ProjectState::isOpen())
        rebuild();
}

LineItem& SurveyDataControl::makeRoot()
{
    view().clear();
    auto root = std::make_unique<LineItem>(Kind::Root, tr("survey data (%1)"), icon("flag"));
    LineItem& made = *root;
    view().addTopLevelItem(root.release());
    return made;
}

void SurveyDataControl::rebuild()
{
    const Place before = leave();
    const bool showedAll = get_system_status_dictionary().integer(status::kShowAllLines) != 0;
    LineItem& root = makeRoot();
    if (DataProcessDataManager::instance().surveyPoints().lineCount() == 0) {
        publish(events::kClearSurveyTable);
        return;
    }
    addLines(root);
    root.setExpanded(true);
    announce(root); // the table says from here on that it shows all lines
    const LineItem* const line = goBackTo(before);
    if (line == nullptr) {
        view().selectOnly(root);
        view().verticalScrollBar()->setValue(before.scrolled);
    } else if (!showedAll) {
        announce(*line);
    }
}

void SurveyDataControl::addLines(LineItem& root)
{
    const SurveyPoints& points = DataProcessDataManager::instance().surveyPoints();
    const QIcon receiver = icon("line_receivers");
    const QIcon source = icon("line_sources");
    QList<QTreeWidgetItem*> items;
    items.reserve(static_cast<int>(points.lineCount()));
    for (const auto& [key, line] : points) {
        const QString number = lum::toQString(key);
        const bool isReceiver = !line.empty() && line.begin()->pointMark != 0;
        auto item = std::make_unique<LineItem>(
            LineItem::Line{number, number, static_cast<int>(line.size()), describe},
            isReceiver ? receiver : source);
        items << item.release();
    }
    root.addChildren(items);
    root.setCount(items.size());
}

void SurveyDataControl::announce(const LineItem& item)
{
    if (item.isLine())
        publish(events::kSurveyLineSwitched, payload::line(item.lineNumber()));
    else
        publish(events::kShowAllSurveyTable);
}

void SurveyDataControl::fillMenu(QMenu& menu, const LineItem& first)
{
    const bool ofLines = first.isLine();
    const auto addExport = [&](const QString& text, Form form) {
        addEntry(menu, "document-export", text, [this, form, ofLines] {
            FileExports::exportSurvey(
                host(), form, ofLines ? view().selectedLines() : FileExports::allSurveyLines());
        });
    };
    if (ofLines) {
        addExport(tr("Export Selected"), Form::Csv);
        addExport(tr("Export Selected Kml"), Form::Kml);
        menu.addSeparator();
        addEntry(menu, "edit-delete", tr("Delete Line"), [this] {
            deleteSelection();
        })->setShortcut(Qt::Key_Delete);
        return;
    }
    addExpanding(menu);
    menu.addSeparator();
    addExport(tr("Export All"), Form::Csv);
    addExport(tr("Export All Kml"), Form::Kml);
    menu.addSeparator();
    addEntry(menu, "document-import", tr("Import Csv"),
             [this] { FileImports::importSurveyCsv(host()); });
    addEntry(menu, "document-import", tr("Import DB"),
             [this] { FileImports::importSurveyDatabase(host()); });
}

void SurveyDataControl::deleteSelection()
{
    using Button = LumMessageBox::Button;
    const QStringList lines = view().selectedLines();
    if (lines.isEmpty())
        return;
    std::size_t results = 0;
    for (const QString& line : lines)
        results += resultCount(line);
    const Button answer = LumMessageBox::warning(
        host().dialogParent(), tr("warning"), tr("Are you sure to delete these records?"),
        LumMessageBox::Buttons(Button::Yes) | Button::No,
        tr("Lines: %1, results: %2. The next save takes them out of the project's files, too.")
            .arg(QString::number(lines.size()), QString::number(results)));
    if (answer != Button::Yes)
        return;
    DataProcessDataManager::instance().deleteSurveyLines(lines);
    publish(events::kRefreshSurveyLayer);
}
