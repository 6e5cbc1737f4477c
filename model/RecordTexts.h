#pragma once

#include "basalt_utilities/FixedDecimals.h"

#include <array>
#include <cstdint>
#include <string_view>

/// The texts of one record, column after column. It writes numbers into a buffer of its own; of
/// other texts it keeps a view, so they must live until the record is stored.
class RecordTexts
{
public:
    static constexpr std::size_t kMostColumns = 64;

    RecordTexts() = default;
    RecordTexts(const RecordTexts&) = delete;
    RecordTexts& operator=(const RecordTexts&) = delete;

    void clear();
    void add(std::string_view text);
    void addInteger(std::int64_t value);
    void addFixed(double value, int decimals);
    /// Six significant digits.
    void addGeneral(double value);

    [[nodiscard]] std::size_t size() const { return m_size; }
    [[nodiscard]] const std::string_view* values() const { return m_values.data(); }

private:
    void addUpTo(const char* end);

    std::array<std::string_view, kMostColumns> m_values;
    std::size_t m_size = 0;
    std::array<char, kMostColumns * basalt::kFixedSize> m_buffer{};
    char* m_free = m_buffer.data();
};
