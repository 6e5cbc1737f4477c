#include "exchange/SurveyHeadings.h"

#include "exchange/CsvFields.h"
#include "exchange/DesignHeading.h"
#include "lum_sdk/Text.h"
#include "model/SurveyColumns.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

constexpr std::size_t kNone = std::string_view::npos;
constexpr QLatin1Char kQuote('"');

QString translated(const char* text)
{
    return QCoreApplication::translate("SurveyHeadings", text);
}

QString quoted(const std::string& caption)
{
    return kQuote + QString::fromStdString(caption) + kQuote;
}

QStringList captionsOf(std::string_view line, char separator = ',')
{
    QStringList captions = lum::toQString(line).split(QLatin1Char(separator));
    for (QString& caption : captions)
        caption = caption.trimmed();
    return captions;
}

/// A caption as strangers may write it: with quotes, underlines and letters of another case.
QString plain(QString caption)
{
    caption.remove(kQuote).replace(QLatin1Char('_'), QLatin1Char(' '));
    return caption.simplified().toCaseFolded();
}

/// The field that is nearly the caption; empty when there is none.
QString likeCaption(const QStringList& fields, const std::string& caption)
{
    const QString wanted = plain(QString::fromStdString(caption));
    const auto found = std::find_if(fields.begin(), fields.end(),
                                    [&](const QString& field) { return plain(field) == wanted; });
    return found == fields.end() ? QString() : *found;
}

/// How a field differs from a caption but for quotes; none when it does not.
QStringList otherLetters(QString field, const std::string& caption)
{
    const QString wanted = QString::fromStdString(caption);
    field = field.remove(kQuote).trimmed();
    if (field == wanted)
        return {};
    return {translated(QT_TRANSLATE_NOOP("SurveyHeadings", "\"%1\" must be written \"%2\"."))
                .arg(field, wanted)};
}

} // namespace

SurveyHeadings::SurveyHeadings(const std::vector<Language>& languages)
{
    for (const Language& language : languages) {
        Captions captions{language, {}};
        for (const QString& caption : surveyCaptions(language))
            captions.texts.push_back(caption.toStdString());
        m_captions.push_back(std::move(captions));
    }
}

std::optional<SurveyHeadings::Heading> SurveyHeadings::find(std::string_view line) const
{
    for (const Captions& captions : m_captions) {
        if (line.find(captions.line()) == kNone || line.find(captions.point()) == kNone)
            continue; // at once, since a large file of another kind has many lines
        const std::vector<std::string>& texts = captions.texts;
        const QStringList fields = captionsOf(line);
        Heading heading{captions.language, texts, {}, 0, 0, {}};
        heading.indices.assign(texts.size(), kNowhere);
        heading.fieldCount = static_cast<std::size_t>(fields.size());
        for (int i = fields.size() - 1; i >= 0; --i) {
            const QString& field = fields[i];
            const auto found = std::find(texts.begin(), texts.end(), field.toStdString());
            const auto column = static_cast<std::size_t>(found - texts.begin());
            const auto index = static_cast<std::size_t>(i);
            if (found != texts.end() && heading.indices[column] == kNowhere)
                heading.indices[column] = index;
            else if (!field.isEmpty())
                heading.passedOver.prepend(field);
            if (!field.isEmpty())
                heading.captionCount = std::max(heading.captionCount, index + 1);
        }
        if (heading.indices[0] != kNowhere && heading.indices[1] != kNowhere)
            return heading;
    }
    return {};
}

QStringList SurveyHeadings::whyNone(const std::vector<std::string>& firstLines) const
{
    constexpr int kMostShown = 3;
    QStringList sentences{expected()};
    QStringList shown;
    QString likeness;
    for (std::size_t i = 0; i < firstLines.size(); ++i) {
        const QString text = lum::toQString(firstLines[i]).trimmed();
        if (likeness.isEmpty())
            likeness = lookedLike(firstLines[i], i + 1);
        if (!text.isEmpty() && shown.size() < kMostShown)
            shown << translated(QT_TRANSLATE_NOOP("SurveyHeadings", "Line %1 is: %2"))
                         .arg(QString::number(i + 1), shownField(firstLines[i]));
    }
    if (!likeness.isEmpty())
        sentences << likeness;
    return sentences + shown;
}

/// The captions of line and point number in every language.
QString SurveyHeadings::expected() const
{
    QStringList pairs;
    for (const Captions& captions : m_captions)
        pairs << translated(QT_TRANSLATE_NOOP("SurveyHeadings", "%1 and %2"))
                     .arg(quoted(captions.line()), quoted(captions.point()));
    pairs.removeDuplicates();
    return translated(QT_TRANSLATE_NOOP("SurveyHeadings",
                                        "No line holds the captions of line number and point "
                                        "number: %1."))
        .arg(pairs.join(translated(QT_TRANSLATE_NOOP("SurveyHeadings", ", or "))));
}

/// What keeps the line from being a heading, when it is nearly one.
QString SurveyHeadings::lookedLike(std::string_view line, std::size_t number) const
{
    std::vector<Language> languages;
    for (const Captions& captions : m_captions)
        languages.push_back(captions.language);
    QString fault;
    if (line.find('\0') != kNone)
        fault = zeroBytes();
    else if (isDesignHeading(line, languages))
        fault = translated(QT_TRANSLATE_NOOP(
            "SurveyHeadings", "It is the heading of a design file. Import it as design points."));
    else
        fault = otherForm(line);
    if (fault.isEmpty())
        fault = halfOf(line);
    if (fault.isEmpty())
        return {};
    return translated(QT_TRANSLATE_NOOP("SurveyHeadings", "Line %1 is no heading. %2"))
        .arg(QString::number(number), fault);
}

/// The captions in another form: parted by something else, in quotes, with other letters.
QString SurveyHeadings::otherForm(std::string_view line) const
{
    for (const char separator : {',', ';', '\t'}) {
        const QStringList fields = captionsOf(line, separator);
        for (const Captions& captions : m_captions) {
            const QString lineField = likeCaption(fields, captions.line());
            const QString pointField = likeCaption(fields, captions.point());
            if (lineField.isEmpty() || pointField.isEmpty())
                continue;
            QStringList faults;
            if (separator != ',')
                faults << otherSeparator(separator);
            if (lineField.contains(kQuote) || pointField.contains(kQuote))
                faults << translated(
                    QT_TRANSLATE_NOOP("SurveyHeadings", "The captions stand in quotes."));
            faults << otherLetters(lineField, captions.line());
            faults << otherLetters(pointField, captions.point());
            return faults.join(QLatin1Char(' '));
        }
    }
    return {};
}

/// One of the two captions without the other.
QString SurveyHeadings::halfOf(std::string_view line) const
{
    const QStringList fields = captionsOf(line);
    for (const Captions& captions : m_captions) {
        const bool hasLine = fields.contains(QString::fromStdString(captions.line()));
        if (hasLine || fields.contains(QString::fromStdString(captions.point())))
            return translated(QT_TRANSLATE_NOOP("SurveyHeadings", "It lacks the caption %1."))
                .arg(quoted(hasLine ? captions.point() : captions.line()));
    }
    return {};
}
