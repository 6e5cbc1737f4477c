#pragma once

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

/// A project as maps of texts, and what the program's operations have to make of it, written as
/// plainly as possible: a copy of it is a state to which the program can go back.
struct PlainProject
{
    /// Design: north, east, elevation, azimuth, type. Results: mark, altitude, north, elevation,
    /// antenna height, surveyor, remarks. Numbers are written as in the database.
    using Row = std::vector<std::string>;
    using Points = std::map<std::string, std::map<std::string, Row>>;
    enum Field
    {
        Mark,
        Altitude,
        North,
        Elevation,
        Antenna,
        Surveyor,
        Remarks
    };
    struct Named
    {
        std::string line;
        std::string number; ///< in files that of a check point has no counter
        Row row;
    };

    Points design;
    Points results;
    std::map<std::string, std::string> quality;
    std::map<std::string, std::string> designParameters;
    std::map<std::string, std::string> accepted; ///< reasons by problem
    std::string coordSystem;                     ///< its central meridian

    friend bool operator==(const PlainProject&, const PlainProject&) = default;

    static std::string text(double value, int decimals = 4)
    {
        char written[40];
        std::snprintf(written, sizeof written, "%.*f", decimals, value == 0 ? 0.0 : value);
        return written;
    }
    static std::string padded(int number)
    {
        const std::string digits = std::to_string(number);
        return std::string(4 - std::min<std::size_t>(digits.size(), 4), '0') + digits;
    }
    static bool isCheckPoint(const std::string& number)
    {
        return number.size() >= 9 && number[0] == 'C';
    }

    /// The number under which a result is filed beside those that stand.
    [[nodiscard]] std::string freeNumber(const std::string& line, const std::string& number) const
    {
        if (!isCheckPoint(number))
            return number;
        const auto standing = results.find(line);
        for (int counter = 0;; ++counter) {
            std::string free = number.substr(0, 9) + "_" + std::to_string(counter);
            if (standing == results.end() || !standing->second.contains(free))
                return free;
        }
    }
    void import(const std::vector<Named>& rows)
    {
        for (const Named& each : rows) {
            std::string line = each.line;
            if (line.empty())
                line = isCheckPoint(each.number) ? each.number.substr(1, 4) : "EmptyLine";
            results[line][freeNumber(line, each.number)] = each.row;
        }
    }
    bool erase(const std::string& line, const std::string& number)
    {
        const auto found = results.find(line);
        const bool isGone = found != results.end() && found->second.erase(number) == 1;
        if (isGone && found->second.empty())
            results.erase(found);
        return isGone;
    }
    /// \param changed  the result with its new values and its new name
    /// \returns whether that changes anything
    bool correct(const Named& present, Named changed)
    {
        const bool keepsCounter =
            changed.line == present.line && changed.number == present.number.substr(0, 9);
        if (changed.line == present.line && changed.number == present.number) {
            Row& row = results[present.line][present.number];
            return row != changed.row && (row = changed.row, true);
        }
        const std::string number = isCheckPoint(changed.number) && keepsCounter
                                       ? present.number
                                       : freeNumber(changed.line, changed.number);
        const bool isSame = number == present.number && changed.line == present.line &&
                            results[present.line][present.number] == changed.row;
        erase(present.line, present.number);
        results[changed.line][number] = std::move(changed.row);
        return !isSame;
    }
    /// A grid of lines that follow to the east, whose points go north.
    struct Grid
    {
        int lines;
        int points;
        double north;
        double east;
        double lineDistance;
        const char* type;
    };
    void generate(const Grid& grid)
    {
        for (int line = 0; line < grid.lines; ++line) {
            for (int point = 0; point < grid.points; ++point) {
                const std::string lineNumber = padded(line * 10);
                design[lineNumber][lineNumber + padded(point * 10)] = {
                    text(grid.north + point * 15), text(grid.east + line * grid.lineDistance),
                    text(0), text(0, 6), grid.type};
            }
        }
    }

    /// The results in the order of the files, where a check point has no counter.
    [[nodiscard]] std::vector<Named> written() const
    {
        std::vector<Named> rows;
        for (const auto& [line, points] : results) {
            std::vector<std::pair<std::string, int>> order;
            for (const auto& [number, row] : points)
                order.emplace_back(isCheckPoint(number) ? number.substr(0, 9) : number,
                                   isCheckPoint(number) ? std::stoi(number.substr(10)) : -1);
            std::sort(order.begin(), order.end());
            for (const auto& [number, counter] : order) {
                const std::string name =
                    counter < 0 ? number : number + "_" + std::to_string(counter);
                rows.push_back({line, number, points.at(name)});
            }
        }
        return rows;
    }
    /// As it is read again: check points are counted anew.
    [[nodiscard]] PlainProject reread() const
    {
        PlainProject read = *this;
        read.results.clear();
        read.import(written());
        return read;
    }
};
