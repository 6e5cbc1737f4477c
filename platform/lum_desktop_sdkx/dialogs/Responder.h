#pragma once

#include <functional>
#include <optional>
#include <utility>

/// Answers modal questions in place of the user while it lives, for tests and the command-line
/// tool. Of several the latest answers.
///
/// \tparam Question what was asked; `Question::Answer` is the type of its answer
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

    /// The answer of the latest responder; nothing when there is none, and the user must be asked.
    [[nodiscard]] static std::optional<Answer> answer(const Question& question)
    {
        const Function function = installed(); // a copy: it may install another one
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
