#include "exchange/DesignHeading.h"

#include "lum_sdk/Text.h"

#include <algorithm>

namespace {

constexpr int kDesignCode = 5;
constexpr const char* kCaptions[] = {
    QT_TRANSLATE_NOOP("DesignCsv", "point_num"), QT_TRANSLATE_NOOP("DesignCsv", "line_num"),
    QT_TRANSLATE_NOOP("DesignCsv", "north"),     QT_TRANSLATE_NOOP("DesignCsv", "east"),
    QT_TRANSLATE_NOOP("DesignCsv", "elevation"), QT_TRANSLATE_NOOP("DesignCsv", "design code"),
    QT_TRANSLATE_NOOP("DesignCsv", "azimuth"),   QT_TRANSLATE_NOOP("DesignCsv", "type"),
    QT_TRANSLATE_NOOP("DesignCsv", "status"),
};
constexpr std::size_t kLongest = 1000; ///< bytes of a line that may be a heading

} // namespace

QStringList designCaptions(const Language& language)
{
    QStringList captions;
    for (const char* caption : kCaptions)
        captions << language.text("DesignCsv", caption);
    return captions;
}

bool isDesignHeading(std::string_view line, const std::vector<Language>& languages)
{
    if (line.size() > kLongest)
        return false;
    QStringList fields = lum::toQString(line).split(QLatin1Char(','));
    for (QString& field : fields)
        field = field.trimmed();
    return std::any_of(languages.begin(), languages.end(), [&](const Language& language) {
        QStringList captions = designCaptions(language);
        const bool isExported = fields == captions;
        captions.removeAt(kDesignCode);
        return isExported || fields == captions;
    });
}
