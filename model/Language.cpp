#include "model/Language.h"

#include "basalt_utilities/Product.h"

#include <QCoreApplication>
#include <QDir>
#include <QTranslator>

QString Language::text(const char* context, const char* source) const
{
    if (m_texts == nullptr)
        return QCoreApplication::translate(context, source);
    const QString text = m_texts->translate(context, source);
    return text.isEmpty() ? QString::fromUtf8(source) : text;
}

std::vector<Language> allLanguages()
{
    std::vector<Language> languages{Language(), Language(std::make_shared<QTranslator>())};
    const QDir folder(QString::fromStdString(basalt::configFolder() + "/Language"));
    for (const QString& name : folder.entryList({QStringLiteral("*.qm")}, QDir::Files)) {
        const auto texts = std::make_shared<QTranslator>();
        if (texts->load(folder.filePath(name)))
            languages.emplace_back(texts);
    }
    return languages;
}
