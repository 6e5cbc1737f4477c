#include "app/cli/CliArguments.h"

namespace {

bool isOption(const QString& text)
{
    return text.startsWith(QLatin1String("--"));
}

} // namespace

QString CliArguments::option(const QString& name) const
{
    return options.value(name).value(0);
}

Outcome CliArguments::read(const QStringList& texts, const QStringList& allowed,
                           const QStringList& flags, CliArguments& arguments)
{
    for (int i = 0; i < texts.size(); ++i) {
        const QString& text = texts[i];
        if (!isOption(text)) {
            arguments.places.append(text);
            continue;
        }
        if (!allowed.contains(text) && !flags.contains(text))
            return Outcome::refused(QStringLiteral("unknown option %1").arg(text));
        QStringList& values = arguments.options[text];
        if (flags.contains(text))
            continue;
        const bool takesPairs = text == QLatin1String("--set");
        const bool isOnce = !takesPairs && text != QLatin1String("--overlay");
        if (i + 1 == texts.size() || texts[i + 1].isEmpty() || isOption(texts[i + 1]))
            return Outcome::refused(QStringLiteral("%1 needs a value").arg(text));
        if (isOnce && !values.isEmpty())
            return Outcome::refused(QStringLiteral("%1 is given twice").arg(text));
        values.append(texts[++i]);
        while (takesPairs && i + 1 < texts.size() && texts[i + 1].contains(QLatin1Char('=')))
            values.append(texts[++i]);
    }
    return Outcome::done();
}
