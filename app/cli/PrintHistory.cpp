#include "app/cli/PrintHistory.h"

#include "app/cli/CliArguments.h"
#include "app/cli/CliProject.h"
#include "quality/ResultCsv.h"

#include <cstdio>

namespace {

void print(const QStringList& fields)
{
    QByteArrayList texts;
    for (const QString& field : fields)
        texts << csvField(field);
    std::printf("%s\n", texts.join(',').constData());
}

QStringList describe(const HistoryAction& action)
{
    return {action.time.toLocalTime().toString(QStringLiteral("yyyy-MM-dd hh:mm:ss")),
            action.person, action.machine, QString::fromStdString(action.kind),
            QLatin1String(nameOf(action.state))};
}

void print(const std::vector<HistoryAction>& actions)
{
    print(QStringLiteral("time,person,machine,action,state,points,file,reason").split(u','));
    for (const HistoryAction& action : actions)
        print(describe(action) << QString::number(action.points) << action.file << action.reason);
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
    if (item.change == HistoryChange::Came && item.field.empty())
        return line({});
    for (const HistoryField& field : fieldsOf(action, item)) {
        if (!item.field.empty() || saysSomething(field.oldText) || saysSomething(field.newText))
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

struct Wanted
{
    std::vector<PointName> points; ///< that the user may mean; none for all actions
    HistoryFilter filter;
};

Outcome readWanted(const CliArguments& arguments, Wanted& wanted)
{
    const QString point = arguments.option(QStringLiteral("--point"));
    wanted.points = pointNamesOf(point);
    if (!point.isEmpty() && wanted.points.empty())
        return Outcome::refused(QStringLiteral("\"%1\" is not LINE/POINT").arg(point));
    const QString day = arguments.option(QStringLiteral("--since"));
    wanted.filter.from = QDate::fromString(day, QStringLiteral("yyyy-MM-dd"));
    if (!day.isEmpty() && !wanted.filter.from.isValid())
        return Outcome::refused(QStringLiteral("\"%1\" is not a day such as 2026-05-31").arg(day));
    return Outcome::done();
}

/// The life of the first of these points that has one.
Outcome printLife(HistoryReader& history, Wanted wanted)
{
    std::vector<HistoryReader::Event> events;
    Outcome reading = Outcome::done();
    for (std::size_t i = 0; i < wanted.points.size() && events.empty() && reading.isDone(); ++i) {
        wanted.filter.point = wanted.points[i];
        reading = history.life(wanted.filter, events);
    }
    if (reading.isDone())
        print(events);
    return reading;
}

} // namespace

Outcome printHistory(const CliArguments& arguments)
{
    Wanted wanted;
    if (Outcome reading = readWanted(arguments, wanted); !reading.isDone())
        return reading;
    CliProject project;
    if (Outcome opening = project.open(arguments.places[0], ProjectAccess::Look); !opening.isDone())
        return opening;
    HistoryReader history = project.manager().history();
    if (!wanted.points.empty())
        return printLife(history, wanted);
    std::vector<HistoryAction> actions;
    Outcome reading = history.actions(wanted.filter, actions);
    if (reading.isDone())
        print(actions);
    return reading;
}
