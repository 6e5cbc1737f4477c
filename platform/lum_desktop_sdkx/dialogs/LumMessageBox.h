#pragma once

#include "lum_desktop_sdkx/dialogs/Responder.h"

#include <QFlags>
#include <QString>

class QWidget;

/// Shows the user a message or a question.
///
/// The box is modal until a button is pressed. Escape and the close button give the safe answer:
/// Cancel, else No, else Ok. Without a display nobody is asked: the text is logged, and the answer
/// is the safe one. All texts are plain, never markup. `details` are shown below the text, smaller.
class LumMessageBox
{
public:
    enum class Button
    {
        Ok = 1,
        Yes = 2,
        No = 4,
        Cancel = 8
    };
    Q_DECLARE_FLAGS(Buttons, Button)

    enum class Kind
    {
        Information,
        Warning,
        Question
    };

    /// What a responder is asked.
    struct Message
    {
        using Answer = Button;

        Kind kind = Kind::Information;
        QString title;
        QString text;
        Buttons buttons;
        QString details;
    };
    using Responder = ::Responder<Message>;

    /// Each returns the button that was pressed, one of `buttons`.
    static Button information(QWidget* parent, const QString& title, const QString& text,
                              Buttons buttons = Button::Ok, const QString& details = {});
    static Button warning(QWidget* parent, const QString& title, const QString& text,
                          Buttons buttons = Button::Ok, const QString& details = {});
    static Button question(QWidget* parent, const QString& title, const QString& text,
                           Buttons buttons = Buttons(Button::Yes) | Button::No,
                           const QString& details = {});
};

Q_DECLARE_OPERATORS_FOR_FLAGS(LumMessageBox::Buttons)
