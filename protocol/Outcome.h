#pragma once

#include <QString>

#include <string>

/// How an operation ended, with a text for the user and a detail for the log. Unless the operation
/// says otherwise, it has changed nothing when it was refused or failed.
class [[nodiscard]] Outcome
{
public:
    enum class Kind
    {
        Done,    ///< with a notice for the user or without one
        Found,   ///< done, and it has found what it was to look for
        Refused, ///< what was asked for makes no sense; nothing was tried
        Failed   ///< file, disk or database did not allow it
    };

    static Outcome done(const QString& notice = {}) { return {Kind::Done, notice, {}}; }
    static Outcome found() { return {Kind::Found, {}, {}}; }
    static Outcome refused(const QString& text) { return {Kind::Refused, text, {}}; }
    /// \param detail for the log; the text when it is empty
    static Outcome failed(const QString& text, const std::string& detail = {})
    {
        return {Kind::Failed, text, detail};
    }

    [[nodiscard]] Kind kind() const { return m_kind; }
    [[nodiscard]] bool isDone() const { return m_kind == Kind::Done || m_kind == Kind::Found; }

    /// A translated sentence for the user; mostly empty when it is done.
    [[nodiscard]] const QString& text() const { return m_text; }
    /// For the log, not translated.
    [[nodiscard]] std::string detail() const
    {
        return m_detail.empty() ? m_text.toStdString() : m_detail;
    }

    /// 1 when it is done, else 0: for interfaces that answer by a number.
    [[nodiscard]] int toFlag() const { return isDone() ? 1 : 0; }

    /// Puts another sentence under the text.
    void add(const QString& sentence)
    {
        if (!m_text.isEmpty() && !sentence.isEmpty())
            m_text += QLatin1Char('\n');
        m_text += sentence;
    }

private:
    Outcome(Kind kind, const QString& text, const std::string& detail)
        : m_kind(kind), m_text(text), m_detail(detail)
    {
    }

    Kind m_kind;
    QString m_text;
    std::string m_detail;
};
