#include "reports/RoverWords.h"

#include "lum_sdk/Text.h"

#include <QCoreApplication>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(RoverReport)
};

} // namespace

QString roverLogName(std::string_view name)
{
    return name.empty() ? Texts::tr("none given") : lum::toQString(name);
}

QString roverLogList(const QStringList& names)
{
    constexpr int kMost = 8; // on a line of a cell
    const QString first = names.mid(0, kMost).join(QLatin1String("; "));
    return names.size() <= kMost ? first
                                 : Texts::tr("%1 and %2 more").arg(first).arg(names.size() - kMost);
}
