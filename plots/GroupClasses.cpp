#include "plots/GroupClasses.h"

#include "lum_sdk/Text.h"

#include <QCoreApplication>

#include <algorithm>
#include <numeric>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(GroupClasses)
};

constexpr int kMostLetters = 32;

/// Its beginning and its end, since either may tell it from others.
QString shortened(const QString& name)
{
    constexpr int kHalf = kMostLetters / 2;
    return name.size() <= kMostLetters ? name
                                       : name.left(kHalf) + QChar(0x2026) + name.right(kHalf - 1);
}

} // namespace

GroupClasses::GroupClasses(const PlotData& data, const std::vector<std::uint32_t>& places,
                           statistics::GroupKey key, const PlotLook& look)
    : m_key(key), m_look(look)
{
    const auto& values = data.sample->valuesOf(key);
    std::vector<std::size_t> counts(values.size(), 0);
    for (const std::uint32_t place : places)
        ++counts[data.result(place).key(key)];
    std::vector<std::size_t> order(values.size());
    std::iota(order.begin(), order.end(), std::size_t(0));
    const auto used = std::partition(order.begin(), order.end(),
                                     [&](std::size_t value) { return counts[value] > 0; });
    order.erase(used, order.end());
    std::sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return counts[a] != counts[b] ? counts[a] > counts[b] : a < b;
    });
    if (order.size() > PlotLook::kClasses) {
        m_others = order.size() - PlotLook::kClasses;
        order.resize(PlotLook::kClasses);
    }
    std::sort(order.begin(), order.end()); // by name
    m_classes.assign(values.size(), order.size());
    m_own.reserve(order.size());
    for (const std::size_t value : order) {
        m_classes[value] = m_own.size();
        const std::string& text = values[value].text;
        m_own.push_back(text.empty() ? Texts::tr("none given") : shortened(lum::toQString(text)));
    }
}

QColor GroupClasses::color(std::size_t classPlace) const
{
    return classPlace < m_own.size() ? m_look.ofClass(classPlace) : m_look.others;
}

QString GroupClasses::name(std::size_t classPlace) const
{
    return classPlace < m_own.size() ? m_own[classPlace] : Texts::tr("and %1 more").arg(m_others);
}

std::vector<QColor> GroupClasses::markColors() const
{
    std::vector<QColor> colors{m_look.others};
    colors.reserve(m_own.size() + 1);
    for (std::size_t place = 0; place < m_own.size(); ++place)
        colors.push_back(color(place));
    return colors;
}
