#pragma once

#include <functional>
#include <optional>
#include <utility>

/// Answers modal questions in place of the user for as long as it lives: tests and the command-line
/// tool hold one. A later one goes before an earlier one, which answers again once it is gone.
///
/// \tparam Question  what was asked; names the type of its answer as `Question::Answer`
template <class Question>
class Responder
{
public:
    using Answer = typename Question::Answer;
    using Function = std::function<Answer(const Question&)>;

    explicit Responder(Function function)
        : m_previous(std::exchange(installed(), std::move(function)))
    {
    }
    ~Responder() { installed() = std::move(m_previous); }
    Responder(const Responder&) = delete;
    Responder& operator=(const Responder&) = delete;

    /// The answer of the one that is installed; nothing when the user is to be asked.
    [[nodiscard]] static std::optional<Answer> answer(const Question& question)
    {
        const Function function = installed(); // may install another one while it answers
        return function ? std::optional<Answer>(function(question)) : std::nullopt;
    }

private:
    static Function& installed()
    {
        static Function function;
        return function;
    }

    Function m_previous;
};
