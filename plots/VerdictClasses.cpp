#include "plots/VerdictClasses.h"

#include "lum_sdk/GroupedNumber.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

using statistics::Verdict;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(VerdictClasses)
};

/// From the lowest to the uppermost.
constexpr std::array kOrder{Verdict::NotJudged, Verdict::WithinLimits, Verdict::Failed};

QColor colorOfVerdict(Verdict verdict, const PlotLook& look)
{
    switch (verdict) {
    case Verdict::WithinLimits:
        return look.good;
    case Verdict::Failed:
        return look.bad;
    default:
        return look.unknown;
    }
}

QString textOf(Verdict verdict, std::size_t count)
{
    const QString number = lum::groupedNumber(count);
    switch (verdict) {
    case Verdict::WithinLimits:
        return Texts::tr("within all limits: %1").arg(number);
    case Verdict::Failed:
        return Texts::tr("over a limit: %1").arg(number);
    default:
        return Texts::tr("not judged: %1").arg(number);
    }
}

} // namespace

VerdictClasses::VerdictClasses(const PlotLook& look) : m_look(look) {}

std::uint8_t VerdictClasses::colorOf(const statistics::Observation& result)
{
    ++m_counts[std::size_t(result.verdict)];
    const auto found = std::ranges::find(kOrder, result.verdict);
    return found == kOrder.end() ? 0 : static_cast<std::uint8_t>(found - kOrder.begin());
}

std::vector<QColor> VerdictClasses::colors() const
{
    std::vector<QColor> colors;
    colors.reserve(kOrder.size());
    for (const Verdict verdict : kOrder)
        colors.push_back(colorOfVerdict(verdict, m_look));
    return colors;
}

std::vector<VerdictClasses::Entry> VerdictClasses::legend() const
{
    std::vector<Entry> entries;
    for (std::size_t i = kOrder.size(); i-- > 0;) {
        const Verdict verdict = kOrder[i];
        if (const std::size_t count = m_counts[std::size_t(verdict)]; count > 0)
            entries.push_back({colorOfVerdict(verdict, m_look), textOf(verdict, count)});
    }
    return entries;
}
