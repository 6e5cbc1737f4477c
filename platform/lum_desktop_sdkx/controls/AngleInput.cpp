#include "lum_desktop_sdkx/controls/AngleInput.h"

#include <QRegularExpression>
#include <QStringList>

#include <array>

namespace {

/// The letters of the positive half, then those of the negative one.
QString knownLetters(AngleLetters letters)
{
    if (letters == AngleLetters::None)
        return {};
    return letters == AngleLetters::NorthSouth ? QStringLiteral("NSns北南")
                                               : QStringLiteral("EWew东西");
}

/// Cuts a sign or a letter off. \returns 1 or -1; nothing when there is more than one of them
std::optional<int> takeSign(QString& text, AngleLetters letters)
{
    const QString signs = QStringLiteral("+-") + knownLetters(letters);
    const auto signOf = [&signs](QChar c) { return signs.indexOf(c) % 2 == 0 ? 1 : -1; };
    text.replace(QChar(0x2212), QLatin1Char('-')); // the minus of printed text
    const bool isBefore = signs.contains(text.at(0));
    const QChar last = text.at(text.size() - 1);
    const bool isBehind = signs.contains(last) && signs.indexOf(last) > 1;
    if (isBefore && isBehind)
        return {};
    int sign = 1;
    if (isBefore) {
        sign = signOf(text.at(0));
        const bool isWord = text.size() > 1 && QStringLiteral("纬经").contains(text.at(1));
        text.remove(0, isWord && signs.indexOf(text.at(0)) > 1 ? 2 : 1);
    } else if (isBehind) {
        sign = signOf(last);
        text.chop(1);
    }
    text = text.trimmed();
    return sign;
}

} // namespace

std::optional<double> readAngle(const QString& text, AngleLetters letters)
{
    // Whole degrees and minutes as far as there are any, the last part, and its mark.
    static const QRegularExpression kForm(
        QStringLiteral("^(?:([0-9]+)(?:\\s*[°º度:]\\s*|\\s+)"
                       "(?:([0-9]+)(?:\\s*['′’分:]\\s*|\\s+))?)?"
                       "([0-9]+\\.?[0-9]*)\\s*([°º度'′’分\"″”秒]|''|′′)?$"));
    static const std::array<QStringList, 3> kMarks = {
        QStringList{QStringLiteral("°"), QStringLiteral("º"), QStringLiteral("度")},
        QStringList{QStringLiteral("'"), QStringLiteral("′"), QStringLiteral("’"),
                    QStringLiteral("分")},
        QStringList{QStringLiteral("\""), QStringLiteral("″"), QStringLiteral("”"),
                    QStringLiteral("''"), QStringLiteral("′′"), QStringLiteral("秒")}};
    QString rest = text.trimmed();
    const auto sign = rest.isEmpty() ? std::nullopt : takeSign(rest, letters);
    const auto form = kForm.match(rest);
    if (!sign || !form.hasMatch())
        return {};
    std::array<double, 3> parts{};
    std::size_t last = 0;
    for (const int part : {1, 2}) {
        if (form.capturedLength(part) > 0)
            parts[last++] = form.captured(part).toDouble();
    }
    parts[last] = form.captured(3).toDouble();
    const QString mark = form.captured(4);
    if (parts[1] >= 60 || parts[2] >= 60 || !(mark.isEmpty() || kMarks[last].contains(mark)))
        return {};
    return *sign * (parts[0] * 3600 + parts[1] * 60 + parts[2]) / 3600;
}
