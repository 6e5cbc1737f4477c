#pragma once

#include "model/Language.h"

#include <QStringList>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Finds the heading of a survey CSV file: the captions of line and point number, and of any other
/// columns, in one language of the program. The language in use comes first.
class SurveyHeadings
{
public:
    static constexpr std::size_t kNowhere = std::string_view::npos;

    struct Heading
    {
        Language language;
        std::vector<std::string> captions; ///< of all survey columns
        /// Where each survey column stands, counted from 0. Of a caption that stands twice the last
        /// one counts.
        std::vector<std::size_t> indices;
        std::size_t fieldCount = 0;
        std::size_t captionCount = 0; ///< the fields up to the last caption
        QStringList passedOver;       ///< captions that are none of a column, and the first of two
    };

    explicit SurveyHeadings(const std::vector<Language>& languages = allLanguages());

    /// Nothing for a line that is no heading.
    [[nodiscard]] std::optional<Heading> find(std::string_view line) const;

    /// What was looked for, and what the first lines of a file without a heading hold instead:
    /// whole sentences.
    [[nodiscard]] QStringList whyNone(const std::vector<std::string>& firstLines) const;

private:
    struct Captions
    {
        Language language;
        std::vector<std::string> texts;

        [[nodiscard]] const std::string& line() const { return texts[0]; }
        [[nodiscard]] const std::string& point() const { return texts[1]; }
    };

    [[nodiscard]] QString expected() const;
    [[nodiscard]] QString lookedLike(std::string_view line, std::size_t number) const;
    [[nodiscard]] QString otherForm(std::string_view line) const;
    [[nodiscard]] QString halfOf(std::string_view line) const;

    std::vector<Captions> m_captions;
};
