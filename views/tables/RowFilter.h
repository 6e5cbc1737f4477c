#pragma once

#include <QString>
#include <QStringMatcher>

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// What stands in a filtered column.
enum class FilteredValue
{
    Number,
    Time, ///< "yyyy/MM/dd hh:mm:ss"
    Text  ///< also the names of lines and points, which may be numbers
};

/// The filter expression of a column.
///
/// | expression          | shows                                                              |
/// |---------------------|--------------------------------------------------------------------|
/// | 1001                | what has "1001" in its shown text, in capitals or not              |
/// | "> 5"               | the same for a text in quotes, whatever it holds (`""` is a quote) |
/// | > 0.05, >=, <, <=   | numbers, with a decimal point; names that are numbers              |
/// | = 0.05              | the number as it is shown; of texts the whole text; `=` no text    |
/// | 1001..1040          | numbers from 1001 to 1040; texts between two texts                 |
/// | > 2024/05/01 12     | times, by their beginning; so do =, <, ... and ..                  |
/// | !fixed, !> 3, !=    | what the expression behind `!` does not show                       |
/// | > 1 & < 2           | what both show                                                     |
/// | 1001; 1005          | what one of them shows; `&` binds closer                           |
///
/// Angles are compared as decimal degrees, however they are shown.
class RowFilter
{
public:
    /// Shows all rows.
    RowFilter() = default;
    /// \param tolerance by how much a number may differ from another and is shown as the same
    RowFilter(const QString& expression, FilteredValue value, double tolerance = 0);

    /// Whether it shows all rows; so does one that cannot be read.
    [[nodiscard]] bool isEmpty() const { return m_alternatives.empty(); }
    /// Why the expression cannot be read, translated; empty when it can.
    [[nodiscard]] const QString& fault() const { return m_fault; }

    /// The least and the greatest number that it shows, when it is a plain range of numbers: a long
    /// column is walked faster so.
    [[nodiscard]] std::optional<std::pair<double, double>> range() const;

    /// \param number returns the value as a double; not a number when it is none
    /// \param text   returns the shown text (UTF-8)
    template <class Number, class Text>
    [[nodiscard]] bool passes(Number number, Text text) const
    {
        const auto meets = [&](const Condition& condition) {
            if (condition.kind != Condition::Kind::Numbers)
                return condition.meets(text()) != condition.isNegated;
            const double value = number();
            return (value >= condition.from && value <= condition.to) != condition.isNegated;
        };
        return isEmpty() ||
               std::any_of(m_alternatives.begin(), m_alternatives.end(), [&](const auto& all) {
                   return std::all_of(all.begin(), all.end(), meets);
               });
    }

private:
    friend class RowFilterReader;

    struct Condition
    {
        enum class Kind
        {
            Numbers, ///< from .. to
            Part,    ///< `text` stands somewhere in it
            Whole,   ///< it is `text`
            Between  ///< its beginning lies between `first` and `last`
        };

        [[nodiscard]] bool meets(std::string_view shown) const;

        Kind kind = Kind::Part;
        bool isNegated = false;
        double from = 0;
        double to = 0;
        QStringMatcher text;
        std::string first; ///< empty for no limit, as is `last`
        std::string last;
        bool isOpen = false; ///< `first` and `last` are outside
    };

    std::vector<std::vector<Condition>> m_alternatives; ///< each of conditions that all hold
    QString m_fault;
};

/// The filter that shows exactly the cells with this text.
[[nodiscard]] QString rowFilterFor(QString text);

/// What may be written in a filter, a line each, translated: for a tool tip.
[[nodiscard]] QString rowFilterHelp();
