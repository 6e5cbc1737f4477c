#pragma once

#include "basalt_utilities/LocalTimes.h"
#include "exchange/workbook/CellFormats.h"
#include "exchange/workbook/Page.h"
#include "exchange/workbook/Sheet.h"
#include "lum_sdk/files/FileAside.h"
#include "protocol/Outcome.h"

#include <QString>

#include <clocale>
#include <memory>
#include <vector>

struct lxw_chart;
struct lxw_workbook;
struct lxw_worksheet;

/// What the program that opens a workbook tells about it.
struct WorkbookInfo
{
    QString title;   ///< also at the foot of every printed page
    QString subject; ///< such as the project's name
    QString author;
    /// Of all cells. Every system has the widths of this one, under its name or another.
    QString font = QStringLiteral("Arial");
};

/// An Excel workbook (.xlsx) that is written row by row and never held in memory.
///
///     Workbook book(path, {tr("Comparison"), projectName, program});
///     Sheet& sheet = book.addSheet(tr("Points"), {{tr("Line"), SheetColumn::Form::Code},
///                                                 {tr("dE (m)"), SheetColumn::Form::Number, 3}});
///     for (...)
///         sheet.text(line).number(dE).endRow();
///     return book.commit();
///
/// It appears at its path when `commit` succeeds. A workbook that failed or was given up leaves
/// nothing behind, and the file that was there before stays. Errors need no check at a cell: the
/// first one is kept, and `commit` tells it. One object belongs to one thread.
class Workbook
{
public:
    Workbook(const QString& path, const WorkbookInfo& info);
    ~Workbook();
    Workbook(const Workbook&) = delete;
    Workbook& operator=(const Workbook&) = delete;

    /// Adds a table with these columns behind the sheets that there are. Begin a sheet when it is
    /// its turn: one that is too long for Excel goes on behind the last one. Valid as long as the
    /// workbook.
    /// \param name is cut and changed where Excel does not take it, or has it already
    Sheet& addSheet(const QString& name, std::vector<SheetColumn> columns,
                    const SheetLook& look = {});

    /// Adds an empty page behind the sheets that there are. Valid as long as the workbook.
    Page& addPage(const QString& name);

    /// Whether writing on is in vain; `commit` says why.
    [[nodiscard]] bool hasFailed() const { return !m_fault.isEmpty(); }

    /// Completes the file and puts it in its place. Nothing can be written after it.
    Outcome commit();

    // For the sheets.

    /// A new empty sheet of the library; null after a fault.
    [[nodiscard]] lxw_worksheet* addWorksheet(const QString& name, QString& takenName);
    /// Null after a fault.
    [[nodiscard]] lxw_chart* makeChart(const Chart& chart);
    [[nodiscard]] CellFormats& formats() { return m_formats; }
    /// A moment as Excel counts: days since 1900 in the zone in which the program shows times. NaN
    /// for one that Excel does not know.
    [[nodiscard]] double excelTime(std::int64_t milliseconds);
    /// The same for days since 1970, of which the part behind the point is the time.
    [[nodiscard]] static double excelDay(double days);
    /// The title, the sheet's name and the number of the page.
    void setFooter(lxw_worksheet* sheet);
    /// Keeps the first error code of the library.
    void check(int error)
    {
        if (error != 0)
            keepError(error);
    }

private:
    void keepError(int error);
    void setProperties();
    [[nodiscard]] QString freeName(const QString& wanted) const;
    void checkTemporaryFiles();

    /// The library writes numbers with the decimal mark of the thread's locale.
    class PlainNumbers
    {
    public:
        PlainNumbers();
        ~PlainNumbers();
        PlainNumbers(const PlainNumbers&) = delete;
        PlainNumbers& operator=(const PlainNumbers&) = delete;

    private:
        locale_t m_plain;
        locale_t m_usual;
    };

    PlainNumbers m_plainNumbers;
    QString m_path;
    WorkbookInfo m_info;
    lum::FileAside m_file;
    QString m_fault;
    lxw_workbook* m_book = nullptr; ///< null after a fault of the file, and after `commit`
    CellFormats m_formats;
    basalt::LocalTimes m_times;
    std::vector<QString> m_names;
    std::vector<std::unique_ptr<Sheet>> m_sheets;
    std::vector<std::unique_ptr<Page>> m_pages;
};
