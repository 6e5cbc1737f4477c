#include "project/ProjectLoader.h"

#include "lum_sdk/database/RecordSet.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "model/CoordinateRecord.h"
#include "model/DesignRecord.h"
#include "model/PointNumber.h"
#include "model/RowNumbers.h"
#include "model/RowText.h"
#include "model/SurveyRecord.h"
#include "project/AcceptanceTable.h"
#include "project/DatabaseReason.h"
#include "project/DBAdapter.h"
#include "project/SafetyCopy.h"

#include <QCoreApplication>

#include <atomic>
#include <future>

namespace {

QString caption(const char* text)
{
    return QCoreApplication::translate("DataProcessDataManager", text);
}

QString surveyCaption()
{
    return caption(QT_TRANSLATE_NOOP("DataProcessDataManager", "Import Survey Data"));
}

/// Reports after every so many rows, on whichever of the two threads they were read.
class RowProgress
{
public:
    RowProgress(ProgressReporter& reporter, QString caption, std::size_t rows, std::size_t reports)
        : m_reporter(reporter), m_caption(std::move(caption)), m_rows(rows),
          m_step(std::max<std::size_t>(1, rows / reports)), m_next(m_step)
    {
    }

    void reach(std::size_t rowsRead)
    {
        for (; m_next <= rowsRead; m_next += m_step)
            m_reporter.report(m_caption, m_next, m_rows);
    }

private:
    ProgressReporter& m_reporter;
    QString m_caption;
    std::size_t m_rows;
    std::size_t m_step;
    std::size_t m_next;
};

struct DesignPart
{
    void add(const IDictionary& row) { points.set(reader.read(row)); }

    DesignRecord::Reader reader;
    DesignPoints points;
};

struct SurveyPart
{
    void add(const IDictionary& row)
    {
        SurveyPoint point = reader.read(row);
        if (point.lineNumber.empty())
            point.lineNumber = kEmptyLine;
        file(std::move(point));
    }
    void file(SurveyPoint&& point)
    {
        if (isCheckPoint(point.pointNumber))
            checkPoints.push_back(std::move(point));
        else
            points.set(std::move(point));
    }

    SurveyRecord::Reader reader;
    SurveyPoints points;
    std::vector<SurveyPoint> checkPoints; ///< get their counters when both halves are together
};

/// The same for an import, which passes over points without a number, and gives check points
/// without a line the one that their number names.
struct ImportedPart : SurveyPart
{
    void add(const IDictionary& row)
    {
        SurveyPoint point = reader.read(row);
        ++rows.read;
        if (point.pointNumber.empty()) {
            rows.withoutNumber.push_back(rows.read);
            return;
        }
        rows.withoutLine += point.lineNumber.empty() ? 1U : 0U;
        if (point.lineNumber.empty() && !isCheckPoint(point.pointNumber))
            point.lineNumber = kEmptyLine;
        file(std::move(point));
    }

    ProjectLoader::ResultRows rows;
};

/// The same for a comparison, which takes the rows as they are.
struct RecordPart
{
    void add(const IDictionary& row) { records.push_back(reader.read(row)); }

    SurveyRecord::Reader reader;
    std::vector<SurveyPoint> records;
};

/// Puts both halves of a table together.
template <class Part>
void join(std::array<Part, 2>& parts, SurveyPoints& survey, const SurveyPoints* standing)
{
    survey = std::move(parts[0].points);
    survey.merge(std::move(parts[1].points));
    SurveyPointFiler filer(survey, standing);
    for (Part& part : parts) {
        for (SurveyPoint& point : part.checkPoints)
            filer.file(std::move(point));
    }
}

/// The upper half of a table, read on a thread and a connection of its own: two connections read in
/// half the time of one, as measured.
class OtherHalf
{
public:
    explicit OtherHalf(const std::string& connection) : m_connection(connection) {}

    template <class Part>
    void start(const std::string& statement, Part& part)
    {
        m_job = std::async(std::launch::async, [this, statement, &part] {
            return m_database.open(m_connection.c_str()) &&
                   m_database.forEachRow(statement.c_str(), [&](const IDictionary& row) {
                       part.add(row);
                       m_rowsRead.fetch_add(1, std::memory_order_relaxed);
                       return true;
                   });
        });
    }

    [[nodiscard]] std::size_t rowsRead() const
    {
        return m_rowsRead.load(std::memory_order_relaxed);
    }
    /// Waits for the end, and throws what the thread threw; true also when nothing was started.
    bool finish() { return !m_job.valid() || m_job.get(); }
    [[nodiscard]] std::string lastError() const { return m_database.lastError(); }

private:
    std::string m_connection;
    DBAdapter m_database;
    std::atomic<std::size_t> m_rowsRead{0};
    std::future<bool> m_job; // last, so that the thread ends before what it works with
};

} // namespace

ProjectLoader::ProjectLoader(IDBAdapter& database, ProgressReporter& progress)
    : m_database(database), m_progress(progress)
{
}

Outcome ProjectLoader::load(const std::string& path, DesignPoints& design, SurveyPoints& survey,
                            IDictionary& coordParameters, Acceptances* acceptances)
{
    m_database.close();
    design.clear();
    survey.clear();
    Outcome recovery = SafetyCopy(path).recover(m_database);
    if (!recovery.isDone())
        return recovery;
    const Outcome reading = readAs(path, lum::databaseConnection(path), [&] {
        m_progress.start(caption(QT_TRANSLATE_NOOP("DataProcessDataManager", "Loading Database")));
        if (acceptances != nullptr)
            recovery.add(AcceptanceTable::read(m_database, *acceptances));
        return readDesign(design) && readSurvey(survey) && readCoordinateSystem(coordParameters);
    });
    m_progress.finish();
    return reading.isDone() ? recovery : reading;
}

Outcome ProjectLoader::readResults(const std::string& path, const SurveyPoints& standing,
                                   SurveyPoints& survey, IDictionary& coordParameters,
                                   ResultRows& rows)
{
    return readAs(path, lum::readOnlyConnection(path), [&] {
        return readSurvey(survey, standing, rows) && readCoordinateSystem(coordParameters);
    });
}

Outcome ProjectLoader::readRecords(const std::string& path, std::vector<SurveyPoint>& records,
                                   IDictionary& coordParameters)
{
    return readAs(path, lum::readOnlyConnection(path),
                  [&] { return readSurvey(records) && readCoordinateSystem(coordParameters); });
}

Outcome ProjectLoader::readSystem(const std::string& path, IDictionary& coordParameters)
{
    return readAs(path, lum::readOnlyConnection(path),
                  [&] { return readCoordinateSystem(coordParameters); });
}

template <class Read>
Outcome ProjectLoader::readAs(const std::string& path, const std::string& connection, Read read)
{
    m_connection = connection;
    bool isRead = false;
    try {
        // While this transaction lasts nobody else can commit: both connections see the same rows.
        isRead = ((m_database.open(connection.c_str()) && m_database.execute("begin")) ||
                  fail(m_database.lastError())) &&
                 read();
    } catch (const std::exception& fault) { // of either thread, such as no memory
        isRead = fail(fault.what());
    }
    m_database.rollback();
    if (isRead)
        return Outcome::done();
    return Outcome::failed(QCoreApplication::translate(
                               "ProjectStore", "The project database \"%1\" cannot be read: %2.")
                               .arg(QString::fromStdString(path), databaseReason(m_reason)),
                           "Cannot load \"" + path + "\": " + m_reason);
}

bool ProjectLoader::readDesign(DesignPoints& design)
{
    std::array<DesignPart, 2> parts;
    const bool isRead = readTable(
        DesignRecord::kTable,
        caption(QT_TRANSLATE_NOOP("DataProcessDataManager", "Import Design Data")), 100, parts);
    design = std::move(parts[0].points);
    design.merge(std::move(parts[1].points));
    return isRead;
}

bool ProjectLoader::readSurvey(SurveyPoints& survey)
{
    std::array<SurveyPart, 2> parts;
    const bool isRead = readTable(SurveyRecord::kTable, surveyCaption(), 50, parts);
    join(parts, survey, nullptr);
    return isRead;
}

bool ProjectLoader::readSurvey(SurveyPoints& survey, const SurveyPoints& standing, ResultRows& rows)
{
    std::array<ImportedPart, 2> parts;
    const bool isRead = readTable(SurveyRecord::kTable, surveyCaption(), 50, parts);
    join(parts, survey, &standing);
    rows = std::move(parts[0].rows);
    for (const std::size_t place : parts[1].rows.withoutNumber)
        rows.withoutNumber.push_back(rows.read + place);
    rows.read += parts[1].rows.read;
    rows.withoutLine += parts[1].rows.withoutLine;
    return isRead;
}

bool ProjectLoader::readSurvey(std::vector<SurveyPoint>& records)
{
    std::array<RecordPart, 2> parts;
    const bool isRead = readTable(SurveyRecord::kTable, surveyCaption(), 50, parts);
    records = std::move(parts[0].records);
    records.insert(records.end(), std::make_move_iterator(parts[1].records.begin()),
                   std::make_move_iterator(parts[1].records.end()));
    return isRead;
}

bool ProjectLoader::readCoordinateSystem(IDictionary& coordParameters)
{
    RecordSet records;
    if (!m_database.select(CoordinateRecord::kTable, nullptr, nullptr, records))
        return fail(m_database.lastError());
    if (records.isEmpty())
        return true;
    const RecordSet::Row row = records[records.size() - 1];
    coordParameters.clear();
    for (const std::string& column : records.columns()) {
        if (const auto value = row.find(column))
            coordParameters.set(lowerName(column), rowText(*value));
    }
    return true;
}

bool ProjectLoader::plan(const char* table, Plan& plan)
{
    const std::int64_t count = m_database.rowCount(table, nullptr);
    if (count < 0)
        return fail(m_database.lastError());
    plan.count = static_cast<std::size_t>(count);
    const std::string all = std::string("select * from ") + table;
    RecordSet range;
    const std::string middle = std::string("select (min(rowid) + max(rowid)) / 2 from ") + table;
    if (m_database.query(middle.c_str(), range) && range[0].find(range.columns()[0])) {
        const std::string border(range[0].valueAt(0));
        plan.statements = {all + " where rowid <= " + border, all + " where rowid > " + border};
    } else {
        plan.statements = {all, {}}; // no rows, or rows without a number
    }
    return true;
}

template <class Part>
bool ProjectLoader::readTable(const char* table, const QString& caption, std::size_t reports,
                              std::array<Part, 2>& parts)
{
    Plan plan;
    if (!this->plan(table, plan))
        return false;
    RowProgress progress(m_progress, caption, plan.count, reports);
    OtherHalf other(m_connection);
    if (!plan.statements[1].empty())
        other.start(plan.statements[1], parts[1]);
    std::size_t rowsRead = 0;
    const bool isRead =
        m_database.forEachRow(plan.statements[0].c_str(), [&](const IDictionary& row) {
            parts[0].add(row);
            progress.reach(++rowsRead + other.rowsRead());
            return true;
        });
    const bool isOtherRead = other.finish();
    if (!isRead) {
        parts[1] = {}; // what was read ends at the failure, and these rows come after it
        return fail(m_database.lastError());
    }
    progress.reach(rowsRead + other.rowsRead());
    return isOtherRead || fail(other.lastError());
}

bool ProjectLoader::fail(const std::string& reason)
{
    m_reason = reason;
    return false;
}
