#include "exchange/workbook/Workbook.h"

#include "exchange/CsvFaults.h"
#include "exchange/ShownTimes.h"
#include "exchange/workbook/ChartMaking.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>

#include <xlsxwriter.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <limits>

namespace {

constexpr int kMostOfName = 31; // characters that Excel allows
constexpr double kExcelDayOf1970 = 25569;
constexpr double kFirstDay = 61;     // before it, Excel counts a 29 February 1900
constexpr double kLastDay = 2958466; // the first of the year 10000
constexpr double kSecondsADay = 86400;

lxw_workbook* makeBook(const lum::FileAside& file)
{
    if (!file.fault().isEmpty())
        return nullptr;
    const QByteArray path = QFile::encodeName(file.path());
    // What is not in the memory goes beside the file, since the system's folder may be memory.
    QByteArray folder = QFile::encodeName(QFileInfo(file.path()).absolutePath());
    lxw_workbook_options options{};
    options.constant_memory = LXW_TRUE;
    options.tmpdir = folder.data();
    options.use_zip64 = LXW_FALSE;
    return workbook_new_opt(path.constData(), &options);
}

QString cleanName(QString name)
{
    for (QChar& character : name) {
        if (QStringLiteral("[]:*?/\\").contains(character) || character < QLatin1Char(' '))
            character = QLatin1Char('_');
    }
    name = name.trimmed();
    while (name.startsWith(QLatin1Char('\'')))
        name.remove(0, 1);
    while (name.endsWith(QLatin1Char('\'')))
        name.chop(1);
    return name.isEmpty() ? QStringLiteral("_") : name;
}

} // namespace

Workbook::PlainNumbers::PlainNumbers()
    : m_plain(newlocale(LC_NUMERIC_MASK, "C", duplocale(uselocale(nullptr)))),
      m_usual(uselocale(m_plain))
{
}

Workbook::PlainNumbers::~PlainNumbers()
{
    uselocale(m_usual);
    freelocale(m_plain);
}

Workbook::Workbook(const QString& path, const WorkbookInfo& info)
    : m_path(path), m_info(info), m_file(path), m_fault(m_file.fault()), m_book(makeBook(m_file)),
      m_formats(m_book, info.font), m_times(shownTimes())
{
    if (m_book == nullptr && m_fault.isEmpty())
        m_fault = qt_error_string(ENOMEM);
    if (m_book != nullptr)
        setProperties();
}

Workbook::~Workbook()
{
    if (m_book != nullptr)
        lxw_workbook_free(m_book);
}

void Workbook::setProperties()
{
    QByteArray title = m_info.title.toUtf8();
    QByteArray subject = m_info.subject.toUtf8();
    QByteArray author = m_info.author.toUtf8();
    lxw_doc_properties properties{};
    properties.title = title.data();
    properties.subject = subject.data();
    properties.author = author.data();
    check(workbook_set_properties(m_book, &properties));
}

Sheet& Workbook::addSheet(const QString& name, std::vector<SheetColumn> columns,
                          const SheetLook& look)
{
    return *m_sheets.emplace_back(std::make_unique<Sheet>(*this, name, std::move(columns), look));
}

Page& Workbook::addPage(const QString& name)
{
    return *m_pages.emplace_back(std::make_unique<Page>(*this, name));
}

lxw_chart* Workbook::makeChart(const Chart& chart)
{
    return m_book != nullptr ? ::makeChart(m_book, chart) : nullptr;
}

lxw_worksheet* Workbook::addWorksheet(const QString& name, QString& takenName)
{
    takenName = freeName(cleanName(name));
    if (m_book == nullptr)
        return nullptr;
    m_names.push_back(takenName);
    lxw_worksheet* const sheet = workbook_add_worksheet(m_book, takenName.toUtf8().constData());
    if (sheet == nullptr)
        keepError(LXW_ERROR_MEMORY_MALLOC_FAILED);
    return sheet;
}

/// Excel takes names that differ in case alone as the same.
QString Workbook::freeName(const QString& wanted) const
{
    QString name = wanted.left(kMostOfName);
    const auto isTaken = [&](const QString& other) {
        return other.compare(name, Qt::CaseInsensitive) == 0;
    };
    for (int number = 2; std::any_of(m_names.begin(), m_names.end(), isTaken); ++number) {
        const QString ending = QStringLiteral(" (%1)").arg(number);
        name = wanted.left(kMostOfName - ending.size()) + ending;
    }
    return name;
}

void Workbook::setFooter(lxw_worksheet* sheet)
{
    constexpr int kMostOfTitle = 120;
    QString title = m_info.title.left(kMostOfTitle);
    title.replace(QLatin1Char('&'), QLatin1String("&&"));
    const QString footer = QStringLiteral("&L%1&C&A&R&P / &N").arg(title);
    check(worksheet_set_footer(sheet, footer.toUtf8().constData()));
}

double Workbook::excelTime(std::int64_t milliseconds)
{
    return excelDay(static_cast<double>(m_times.clockSeconds(milliseconds)) / kSecondsADay);
}

double Workbook::excelDay(double days)
{
    const double day = kExcelDayOf1970 + days;
    return day >= kFirstDay && day < kLastDay ? day : std::numeric_limits<double>::quiet_NaN();
}

void Workbook::keepError(int error)
{
    if (m_fault.isEmpty())
        m_fault = QString::fromUtf8(lxw_strerror(static_cast<lxw_error>(error)));
}

/// The library does not notice a disk that is full while it writes rows, or while it copies them
/// for the package.
void Workbook::checkTemporaryFiles()
{
    const qint64 room = QStorageInfo(QFileInfo(m_file.path()).absolutePath()).bytesAvailable();
    lxw_worksheet* sheet = nullptr;
    STAILQ_FOREACH(sheet, m_book->worksheets, list_pointers)
    {
        errno = 0;
        FILE* const rows = sheet->optimize_tmpfile;
        const bool isWhole = rows != nullptr && std::fflush(rows) == 0 && std::ferror(rows) == 0;
        if ((!isWhole || std::ftell(rows) > room) && m_fault.isEmpty())
            m_fault = qt_error_string(errno != 0 ? errno : ENOSPC);
    }
}

Outcome Workbook::commit()
{
    for (const auto& sheet : m_sheets)
        sheet->finish();
    if (m_book != nullptr && m_fault.isEmpty())
        checkTemporaryFiles();
    if (!m_fault.isEmpty())
        return cannotWrite(m_path, m_fault);
    errno = 0;
    const lxw_error error = workbook_close(std::exchange(m_book, nullptr));
    if (error != LXW_NO_ERROR)
        m_fault = errno != 0 ? qt_error_string(errno) : QString::fromUtf8(lxw_strerror(error));
    else
        m_fault = m_file.commit();
    return m_fault.isEmpty() ? Outcome::done() : cannotWrite(m_path, m_fault);
}
