#include "app/cli/PrintHistory.h"

#include "app/cli/CliArguments.h"
#include "app/cli/CliProject.h"
#include "quality/ResultCsv.h"

#include <cstdio>

namespace {

void print(const QStringList& fields)
{
    QByteArray line;
    for (const QString& field : fields)
        line += (line.isEmpty() ? QByteArray() : QByteArray(",")) + csvField(field);
    std::printf("%s\n", line.constData());
}

QStringList describe(const HistoryAction& action)
{
    return {action.time.toLocalTime().toString(QStringLiteral("yyyy-MM-dd hh:mm:ss")),
            action.person, action.machine, QString::fromStdString(action.kind),
            action.isTakenBack ? QStringLiteral("taken_back") : QStringLiteral("done")};
}

void print(const std::vector<HistoryAction>& actions)
{
    print(QStringLiteral("time,person,machine,action,state,points,file,reason").split(u','));
    for (const HistoryAction& action : actions)
        print(describe(action) << QString::number(action.points) << action.file << action.reason);
}

/// Whether a text is more than nothing or 0.
bool saysSomething(const std::string& text)
{
    return text.find_first_not_of("-.0") != std::string::npos;
}

void print(const HistoryAction& action, const HistoryItem& item)
{
    const auto line = [&](const HistoryField& field) {
        print(describe(action) << QLatin1String(nameOf(item.data))
                               << QLatin1String(nameOf(item.change))
                               << QString::fromStdString(field.key)
                               << QString::fromStdString(field.oldText)
                               << QString::fromStdString(field.newText));
    };
    const bool isPoint = item.data != HistoryData::AcceptedProblems;
    if (item.change == HistoryChange::Came && isPoint)
        return line({});
    for (const HistoryField& field : fieldsOf(action, item)) {
        if (!isPoint || saysSomething(field.oldText) || saysSomething(field.newText))
            line(field);
    }
}

void print(const std::vector<HistoryReader::Event>& events)
{
    print(QStringLiteral("time,person,machine,action,state,data,change,field,old,new").split(u','));
    for (const HistoryReader::Event& event : events) {
        for (const HistoryItem& item : event.items)
            print(event.action, item);
    }
}

/// A line's number may hold a slash as well, a point's does not.
bool readPoint(const QString& text, HistoryFilter& filter)
{
    const int slash = text.lastIndexOf(u'/');
    if (slash >= 0)
        filter.point = {text.left(slash).toStdString(), text.mid(slash + 1).toStdString()};
    return slash >= 0;
}

Outcome readFilter(const CliArguments& arguments, HistoryFilter& filter)
{
    const QString point = arguments.option(QStringLiteral("--point"));
    if (!point.isEmpty() && !readPoint(point, filter))
        return Outcome::refused(QStringLiteral("\"%1\" is not LINE/POINT").arg(point));
    const QString day = arguments.option(QStringLiteral("--since"));
    filter.from = QDate::fromString(day, Qt::ISODate);
    if (!day.isEmpty() && !filter.from.isValid())
        return Outcome::refused(QStringLiteral("\"%1\" is not a day such as 2026-05-31").arg(day));
    return Outcome::done();
}

} // namespace

Outcome printHistory(const CliArguments& arguments)
{
    HistoryFilter filter;
    if (Outcome reading = readFilter(arguments, filter); !reading.isDone())
        return reading;
    CliProject project;
    if (Outcome opening = project.open(arguments.places[0], ProjectAccess::Look); !opening.isDone())
        return opening;
    HistoryReader history = project.manager().history();
    std::vector<HistoryAction> actions;
    std::vector<HistoryReader::Event> events;
    Outcome reading =
        filter.point ? history.life(filter, events) : history.actions(filter, actions);
    if (reading.isDone() && filter.point)
        print(events);
    else if (reading.isDone())
        print(actions);
    return reading;
}
