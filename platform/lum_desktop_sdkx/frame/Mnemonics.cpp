#include "lum_desktop_sdkx/frame/Mnemonics.h"

#include <QKeySequence>
#include <QRegularExpression>

namespace desktop {

QString withoutMnemonic(const QString& caption)
{
    static const QRegularExpression kBrackets(QStringLiteral("\\s*\\(&[^&)]\\)"));
    static const QRegularExpression kMark(QStringLiteral("&(.)"));
    QString plain = caption;
    plain.remove(kBrackets);
    plain.replace(kMark, QStringLiteral("\\1")); // "&&" stands for one that is shown
    return plain;
}

QChar mnemonicOf(const QString& caption)
{
    const QString keys = QKeySequence::mnemonic(caption).toString(QKeySequence::PortableText);
    return keys.isEmpty() ? QChar() : keys.back();
}

QString withMnemonic(const QString& caption, QChar letter)
{
    if (letter.isNull() || !mnemonicOf(caption).isNull())
        return caption;
    const QString escaped = QRegularExpression::escape(letter);
    for (const QString& pattern : {QStringLiteral("\\b%1"), QStringLiteral("%1")}) {
        const QRegularExpression place(pattern.arg(escaped),
                                       QRegularExpression::CaseInsensitiveOption);
        const int at = caption.indexOf(place);
        if (at >= 0)
            return QString(caption).insert(at, QLatin1Char('&'));
    }
    const QString dots = QStringLiteral("...");
    const int end = caption.endsWith(dots) ? caption.size() - dots.size() : caption.size();
    return QString(caption).insert(end, QStringLiteral("(&%1)").arg(letter));
}

} // namespace desktop
