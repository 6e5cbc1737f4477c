#include "views/find/PointFinder.h"

#include "basalt_utilities/KeyList.h"

#include <algorithm>
#include <array>
#include <future>
#include <iterator>
#include <utility>

namespace {

/// How well a number matches; the lower, the better.
enum class Rank : std::size_t
{
    Exact,
    Beginning,
    Part,
    None
};
constexpr std::size_t kRanks = static_cast<std::size_t>(Rank::None);

/// Latin capitals as small letters, every other byte as it is.
constexpr auto kFolded = [] {
    std::array<unsigned char, 256> table{};
    for (std::size_t i = 0; i < table.size(); ++i)
        table[i] = static_cast<unsigned char>(i >= 'A' && i <= 'Z' ? i - 'A' + 'a' : i);
    return table;
}();

constexpr unsigned char folded(char letter)
{
    return kFolded[static_cast<unsigned char>(letter)];
}

/// A text that numbers are compared with.
class Pattern
{
public:
    explicit Pattern(std::string_view text) : m_text(text)
    {
        for (char& letter : m_text)
            letter = static_cast<char>(folded(letter));
        if (m_text.empty())
            return;
        m_first = m_text.front();
        m_firstCapital =
            m_first >= 'a' && m_first <= 'z' ? static_cast<char>(m_first - 'a' + 'A') : m_first;
    }

    /// The empty pattern is the beginning of every number.
    [[nodiscard]] Rank rankOf(std::string_view number) const
    {
        if (number.size() < m_text.size())
            return Rank::None;
        const char* const begin = number.data();
        const char* const last = begin + (number.size() - m_text.size());
        for (const char* place = begin; place <= last; ++place) {
            const bool isFirst = *place == m_first || *place == m_firstCapital;
            if (m_text.empty() || (isFirst && isRestAt(place + 1))) {
                if (place > begin)
                    return Rank::Part;
                return last == begin ? Rank::Exact : Rank::Beginning;
            }
        }
        return Rank::None;
    }

private:
    [[nodiscard]] bool isRestAt(const char* place) const
    {
        for (std::size_t i = 1; i < m_text.size(); ++i, ++place) {
            if (folded(*place) != static_cast<unsigned char>(m_text[i]))
                return false;
        }
        return true;
    }

    std::string m_text; ///< in small letters
    char m_first = '\0';
    char m_firstCapital = '\0';
};

/// The number of a line as it was typed, perhaps with the letter of the line's kind before it.
class LinePattern
{
public:
    explicit LinePattern(std::string_view text) : m_plain(text)
    {
        if (text.size() > 1)
            m_behindLetter.emplace_back(text.substr(1));
        m_letter = text.empty() ? '\0' : static_cast<char>(folded(text.front()));
    }

    [[nodiscard]] Rank rankOf(std::string_view number, bool isReceiver) const
    {
        const Rank rank = m_plain.rankOf(number);
        if (m_behindLetter.empty() || m_letter != (isReceiver ? 'r' : 's'))
            return rank;
        const Rank other = m_behindLetter.front().rankOf(number);
        return other == Rank::Part ? rank : std::min(rank, other);
    }

private:
    Pattern m_plain;
    std::vector<Pattern> m_behindLetter; ///< at most one
    char m_letter;
};

/// What was typed: a number, and each way to read it as a line and a point.
struct Query
{
    explicit Query(std::string_view text) : line(text), point(text)
    {
        for (std::size_t i = 1; i < text.size(); ++i) {
            constexpr std::string_view kSeparators = "/ \t";
            if (kSeparators.find(text[i]) != std::string_view::npos)
                pairs.emplace_back(LinePattern(basalt::trimmed(text.substr(0, i))),
                                   Pattern(basalt::trimmed(text.substr(i + 1))));
        }
    }

    LinePattern line;
    Pattern point;
    std::vector<std::pair<LinePattern, Pattern>> pairs;
};

/// The first matches of each rank, and the number of all.
struct Matches
{
    std::array<std::vector<FoundPlace>, kRanks> lines;
    std::array<std::vector<FoundPlace>, kRanks> points;
    std::size_t count = 0;

    template <class Make>
    void add(std::array<std::vector<FoundPlace>, kRanks>& ranks, Rank rank, Make make)
    {
        ++count;
        std::vector<FoundPlace>& places = ranks[static_cast<std::size_t>(rank)];
        if (places.size() < kMostFoundPlaces)
            places.push_back(make());
    }

    /// Appends the matches of lines that come later.
    void append(Matches&& later)
    {
        count += later.count;
        for (std::size_t rank = 0; rank < kRanks; ++rank) {
            std::move(later.lines[rank].begin(), later.lines[rank].end(),
                      std::back_inserter(lines[rank]));
            std::move(later.points[rank].begin(), later.points[rank].end(),
                      std::back_inserter(points[rank]));
        }
    }

    /// Lines and then points of one rank.
    [[nodiscard]] std::vector<FoundPlace> take(std::size_t rank)
    {
        std::vector<FoundPlace> places = std::move(lines[rank]);
        std::move(points[rank].begin(), points[rank].end(), std::back_inserter(places));
        return places;
    }
};

bool isReceiver(const DesignPoint& point)
{
    return point.type != 0;
}

bool isReceiver(const SurveyPoint& point)
{
    return point.pointMark != 0;
}

constexpr bool isSurvey(const DesignPoint& /*point*/)
{
    return false;
}

constexpr bool isSurvey(const SurveyPoint& /*point*/)
{
    return true;
}

template <class Point>
void matchLine(const std::string& number, const PointLine<Point>& line, const Query& query,
               Matches& matches)
{
    const Point& first = *line.begin();
    const bool isReceiverLine = isReceiver(first);
    const Rank lineRank = query.line.rankOf(number, isReceiverLine);
    if (lineRank != Rank::None)
        matches.add(matches.lines, lineRank, [&] {
            return FoundPlace{isSurvey(first), isReceiverLine, number, {}, line.size()};
        });
    std::vector<const Pattern*> ofThisLine; // from the readings that name this line
    for (const auto& [lineNumber, pointNumber] : query.pairs) {
        if (lineNumber.rankOf(number, isReceiverLine) == Rank::Exact)
            ofThisLine.push_back(&pointNumber);
    }
    for (const Point& point : line) {
        Rank rank = query.point.rankOf(point.pointNumber);
        for (const Pattern* pattern : ofThisLine)
            rank = std::min(rank, pattern->rankOf(point.pointNumber));
        if (rank != Rank::None)
            matches.add(matches.points, rank, [&] {
                return FoundPlace{isSurvey(point), isReceiver(point), number, point.pointNumber, 0};
            });
    }
}

/// Matches of the lines from `first` to `last`.
template <class Iterator>
Matches matchLines(Iterator first, Iterator last, const Query& query)
{
    Matches matches;
    for (; first != last; ++first)
        matchLine(first->first, first->second, query, matches);
    return matches;
}

/// The line with which the second half of all points begins.
template <class Points>
auto middleOf(const Points& points)
{
    std::size_t left = points.pointCount() / 2;
    auto line = points.begin();
    while (line != points.end() && line->second.size() <= left) {
        left -= line->second.size();
        ++line;
    }
    return line;
}

} // namespace

FoundPlaces findPlaces(const DesignPoints& design, const SurveyPoints& survey,
                       std::string_view text)
{
    const std::string_view typed = basalt::trimmed(text);
    if (typed.empty())
        return {};
    const Query query(typed);
    const auto designMiddle = middleOf(design);
    const auto surveyMiddle = middleOf(survey);
    auto later = std::async(std::launch::async, [&] {
        return std::pair(matchLines(designMiddle, design.end(), query),
                         matchLines(surveyMiddle, survey.end(), query));
    });
    Matches ofDesign = matchLines(design.begin(), designMiddle, query);
    Matches ofSurvey = matchLines(survey.begin(), surveyMiddle, query);
    auto [laterDesign, laterSurvey] = later.get();
    ofDesign.append(std::move(laterDesign));
    ofSurvey.append(std::move(laterSurvey));

    FoundPlaces found;
    found.count = ofDesign.count + ofSurvey.count;
    for (std::size_t rank = 0; rank < kRanks; ++rank) {
        std::vector<FoundPlace> first = ofDesign.take(rank);
        std::vector<FoundPlace> second = ofSurvey.take(rank);
        const std::size_t room = kMostFoundPlaces - found.places.size();
        const std::size_t unneeded = room - std::min(room, first.size());
        second.resize(std::min(second.size(), std::max(room / 2, unneeded)));
        first.resize(std::min(first.size(), room - second.size()));
        std::move(first.begin(), first.end(), std::back_inserter(found.places));
        std::move(second.begin(), second.end(), std::back_inserter(found.places));
    }
    return found;
}
