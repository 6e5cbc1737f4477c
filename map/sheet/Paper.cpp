#include "map/sheet/Paper.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace {

constexpr std::array kPapers = {
    Paper{"A4", 210, 297},          Paper{"A3", 297, 420},        Paper{"A2", 420, 594},
    Paper{"A1", 594, 841},          Paper{"A0", 841, 1189},       Paper{"Letter", 215.9, 279.4},
    Paper{"Tabloid", 279.4, 431.8}, Paper{"ArchC", 457.2, 609.6}, Paper{"ArchD", 609.6, 914.4},
    Paper{"ArchE", 914.4, 1219.2},
};

} // namespace

std::span<const Paper> papers()
{
    return kPapers;
}

const Paper* findPaper(const QString& name)
{
    const auto* const found = std::find_if(kPapers.begin(), kPapers.end(), [&](const Paper& each) {
        return name.compare(QLatin1String(each.name), Qt::CaseInsensitive) == 0;
    });
    return found == kPapers.end() ? nullptr : found;
}

QString paperNames()
{
    QStringList names;
    for (const Paper& paper : kPapers)
        names << QLatin1String(paper.name);
    return names.join(QStringLiteral(", "));
}
