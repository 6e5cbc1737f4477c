#include "views/tables/DlgSurveyColumns.h"

#include "exchange/ExportColumns.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_sdk/events/IEventManager.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "model/SurveyColumns.h"
#include "project/DataProcessDataManager.h"
#include "protocol/Events.h"
#include "views/tables/ColumnChoice.h"
#include "views/tables/ColumnListModel.h"
#include "views/tables/ColumnListPanel.h"
#include "views/tables/SurveyTableColumns.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

ColumnListModel* makeTableColumns(QObject* parent)
{
    std::vector<ColumnListModel::Column> columns;
    const QStringList captions = surveyTableCaptions();
    columns.reserve(static_cast<std::size_t>(captions.size()));
    for (int i = 0; i < captions.size(); ++i)
        columns.push_back({surveyTableKeys()[i], captions[i]});
    return new ColumnListModel(std::move(columns), parent);
}

/// No row is written without line and point number.
bool isNeeded(const SurveyColumn& column)
{
    return column.member == SurveyColumn::Member(&SurveyPoint::lineNumber) ||
           column.member == SurveyColumn::Member(&SurveyPoint::pointNumber);
}

ColumnListModel* makeExportColumns(QObject* parent)
{
    std::vector<ColumnListModel::Column> columns;
    const QStringList captions = surveyCaptions();
    for (const SurveyColumn& column : surveyColumns())
        columns.push_back({QString::fromLatin1(column.key),
                           captions[static_cast<int>(columns.size())], isNeeded(column)});
    return new ColumnListModel(std::move(columns), parent);
}

QStringList shownColumns(const ColumnChoice& choice)
{
    QStringList shown = choice.order;
    for (const QString& key : choice.hidden)
        shown.removeOne(key);
    return shown;
}

} // namespace

DlgSurveyColumns::DlgSurveyColumns(QWidget* parent, IEventManager& events)
    : Dialog(parent), m_events(events), m_table(makeTableColumns(this)),
      m_export(makeExportColumns(this))
{
    setWindowTitle(tr("Survey Columns"));
    IDictionary& settings = get_system_ini_parameter().dictionary();
    const ColumnChoice choice = columnChoice(settings);
    m_table->set(choice.order, shownColumns(choice));
    const QStringList exported = exportColumns(settings);
    m_export->set(exported, exported);

    auto* const buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &DlgSurveyColumns::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const lists = new QHBoxLayout;
    lists->addWidget(new ColumnListPanel(
        tr("In the &table"), tr("At least one column stays in the table."), *m_table, this));
    lists->addWidget(new ColumnListPanel(tr("In &exported files"),
                                         tr("Line and point number are always written."), *m_export,
                                         this));
    QVBoxLayout* const rows = makeMainLayout();
    rows->addLayout(lists, 1);
    rows->addWidget(buttons);
    setMinimumSizeScaled(620, 520);
    rememberSize(QStringLiteral("SurveyColumns"));
}

void DlgSurveyColumns::accept()
{
    SystemParameter& settings = get_system_ini_parameter();
    setColumnChoice(settings.dictionary(), {m_table->allKeys(), m_table->uncheckedKeys()});
    setExportColumns(settings.dictionary(), m_export->checkedKeys());
    const bool isSaved = settings.save();
    if (DataProcessDataManager::hasInstance())
        DataProcessDataManager::instance().exportCaptions() =
            exportCaptions(exportColumns(settings.dictionary()));
    m_events.publish(events::kSurveyColumnsChanged, nullptr, 0);
    if (!isSaved)
        LumMessageBox::warning(this, windowTitle(),
                               tr("The columns hold until the program ends: the settings cannot be "
                                  "saved. The window Messages says why."));
    Dialog::accept();
}
