#pragma once

#include <QString>

#include <memory>
#include <vector>

class QTranslator;

/// The program's texts in one language: the one in use, or one of `allLanguages`.
class Language
{
public:
    Language() = default;
    explicit Language(std::shared_ptr<const QTranslator> texts) : m_texts(std::move(texts)) {}

    /// The text as it stands in the code when this language has no other.
    [[nodiscard]] QString text(const char* context, const char* source) const;

private:
    std::shared_ptr<const QTranslator> m_texts; ///< null for the language in use
};

/// The language in use, that of the texts in the code, and those of the installed catalogues.
[[nodiscard]] std::vector<Language> allLanguages();
