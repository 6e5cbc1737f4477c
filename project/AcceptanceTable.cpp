#include "project/AcceptanceTable.h"

#include "basalt_utilities/ILogger.h"
#include "basalt_utilities/KeyList.h"
#include "lum_sdk/database/IDBAdapter.h"
#include "lum_sdk/GroupedNumber.h"
#include "lum_sdk/Text.h"
#include "project/DatabaseReason.h"
#include "quality/problems/Acceptance.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace AcceptanceTable {

namespace {

constexpr const char* kColumns =
    "form,kind,is_design,line_num,point_num,fingerprint,reason,person,time";
using Texts = std::array<std::string, 9>;

std::string knownRows()
{
    return "form <= " + std::to_string(kForm);
}

/// Whether the table has all columns that this version knows.
bool isKnown(IDBAdapter& database)
{
    const std::vector<std::string> columns = database.columns(kName);
    std::string_view wanted = kColumns;
    while (!wanted.empty()) {
        if (std::ranges::find(columns, next_word3(wanted, ',')) == columns.end())
            return false;
    }
    return true;
}

Texts textsOf(const Acceptance& acceptance)
{
    return {std::to_string(kForm),
            acceptance.kind,
            acceptance.isDesign ? "1" : "0",
            acceptance.name.line,
            acceptance.name.point,
            acceptance.fingerprint,
            acceptance.reason.toStdString(),
            acceptance.person.toStdString(),
            acceptance.time.toUTC().toString(Qt::ISODateWithMs).toStdString()};
}

Acceptance acceptanceOf(const IDictionary& row)
{
    return {std::string(row.text("kind")),
            row.integer("is_design") != 0,
            {std::string(row.text("line_num")), std::string(row.text("point_num"))},
            std::string(row.text("fingerprint")),
            lum::toQString(row.text("reason")),
            lum::toQString(row.text("person")),
            QDateTime::fromString(lum::toQString(row.text("time")), Qt::ISODateWithMs)};
}

bool areSame(const Acceptances& first, const Acceptances& second)
{
    return std::ranges::equal(first, second, {}, textsOf, textsOf);
}

bool make(IDBAdapter& database)
{
    return database.execute("create table if not exists ProblemAcceptance (form INTEGER, "
                            "kind TEXT, is_design INTEGER, line_num TEXT, point_num TEXT, "
                            "fingerprint TEXT, reason TEXT, person TEXT, time TEXT)");
}

bool insertAll(IDBAdapter& database, const Acceptances& acceptances)
{
    const auto rows = database.bulkInsert(kName, kColumns);
    return rows != nullptr && std::ranges::all_of(acceptances, [&](const Acceptance& acceptance) {
               const Texts texts = textsOf(acceptance);
               std::array<std::string_view, std::tuple_size_v<Texts>> values;
               std::ranges::copy(texts, values.begin());
               return rows->add(values.data());
           });
}

QString translated(const char* text)
{
    return QCoreApplication::translate("ProjectStore", text);
}

bool readKnown(IDBAdapter& database, Acceptances& acceptances)
{
    const std::string question =
        std::string("select ") + kColumns + " from " + kName + " where " + knownRows();
    return database.forEachRow(question.c_str(), [&](const IDictionary& row) {
        acceptances.set(acceptanceOf(row));
        return true;
    });
}

/// About the rows of newer versions; empty when there are none.
QString newerNotice(IDBAdapter& database)
{
    const std::string condition = "typeof(form) = 'integer' and form > " + std::to_string(kForm);
    const std::int64_t newer = database.rowCount(kName, condition.c_str());
    if (newer <= 0)
        return {};
    return translated(QT_TRANSLATE_NOOP("ProjectStore",
                                        "Accepted problems of this project that a newer version "
                                        "of the program has written: %1. They are kept, but not "
                                        "shown as accepted."))
        .arg(lum::groupedNumber(newer));
}

} // namespace

QString read(IDBAdapter& database, Acceptances& acceptances)
{
    acceptances.clear();
    if (!database.tableExists(kName))
        return {};
    if (!isKnown(database))
        return translated(QT_TRANSLATE_NOOP(
            "ProjectStore", "The accepted problems of this project are of another version of the "
                            "program. They are kept, but not shown, and what you accept is not "
                            "added to them."));
    if (readKnown(database, acceptances))
        return newerNotice(database);
    const std::string reason = database.lastError();
    basalt::logError("Cannot read the accepted problems: " + reason);
    acceptances.clear();
    return translated(QT_TRANSLATE_NOOP("ProjectStore",
                                        "The accepted problems of this project cannot be read: "
                                        "%1."))
        .arg(databaseReason(reason));
}

bool write(IDBAdapter& database, const Acceptances& acceptances, QString& notice)
{
    const bool isThere = database.tableExists(kName);
    if (isThere && !isKnown(database)) // as was said when it was read
        return true;
    Acceptances stored;
    const bool isRead = !isThere || readKnown(database, stored);
    if (isRead ? areSame(stored, acceptances) : acceptances.empty())
        return true;
    if (!database.execute("savepoint acceptances"))
        return false;
    if (isRead && make(database) && database.remove(kName, knownRows().c_str()) &&
        insertAll(database, acceptances))
        return database.execute("release acceptances");
    const std::string reason = database.lastError();
    basalt::logError("Cannot write the accepted problems: " + reason);
    notice = translated(QT_TRANSLATE_NOOP("ProjectStore",
                                          "The points are saved, but not which problems you have "
                                          "accepted: %1."))
                 .arg(databaseReason(reason));
    return database.execute("rollback to acceptances; release acceptances");
}

} // namespace AcceptanceTable
