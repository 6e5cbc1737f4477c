#include "reports/ui/ReportFilesPanel.h"

#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "project/OwnFile.h"
#include "reports/daily/AllReports.h"
#include "reports/ui/ReportMemory.h"

#include <QCheckBox>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSet>

namespace {

/// The name as it is typed, with the ending of the report's files.
QString withEnding(const QString& name, const ReportKind& kind)
{
    const QLatin1String ending(kind.ending);
    return name.endsWith(ending, Qt::CaseInsensitive) ? name : name + ending;
}

} // namespace

ReportFilesPanel::ReportFilesPanel(const ProjectPlace& project, QWidget* parent)
    : QWidget(parent), m_project(project), m_folder(new QLineEdit(this))
{
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setColumnStretch(1, 1);
    auto* const names = new QLabel(tr("File &names:"), this);
    grid->addWidget(new QLabel(tr("Reports:"), this), 0, 0);
    grid->addWidget(names, 0, 1);
    for (const ReportKind& kind : allReports())
        addRow(*grid, kind);
    names->setBuddy(m_rows.front().name);
    addFolder(*grid);
}

void ReportFilesPanel::addRow(QGridLayout& grid, const ReportKind& kind)
{
    const int row = grid.rowCount();
    auto* const isWanted = new QCheckBox(
        tr("&%1 %2", "number and name of a report").arg(row).arg(kind.captionText()), this);
    auto* const name = new QLineEdit(ReportFiles::fileName(kind, m_project), this);
    isWanted->setObjectName(QLatin1String(kind.name));
    name->setObjectName(QLatin1String(kind.fileName));
    name->setAccessibleName(tr("File name: %1").arg(kind.captionText()));
    isWanted->setChecked(ReportFiles::isWanted(kind));
    name->setEnabled(isWanted->isChecked());
    connect(isWanted, &QCheckBox::toggled, name, &QWidget::setEnabled);
    connect(isWanted, &QCheckBox::toggled, this, &ReportFilesPanel::changed);
    connect(name, &QLineEdit::textChanged, this, &ReportFilesPanel::changed);
    grid.addWidget(isWanted, row, 0);
    grid.addWidget(name, row, 1, 1, 2);
    m_rows.push_back({&kind, isWanted, name});
}

void ReportFilesPanel::addFolder(QGridLayout& grid)
{
    m_folder->setText(QDir::toNativeSeparators(ReportFiles::folder(m_project)));
    m_folder->setObjectName(QStringLiteral("folder"));
    connect(m_folder, &QLineEdit::textChanged, this, &ReportFilesPanel::changed);
    auto* const label = new QLabel(tr("F&older:"), this);
    label->setBuddy(m_folder);
    auto* const button = new QPushButton(tr("&Browse..."), this);
    button->setAutoDefault(false); // Enter exports
    connect(button, &QPushButton::clicked, this, &ReportFilesPanel::browse);
    const int row = grid.rowCount();
    grid.addWidget(label, row, 0);
    grid.addWidget(m_folder, row, 1);
    grid.addWidget(button, row, 2);
}

void ReportFilesPanel::browse()
{
    const QString folder = FileDialog::getExistingDirectory(this, tr("Folder of the Reports"));
    if (!folder.isEmpty())
        m_folder->setText(QDir::toNativeSeparators(folder));
}

QString ReportFilesPanel::folder() const
{
    const QString typed = m_folder->text().trimmed();
    return typed.isEmpty() ? QString() : QDir::cleanPath(QDir::fromNativeSeparators(typed));
}

std::vector<ReportFile> ReportFilesPanel::files() const
{
    std::vector<ReportFile> files;
    for (const Row& row : m_rows) {
        if (row.isWanted->isChecked())
            files.push_back(
                {row.kind, QDir(folder()).filePath(withEnding(row.name->text(), *row.kind))});
    }
    return files;
}

QString ReportFilesPanel::fault() const
{
    bool isAnyWanted = false;
    for (const Row& row : m_rows) {
        const QString fault = fileNameFault(row.name->text());
        if (row.isWanted->isChecked() && !fault.isEmpty())
            return QStringLiteral("%1: %2").arg(row.kind->captionText(), fault);
        isAnyWanted = isAnyWanted || row.isWanted->isChecked();
    }
    if (!isAnyWanted)
        return tr("Please choose a report.");
    if (QString fault = exportFolderFault(folder()); !fault.isEmpty())
        return fault;
    QSet<QString> names;
    for (const ReportFile& file : files()) {
        if (const Outcome own = checkNotOwn(m_project, file.path); !own.isDone())
            return own.text();
        const QFileInfo info(file.path);
        if (info.isDir())
            return tr("\"%1\" is a folder.").arg(info.fileName());
        if (names.contains(info.fileName().toCaseFolded()))
            return tr("Two reports have the file name \"%1\".").arg(info.fileName());
        names.insert(info.fileName().toCaseFolded());
    }
    return {};
}

void ReportFilesPanel::remember() const
{
    for (const Row& row : m_rows) {
        ReportFiles::setWanted(*row.kind, row.isWanted->isChecked());
        if (fileNameFault(row.name->text()).isEmpty())
            ReportFiles::setFileName(*row.kind, row.name->text(), m_project);
    }
    ReportFiles::setFolder(folder(), m_project);
    ReportFiles::save();
}
