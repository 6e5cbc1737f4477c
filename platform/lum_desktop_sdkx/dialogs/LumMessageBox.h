#pragma once

#include "lum_desktop_sdkx/dialogs/Responder.h"

#include <QFlags>
#include <QString>

#include <optional>

class QWidget;

/// Shows the user a message or a question.
///
/// The box is modal until a button is pressed. Escape and the close button give the safe answer:
/// Cancel, else No, else Ok. So does Enter, unless the question names another default button. A
/// question names Yes only where a Yes cannot lose data. Without a display nobody is asked: the
/// text is logged, and the answer is the safe one. All texts are plain, never markup. `details` are
/// shown below the text.
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
        Question,
        Error
    };

    /// All that a box can have, and what a responder is asked.
    struct Message
    {
        using Answer = Button;

        Kind kind = Kind::Information;
        QString title = {};
        QString text = {};
        Buttons buttons = Button::Ok;
        QString details = {};
        std::optional<Button> defaultButton = {}; ///< what Enter presses; else the safe answer
        /// Names a box that has the check box "Do not show again". Once that was checked, and the
        /// default button pressed, every box of this name gives the default answer unasked.
        const char* silenceKey = nullptr;
    };
    using Responder = ::Responder<Message>;

    /// For a box that needs more than the functions below. The fields are named where it is called:
    /// `ask(parent, {.title = ..., .text = ..., .buttons = ..., .defaultButton = Button::Yes})`.
    /// \returns the button that was pressed, one of `buttons`
    static Button ask(QWidget* parent, const Message& message);

    /// Tells that something has failed, and by the details why.
    static void error(QWidget* parent, const QString& title, const QString& text,
                      const QString& details = {});

    /// Each returns the button that was pressed, one of `buttons`. Enter presses the safe one.
    static Button information(QWidget* parent, const QString& title, const QString& text,
                              Buttons buttons = Button::Ok, const QString& details = {});
    static Button warning(QWidget* parent, const QString& title, const QString& text,
                          Buttons buttons = Button::Ok, const QString& details = {});
    static Button question(QWidget* parent, const QString& title, const QString& text,
                           Buttons buttons = Buttons(Button::Yes) | Button::No,
                           const QString& details = {});
};

Q_DECLARE_OPERATORS_FOR_FLAGS(LumMessageBox::Buttons)
