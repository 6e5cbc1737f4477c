#include "views/tables/RowFilter.h"

#include "basalt_utilities/FixedDecimals.h"
#include "lum_sdk/Text.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <cmath>
#include <limits>
#include <optional>
#include <tuple>
#include <utility>

namespace {

constexpr double kInfinite = std::numeric_limits<double>::infinity();
constexpr QChar kQuote = QLatin1Char('"');
const QLatin1String kRange("..");

QString translated(const char* text)
{
    return QCoreApplication::translate("RowFilter", text);
}

std::optional<double> numberOf(const QString& text)
{
    return basalt::wholeDecimal(text.toStdString());
}

/// Whether the text is the beginning of a time: "2024/05", "2024/05/01 12".
bool isBeginningOfTime(const QString& text)
{
    constexpr std::string_view kForm = "0000/00/00 00:00:00";
    if (text.isEmpty() || text.size() > static_cast<int>(kForm.size()))
        return false;
    return std::equal(text.begin(), text.end(), kForm.begin(), [](QChar c, char form) {
        return form == '0' ? c >= QLatin1Char('0') && c <= QLatin1Char('9')
                           : c == QLatin1Char(form);
    });
}

} // namespace

/// Reads an expression, condition after condition.
class RowFilterReader
{
public:
    using Condition = RowFilter::Condition;

    RowFilterReader(const QString& expression, FilteredValue value, double tolerance)
        : m_text(expression), m_value(value), m_tolerance(tolerance)
    {
    }

    /// Stops at the first fault.
    void read(RowFilter& filter)
    {
        bool isNewAlternative = true;
        while (true) {
            skipBlanks();
            const bool isThere = m_place < m_text.size() && !isSeparator(m_text[m_place]);
            if (isThere) {
                if (std::exchange(isNewAlternative, false))
                    filter.m_alternatives.emplace_back();
                filter.m_alternatives.back().push_back(readCondition());
            }
            if (!m_fault.isEmpty() || m_place >= m_text.size())
                break;
            isNewAlternative |= m_text[m_place++] == QLatin1Char(';');
        }
        filter.m_fault = m_fault;
        if (!m_fault.isEmpty())
            filter.m_alternatives.clear();
    }

private:
    enum class Comparison
    {
        None,
        Equal,
        Less,
        LessOrEqual,
        Greater,
        GreaterOrEqual
    };
    struct Operand
    {
        QString text;
        bool isQuoted = false;
    };

    [[nodiscard]] static bool isSeparator(QChar c)
    {
        return c == QLatin1Char(';') || c == QLatin1Char('&');
    }
    void skipBlanks()
    {
        while (m_place < m_text.size() && m_text[m_place].isSpace())
            ++m_place;
    }
    /// Passes the sign when it comes next; also as a Chinese keyboard writes it.
    bool take(char sign)
    {
        constexpr int kFullWidth = 0xFEE0;
        if (m_place >= m_text.size() ||
            (m_text[m_place] != QLatin1Char(sign) && m_text[m_place] != QChar(sign + kFullWidth)))
            return false;
        ++m_place;
        return true;
    }

    Condition readCondition();
    Comparison readComparison();
    Operand readOperand();
    std::optional<QString> readQuoted();
    void compare(Condition& condition, Comparison comparison, const QString& operand);
    void compareNumber(Condition& condition, Comparison comparison, double operand);
    void setRange(Condition& condition, const QString& first, const QString& last);
    void fail(const QString& fault) { m_fault = fault; }

    const QString m_text;
    const FilteredValue m_value;
    const double m_tolerance;
    int m_place = 0;
    QString m_fault;
};

RowFilter::Condition RowFilterReader::readCondition()
{
    Condition condition;
    while (take('!')) {
        condition.isNegated = !condition.isNegated;
        skipBlanks();
    }
    const Comparison comparison = readComparison();
    const Operand operand = readOperand();
    const int range = operand.isQuoted ? -1 : operand.text.indexOf(kRange);
    if (comparison != Comparison::None) {
        compare(condition, comparison, operand.text);
    } else if (operand.text.isEmpty() && !operand.isQuoted) {
        fail(translated(QT_TRANSLATE_NOOP("RowFilter", "What is not shown stands behind \"!\".")));
    } else if (range >= 0) {
        setRange(condition, operand.text.left(range).trimmed(),
                 operand.text.mid(range + kRange.size()).trimmed());
    } else {
        condition.text = QStringMatcher(operand.text, Qt::CaseInsensitive);
    }
    return condition;
}

RowFilterReader::Comparison RowFilterReader::readComparison()
{
    const bool isLess = take('<');
    const bool isGreater = !isLess && take('>');
    const bool isEqual = take('=');
    if (isEqual && !isLess && !isGreater)
        take('='); // "==", as some write it
    if (isLess)
        return isEqual ? Comparison::LessOrEqual : Comparison::Less;
    if (isGreater)
        return isEqual ? Comparison::GreaterOrEqual : Comparison::Greater;
    return isEqual ? Comparison::Equal : Comparison::None;
}

/// A quoted text, or what stands before the next separator.
RowFilterReader::Operand RowFilterReader::readOperand()
{
    skipBlanks();
    const int start = m_place;
    if (auto quoted = readQuoted())
        return {*quoted, true};
    m_place = start;
    while (m_place < m_text.size() && !isSeparator(m_text[m_place]))
        ++m_place;
    return {m_text.mid(start, m_place - start).trimmed(), false};
}

/// Nothing when the text is not in quotes as a whole.
std::optional<QString> RowFilterReader::readQuoted()
{
    if (!take('"'))
        return std::nullopt;
    QString text;
    for (; m_place < m_text.size(); ++m_place) {
        if (m_text[m_place] == kQuote &&
            (++m_place >= m_text.size() || m_text[m_place] != kQuote)) {
            skipBlanks();
            if (m_place < m_text.size() && !isSeparator(m_text[m_place]))
                return std::nullopt;
            return text;
        }
        text += m_text[m_place];
    }
    return std::nullopt;
}

void RowFilterReader::compare(Condition& condition, Comparison comparison, const QString& operand)
{
    if (comparison == Comparison::Equal && m_value == FilteredValue::Text) {
        condition.kind = Condition::Kind::Whole;
        condition.text = QStringMatcher(operand, Qt::CaseInsensitive);
        return;
    }
    if (operand.isEmpty())
        return fail(translated(
            QT_TRANSLATE_NOOP("RowFilter", "A value to compare with stands behind the sign.")));
    if (m_value == FilteredValue::Time) {
        if (!isBeginningOfTime(operand))
            return fail(translated(QT_TRANSLATE_NOOP("RowFilter",
                                                     "\"%1\" is no time such as 2024/05/01 12:30."))
                            .arg(operand));
        condition.kind = Condition::Kind::Between;
        condition.isOpen = comparison == Comparison::Less || comparison == Comparison::Greater;
        if (comparison != Comparison::Less && comparison != Comparison::LessOrEqual)
            condition.first = operand.toStdString();
        if (comparison != Comparison::Greater && comparison != Comparison::GreaterOrEqual)
            condition.last = operand.toStdString();
        return;
    }
    const auto number = numberOf(operand);
    if (!number)
        return fail(translated(QT_TRANSLATE_NOOP("RowFilter",
                                                 "\"%1\" is no number. Decimals follow a point."))
                        .arg(operand));
    compareNumber(condition, comparison, *number);
}

void RowFilterReader::compareNumber(Condition& condition, Comparison comparison, double operand)
{
    condition.kind = Condition::Kind::Numbers;
    condition.from = -kInfinite;
    condition.to = kInfinite;
    switch (comparison) {
    case Comparison::Less:
        condition.to = std::nextafter(operand, -kInfinite);
        break;
    case Comparison::LessOrEqual:
        condition.to = operand;
        break;
    case Comparison::Greater:
        condition.from = std::nextafter(operand, kInfinite);
        break;
    case Comparison::GreaterOrEqual:
        condition.from = operand;
        break;
    default:
        condition.from = operand - m_tolerance;
        condition.to = operand + m_tolerance;
    }
}

void RowFilterReader::setRange(Condition& condition, const QString& first, const QString& last)
{
    const auto from = numberOf(first);
    const auto to = numberOf(last);
    const bool areTexts =
        m_value == FilteredValue::Time
            ? isBeginningOfTime(first) && isBeginningOfTime(last)
            : m_value == FilteredValue::Text && !first.isEmpty() && !last.isEmpty();
    if (m_value != FilteredValue::Time && from && to) {
        condition.kind = Condition::Kind::Numbers;
        std::tie(condition.from, condition.to) = std::minmax(*from, *to);
    } else if (areTexts) {
        condition.kind = Condition::Kind::Between;
        condition.first = std::min(first, last).toStdString();
        condition.last = std::max(first, last).toStdString();
    } else {
        fail(translated(QT_TRANSLATE_NOOP(
            "RowFilter", "A range has two ends, such as 1001..1040 or 2024/05/01..2024/05/07.")));
    }
}

RowFilter::RowFilter(const QString& expression, FilteredValue value, double tolerance)
{
    RowFilterReader(expression, value, tolerance).read(*this);
}

std::optional<std::pair<double, double>> RowFilter::range() const
{
    if (m_alternatives.size() != 1 || m_alternatives.front().size() != 1)
        return std::nullopt;
    const Condition& condition = m_alternatives.front().front();
    if (condition.kind != Condition::Kind::Numbers || condition.isNegated)
        return std::nullopt;
    return std::pair(condition.from, condition.to);
}

bool RowFilter::Condition::meets(std::string_view shown) const
{
    if (kind == Kind::Between) {
        const int low = first.empty() ? 1 : shown.substr(0, first.size()).compare(first);
        const int high = last.empty() ? -1 : shown.substr(0, last.size()).compare(last);
        return isOpen ? low > 0 && high < 0 : low >= 0 && high <= 0;
    }
    const QString whole = lum::toQString(shown);
    return kind == Kind::Whole ? whole.compare(text.pattern(), Qt::CaseInsensitive) == 0
                               : text.indexIn(whole) >= 0;
}

QString rowFilterFor(QString text)
{
    static const QRegularExpression kPlain(QStringLiteral("^[\\w .:/-]*$"),
                                           QRegularExpression::UseUnicodePropertiesOption);
    const bool isPlain = kPlain.match(text).hasMatch() && !text.contains(kRange);
    if (!isPlain)
        text = kQuote + text.replace(kQuote, QStringLiteral("\"\"")) + kQuote;
    return QStringLiteral("= ") + text;
}

QString rowFilterHelp()
{
    return translated(QT_TRANSLATE_NOOP("RowFilter",
                                        "1001: what has this text\n"
                                        "> 0.05, >= 0.05, < 3, <= 3, = 4: numbers and times\n"
                                        "1001..1040: from the first to the last\n"
                                        "!fixed: all others\n"
                                        "> 1 & < 2: both; 1001; 1005: one of them\n"
                                        "\"> 5\": this text as it stands"));
}
