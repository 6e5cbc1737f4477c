#include "exchange/CsvHead.h"

#include "basalt_utilities/Utf8.h"
#include "exchange/CsvFields.h"
#include "exchange/DesignCsvReader.h"
#include "exchange/DesignHeading.h"
#include "exchange/SurveyHeadings.h"
#include "exchange/TextEncoding.h"

#include <QFile>
#include <QFileInfo>
#include <QTextCodec>

#include <string>
#include <string_view>

namespace {

constexpr int kHeadBytes = 64 * 1024;
constexpr std::size_t kMostLines = 50; ///< that are looked at
constexpr int kMostShown = 3;

/// The beginning of a file as UTF-8; it may end in half a line.
std::string decoded(const QByteArray& head, bool isWhole)
{
    std::string_view bytes(head.constData(), static_cast<std::size_t>(head.size()));
    TextEncoding encoding = encodingOfStart(bytes.substr(0, 4));
    if (encoding == TextEncoding::Utf8) {
        const std::size_t end = isWhole ? bytes.npos : bytes.rfind('\n');
        bytes = bytes.substr(0, end); // a character that is cut would be a fault
        basalt::Utf8Count utf8;
        Gb18030Count gb;
        basalt::countUtf8(bytes, utf8);
        countGb18030(bytes, gb);
        if (utf8.faults != 0)
            encoding = likelierEncoding(utf8, gb);
    }
    const QString text = codecOf(encoding)->toUnicode(bytes.data(), static_cast<int>(bytes.size()));
    return text.toStdString();
}

CsvHead::Kind kindOf(std::string_view line, const std::vector<Language>& languages,
                     const SurveyHeadings& headings)
{
    if (isDesignHeading(line, languages) || isDesignRow(line))
        return CsvHead::Kind::Design;
    return headings.find(line) ? CsvHead::Kind::Survey : CsvHead::Kind::Unknown;
}

CsvHead headOf(std::string_view text)
{
    const std::vector<Language> languages = allLanguages();
    const SurveyHeadings headings(languages);
    CsvHead head;
    for (std::size_t i = 0; i < kMostLines && !text.empty(); ++i) {
        const std::size_t end = text.find('\n');
        const std::string_view line = withoutBlanks(text.substr(0, end));
        text.remove_prefix(end == text.npos ? text.size() : end + 1);
        if (line.empty())
            continue;
        if (head.lines.size() < kMostShown)
            head.lines << shownField(line);
        if (head.kind == CsvHead::Kind::Unknown)
            head.kind = kindOf(line, languages, headings);
    }
    return head;
}

} // namespace

std::optional<CsvHead> readCsvHead(const QString& path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray bytes = file.read(kHeadBytes);
    const CsvHead head = headOf(decoded(bytes, file.atEnd()));
    return head.lines.isEmpty() ? std::nullopt : std::optional(head);
}
