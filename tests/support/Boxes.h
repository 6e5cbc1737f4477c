#pragma once

#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"

#include <QHash>
#include <QStringList>

#include <utility>

/// Answers every message box while it lives, and notes what it says.
class Boxes
{
public:
    using Button = LumMessageBox::Button;

    /// "title|text" of each box since the last call.
    QStringList told() { return std::exchange(m_told, {}); }

    std::optional<Button> answer = Button::No; ///< where it is offered; none presses Enter
    QHash<QString, Button> answers;            ///< to the boxes with these texts
    LumMessageBox::Message last;

private:
    Button answerTo(const LumMessageBox::Message& message)
    {
        last = message;
        m_told << message.title + QLatin1Char('|') + message.text;
        const auto given = answers.find(message.text);
        if (given != answers.end())
            return *given;
        if (answer && message.buttons.testFlag(*answer))
            return *answer;
        return message.defaultButton.value_or(message.buttons & Button::Cancel ? Button::Cancel
                                                                               : Button::Ok);
    }

    QStringList m_told;
    LumMessageBox::Responder m_responder{[this](const auto& message) { return answerTo(message); }};
};
