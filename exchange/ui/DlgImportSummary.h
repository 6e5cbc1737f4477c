#pragma once

#include "exchange/ImportSummary.h"
#include "lum_desktop_sdkx/dialogs/Dialog.h"
#include "project/ui/ClosesWithProject.h"

class CustomTableWidget;
class IDesktopHost;
class QLabel;
class QModelIndex;
class QPlainTextEdit;
class QVBoxLayout;

/// What an import has found: the numbers, and below them a row for each finding. A click on a row,
/// or going there by key, selects its point in the list of points, when the project has it, and
/// tells the line of the file. All can be copied.
///
/// The window deletes itself when it is closed, and closes when its project is closed.
class DlgImportSummary final : public Dialog
{
    Q_OBJECT

public:
    /// \param pointList the name of the window that lists the imported points
    DlgImportSummary(IDesktopHost& host, const ImportSummary& summary, const char* pointList);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void addNumbers(const ImportSummary& summary, QVBoxLayout& rows);
    void addFindings(const ImportSummary& summary, QVBoxLayout& rows);
    void addButtons(QVBoxLayout& rows);
    void showFinding(const QModelIndex& index);
    [[nodiscard]] QString placeText(const QModelIndex& first) const;
    void copyAll();
    void openFile();

    IDesktopHost& m_host; // outlives the dialog
    QString m_path;
    bool m_isDatabase; ///< which is not opened to be read
    const char* m_pointList;
    QPlainTextEdit* m_numbers = nullptr;
    CustomTableWidget* m_table = nullptr; ///< null without a finding
    QLabel* m_place = nullptr;            ///< where the chosen finding stands
    ClosesWithProject m_closing;
};
