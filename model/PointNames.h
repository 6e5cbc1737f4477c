#pragma once

#include "model/PointName.h"

#include <algorithm>
#include <map>
#include <string>
#include <vector>

/// Names of points, line by line, both in ascending order and each once.
class PointNames
{
public:
    using Lines = std::map<std::string, std::vector<std::string>>;

    PointNames() = default;
    explicit PointNames(const std::vector<PointName>& names)
    {
        for (const PointName& name : names)
            m_lines[name.line].push_back(name.point);
        for (auto& [line, numbers] : m_lines)
            putInOrder(numbers);
    }
    void add(const PointNames& more)
    {
        for (const auto& [line, numbers] : more.m_lines) {
            std::vector<std::string>& all = m_lines[line];
            all.insert(all.end(), numbers.begin(), numbers.end());
            putInOrder(all);
        }
    }

    [[nodiscard]] const Lines& lines() const { return m_lines; }
    [[nodiscard]] std::size_t count() const
    {
        std::size_t count = 0;
        for (const auto& [line, numbers] : m_lines)
            count += numbers.size();
        return count;
    }

    /// The numbers of a line, to be filled in ascending order.
    [[nodiscard]] std::vector<std::string>& of(const std::string& line) { return m_lines[line]; }

private:
    static void putInOrder(std::vector<std::string>& numbers)
    {
        std::sort(numbers.begin(), numbers.end());
        numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
    }

    Lines m_lines;
};
