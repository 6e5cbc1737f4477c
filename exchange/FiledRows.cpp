#include "exchange/FiledRows.h"

#include <QCoreApplication>

#include <algorithm>

QString repeatedRowText()
{
    return QCoreApplication::translate(
        "ImportSummary", "The point stands in the file before; the later row counts.");
}

QString replacedPointText()
{
    return QCoreApplication::translate(
        "ImportSummary", "The project had the point; it has the values of the file now.");
}

void namePlaces(ImportSummary& summary, const std::vector<std::pair<std::size_t, PointName>>& names)
{
    using Findings = ImportSummary::Findings;
    for (Findings ImportSummary::*const findings :
         {&ImportSummary::undecoded, &ImportSummary::misread, &ImportSummary::changed,
          &ImportSummary::surplus, &ImportSummary::shorter}) {
        for (Findings::Place& place : (summary.*findings).first) {
            const auto found = std::lower_bound(
                names.begin(), names.end(), place.line,
                [](const auto& name, std::size_t line) { return name.first < line; });
            if (found != names.end() && found->first == place.line)
                place.point = found->second;
        }
    }
}
