#include "views/tables/SortKeys.h"

#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/files/SystemKeys.h"
#include "lum_sdk/Text.h"

#include <QCollator>
#include <QLocale>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <numeric>
#include <string>
#include <unordered_map>

namespace {

constexpr std::uint64_t kSign = std::uint64_t(1) << 63U;
constexpr std::size_t kPrefix = sizeof(std::uint64_t);

/// The first eight bytes of a name as a number.
std::uint64_t prefixKey(std::string_view name)
{
    std::uint64_t key = 0;
    for (std::size_t i = 0; i < kPrefix; ++i)
        key = key << 8U | (i < name.size() ? static_cast<unsigned char>(name[i]) : 0U);
    return key;
}

/// Sorts each run of items that are alike for `areAlike`.
template <class AreAlike, class IsLess>
void sortRuns(std::vector<SortItem>& items, AreAlike areAlike, IsLess isLess)
{
    for (auto first = items.begin(); first != items.end();) {
        const auto last = std::find_if(
            first, items.end(), [&](const SortItem& item) { return !areAlike(*first, item); });
        if (!std::is_sorted(first, last, isLess)) // which allocates nothing
            std::stable_sort(first, last, isLess);
        first = last;
    }
}

/// A radix sort by the 33 bits from the first in which keys differ, the last of them first; each
/// pass keeps the order of the one before. Few keys are alike in these, and they are compared.
/// Several times as fast as comparing all.
void sortByDigits(std::vector<SortItem>& items)
{
    constexpr unsigned kBits = 11;
    constexpr std::size_t kValues = std::size_t(1) << kBits;
    constexpr unsigned kDigits = 3;
    std::uint64_t differing = 0;
    for (const SortItem& item : items)
        differing |= item.key ^ items.front().key;
    const auto width = static_cast<unsigned>(std::bit_width(differing));
    const unsigned shift = std::max(width, kDigits * kBits) - kDigits * kBits;
    const auto digit = [shift](const SortItem& item, unsigned place) {
        return static_cast<std::size_t>(item.key >> (shift + place * kBits)) % kValues;
    };
    std::array<std::array<std::uint32_t, kValues>, kDigits> counts{};
    for (const SortItem& item : items) {
        for (unsigned place = 0; place < kDigits; ++place)
            ++counts[place][digit(item, place)];
    }
    std::vector<SortItem> sorted(items.size());
    for (unsigned place = 0; place < kDigits; ++place) {
        auto& starts = counts[place];
        if (items.empty() || starts[digit(items.front(), place)] == items.size())
            continue; // all have this digit
        std::exclusive_scan(starts.begin(), starts.end(), starts.begin(), 0U);
        for (const SortItem& item : items)
            sorted[starts[digit(item, place)]++] = item;
        items.swap(sorted);
    }
    if (shift > 0)
        sortRuns(
            items,
            [shift](const SortItem& a, const SortItem& b) { return (a.key ^ b.key) >> shift == 0; },
            [](const SortItem& a, const SortItem& b) { return a.key < b.key; });
}

struct TextHash
{
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const
    {
        return std::hash<std::string_view>()(text);
    }
};
using Ranks = std::unordered_map<std::string, std::uint64_t, TextHash, std::equal_to<>>;

QCollator collatorOfLanguage()
{
    const auto language = get_system_ini_parameter().dictionary().text(settings::kLanguage);
    return QCollator(language.empty() ? QLocale::system() : QLocale(lum::toQString(language)));
}

/// Numbers the texts in the order of the language; equal ones for it have one number.
void rank(Ranks& texts)
{
    const QCollator collator = collatorOfLanguage();
    std::vector<std::pair<QCollatorSortKey, std::uint64_t*>> keys;
    keys.reserve(texts.size());
    for (auto& [text, place] : texts)
        keys.emplace_back(collator.sortKey(lum::toQString(text)), &place);
    std::sort(keys.begin(), keys.end(),
              [](const auto& a, const auto& b) { return a.first < b.first; });
    std::uint64_t last = 0;
    for (std::size_t i = 0; i < keys.size(); ++i)
        *keys[i].second = last += i > 0 && keys[i - 1].first < keys[i].first ? 1U : 0U;
}

} // namespace

std::uint64_t sortKey(double value)
{
    if (std::isnan(value))
        return kNoValueKey;
    const auto bits = std::bit_cast<std::uint64_t>(value + 0.0); // -0 is 0
    return (bits & kSign) != 0 ? ~bits : bits | kSign;
}

std::uint64_t sortKey(std::int64_t value)
{
    return static_cast<std::uint64_t>(value) ^ kSign;
}

void sortByKeys(std::vector<SortItem>& items, bool isDescending)
{
    if (isDescending) {
        for (SortItem& item : items)
            item.key = item.key == kNoValueKey ? item.key : ~item.key;
    }
    sortByDigits(items);
}

void sortByNames(std::vector<SortItem>& items, bool isDescending,
                 const std::function<std::string_view(std::uint32_t row)>& nameOf)
{
    for (SortItem& item : items)
        item.key = prefixKey(nameOf(item.row));
    sortByKeys(items, isDescending);
    // Names that begin alike are compared as a whole.
    sortRuns(
        items, [](const SortItem& a, const SortItem& b) { return a.key == b.key; },
        [&](const SortItem& a, const SortItem& b) {
            return isDescending ? nameOf(b.row) < nameOf(a.row) : nameOf(a.row) < nameOf(b.row);
        });
}

void sortByTexts(std::vector<SortItem>& items, bool isDescending,
                 const std::function<std::string_view(std::uint32_t row)>& textOf)
{
    Ranks texts;
    std::vector<const std::uint64_t*> ranks; // nodes of the map stay where they are
    ranks.reserve(items.size());
    for (const SortItem& item : items) {
        const std::string_view text = textOf(item.row);
        auto found = texts.find(text);
        if (found == texts.end())
            found = texts.emplace(text, 0).first;
        ranks.push_back(&found->second);
    }
    rank(texts);
    for (std::size_t i = 0; i < items.size(); ++i)
        items[i].key = *ranks[i];
    sortByKeys(items, isDescending);
}
