#include "views/trees/DesignLineControl.h"

#include "exchange/ui/FileExports.h"
#include "exchange/ui/FileImports.h"
#include "lum_sdk/Text.h"
#include "project/DataProcessDataManager.h"
#include "project/ui/ProjectState.h"
#include "protocol/Events.h"
#include "protocol/Payloads.h"
#include "views/trees/LineTreeView.h"

#include <QIcon>
#include <QLineEdit>
#include <QMenu>

#include <algorithm>
#include <memory>

using FileExports::Form;
using Kind = LineItem::Kind;

namespace {

constexpr const char* kReceiverIcon = "line_receivers";
constexpr const char* kSourceIcon = "line_sources";

struct ExportEntry
{
    const char* all; ///< its text in the menu of root and groups
    const char* selected;
    Form form;
    bool onlyUnsurveyed;
};

constexpr ExportEntry kExports[] = {
    {QT_TRANSLATE_NOOP("DesignLineControl", "Export All"),
     QT_TRANSLATE_NOOP("DesignLineControl", "Export Selected"), Form::Csv, false},
    {QT_TRANSLATE_NOOP("DesignLineControl", "Export All Empty"),
     QT_TRANSLATE_NOOP("DesignLineControl", "Export Selected Empty"), Form::Csv, true},
    {QT_TRANSLATE_NOOP("DesignLineControl", "Export All DB"),
     QT_TRANSLATE_NOOP("DesignLineControl", "Export Selected DB"), Form::Database, false},
    {QT_TRANSLATE_NOOP("DesignLineControl", "Export All Empty DB"),
     QT_TRANSLATE_NOOP("DesignLineControl", "Export Selected Empty DB"), Form::Database, true},
    {QT_TRANSLATE_NOOP("DesignLineControl", "Export All Kml"),
     QT_TRANSLATE_NOOP("DesignLineControl", "Export Selected Kml"), Form::Kml, false},
    {QT_TRANSLATE_NOOP("DesignLineControl", "Export All Empty Kml"),
     QT_TRANSLATE_NOOP("DesignLineControl", "Export Selected Empty Kml"), Form::Kml, true},
};

QString describe(const QString& lineNumber)
{
    const auto* const line =
        DataProcessDataManager::instance().designPoints().findLine(lineNumber.toStdString());
    if (line == nullptr)
        return {};
    const auto surveyed = std::count_if(line->begin(), line->end(),
                                        [](const DesignPoint& point) { return point.status != 0; });
    return DesignLineControl::tr("Points: %1, surveyed: %2")
        .arg(QString::number(line->size()), QString::number(surveyed));
}

QIcon icon(const char* name)
{
    return QIcon::fromTheme(QLatin1String(name));
}

} // namespace

DesignLineControl::DesignLineControl(const char* config, IDesktopHost* host)
    : LineTree(config, *host,
               {"DesignLineControl", "DesignLineTable", events::kRefreshDesignLayer,
                events::kDesignTableSelectPoint})
{
    searchField().setToolTip(tr("Clears the selection of the groups. To go to a point, use Find."));
    makeUpper();
    if (ProjectState::isOpen())
        rebuild();
}

DesignLineControl::Upper DesignLineControl::makeUpper()
{
    view().clear();
    auto root = std::make_unique<LineItem>(Kind::Root, tr("design data (%1)"), icon("view-grid"));
    auto sources =
        std::make_unique<LineItem>(Kind::SourceGroup, tr("Send data (%1)"), icon(kSourceIcon));
    auto receivers =
        std::make_unique<LineItem>(Kind::ReceiverGroup, tr("Recv data (%1)"), icon(kReceiverIcon));
    const Upper upper{*root, *sources, *receivers};
    root->addChild(sources.release());
    root->addChild(receivers.release());
    view().addTopLevelItem(root.release());
    for (LineItem* const item : {&upper.root, &upper.sources, &upper.receivers})
        item->setExpanded(true);
    return upper;
}

void DesignLineControl::rebuild()
{
    const Place before = leave();
    const Upper upper = makeUpper();
    addLines(upper);
    if (const LineItem* const line = goBackTo(before)) {
        announce(*line);
        return;
    }
    const LineItem& group = upper.receivers.childCount() > 0 ? upper.receivers : upper.sources;
    if (group.childCount() == 0) {
        publish(events::kClearDesignTable);
        return;
    }
    auto& first = static_cast<LineItem&>(*group.child(0));
    view().selectOnly(first);
    announce(first);
}

void DesignLineControl::addLines(const Upper& upper)
{
    const DesignPoints& points = DataProcessDataManager::instance().designPoints();
    QList<QTreeWidgetItem*> sources;
    QList<QTreeWidgetItem*> receivers;
    for (const auto& [key, line] : points) {
        if (line.empty())
            continue;
        const int type = line.begin()->type;
        const bool isReceiver = type != 0;
        const QString number = lum::toQString(key);
        const QString text = QLatin1Char(isReceiver ? 'R' : 'S') + number;
        auto item =
            std::make_unique<LineItem>(LineItem::Line{number, text, type, describe},
                                       (isReceiver ? upper.receivers : upper.sources).icon(0));
        (isReceiver ? receivers : sources) << item.release();
    }
    upper.root.setCount(static_cast<int>(points.lineCount()));
    upper.sources.setCount(sources.size());
    upper.receivers.setCount(receivers.size());
    upper.sources.addChildren(sources);
    upper.receivers.addChildren(receivers);
}

void DesignLineControl::announce(const LineItem& item)
{
    if (item.isLine())
        publish(events::kDesignLineSwitched, payload::line(item.lineNumber()));
    else
        publish(events::kClearDesignTable);
}

void DesignLineControl::fillMenu(QMenu& menu, const LineItem& first)
{
    const bool ofLines = first.isLine();
    if (!ofLines) {
        addExpanding(menu);
        menu.addSeparator();
    }
    for (const ExportEntry& entry : kExports)
        addEntry(menu, "document-export", tr(ofLines ? entry.selected : entry.all),
                 [this, &entry, ofLines] {
                     FileExports::exportDesign(host(), entry.form,
                                               ofLines ? view().selectedLines()
                                                       : FileExports::allDesignLines(),
                                               entry.onlyUnsurveyed);
                 });
    if (ofLines)
        return;
    menu.addSeparator();
    addEntry(menu, "document-import", tr("Import Csv"),
             [this] { FileImports::importDesignCsv(host()); });
}
