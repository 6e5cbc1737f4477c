#pragma once

#include "project/ProjectPlace.h"
#include "reports/ReportKinds.h"

#include <QWidget>

#include <vector>

class QCheckBox;
class QGridLayout;
class QLineEdit;

/// A report that is to be written.
struct ReportFile
{
    const ReportKind* kind = nullptr;
    QString path;
};

/// Chooses the reports, a file name for each, and their folder.
class ReportFilesPanel final : public QWidget
{
    Q_OBJECT

public:
    ReportFilesPanel(const ProjectPlace& project, QWidget* parent);

    /// The chosen reports, in the order of the table.
    [[nodiscard]] std::vector<ReportFile> files() const;
    /// What is wrong with the names or the folder, a translated sentence; empty when they are good.
    [[nodiscard]] QString fault() const;
    /// Keeps the choice for the next time.
    void remember() const;

Q_SIGNALS:
    void changed();

private:
    struct Row
    {
        const ReportKind* kind;
        QCheckBox* isWanted;
        QLineEdit* name;
    };

    void addRow(QGridLayout& grid, const ReportKind& kind);
    void addFolder(QGridLayout& grid);
    void browse();
    [[nodiscard]] QString folder() const;

    ProjectPlace m_project;
    std::vector<Row> m_rows;
    QLineEdit* m_folder;
};
