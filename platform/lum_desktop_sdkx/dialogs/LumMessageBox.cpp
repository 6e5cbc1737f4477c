#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"

#include "basalt_utilities/ILogger.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace {

using Button = LumMessageBox::Button;
using Message = LumMessageBox::Message;

struct ButtonPair
{
    Button ours;
    QMessageBox::StandardButton shown;
};

constexpr ButtonPair kButtons[] = {
    {Button::Ok, QMessageBox::Ok},
    {Button::Yes, QMessageBox::Yes},
    {Button::No, QMessageBox::No},
    {Button::Cancel, QMessageBox::Cancel},
};

Button safeAnswer(LumMessageBox::Buttons buttons)
{
    for (const Button button : {Button::Cancel, Button::No, Button::Ok}) {
        if (buttons.testFlag(button))
            return button;
    }
    return Button::Yes; // the only one left
}

QMessageBox::Icon iconOf(LumMessageBox::Kind kind)
{
    switch (kind) {
    case LumMessageBox::Kind::Warning:
        return QMessageBox::Warning;
    case LumMessageBox::Kind::Question:
        return QMessageBox::Question;
    case LumMessageBox::Kind::Information:
        break;
    }
    return QMessageBox::Information;
}

Button show(QWidget* parent, const Message& message)
{
    QMessageBox box(iconOf(message.kind), message.title, message.text, QMessageBox::NoButton,
                    parent);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(message.details);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    const Button safe = safeAnswer(message.buttons);
    for (const auto& [ours, shown] : kButtons) {
        if (!message.buttons.testFlag(ours))
            continue;
        auto* const button = box.addButton(shown);
        if (ours == safe)
            box.setEscapeButton(button);
    }
    const auto pressed = static_cast<QMessageBox::StandardButton>(box.exec());
    for (const auto& [ours, shown] : kButtons) {
        if (shown == pressed)
            return ours;
    }
    return safe;
}

Button ask(QWidget* parent, const Message& message)
{
    Q_ASSERT(message.buttons);
    if (const auto answer = LumMessageBox::Responder::answer(message))
        return *answer;
    if (qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr)
        return show(parent, message);
    QString line = message.title + QStringLiteral(": ") + message.text;
    if (!message.details.isEmpty())
        line += QLatin1Char(' ') + message.details;
    basalt::logWarning("Nobody to ask, the safe answer is taken. " + line.toStdString());
    return safeAnswer(message.buttons);
}

} // namespace

Button LumMessageBox::information(QWidget* parent, const QString& title, const QString& text,
                                  Buttons buttons, const QString& details)
{
    return ask(parent, {Kind::Information, title, text, buttons, details});
}

Button LumMessageBox::warning(QWidget* parent, const QString& title, const QString& text,
                              Buttons buttons, const QString& details)
{
    return ask(parent, {Kind::Warning, title, text, buttons, details});
}

Button LumMessageBox::question(QWidget* parent, const QString& title, const QString& text,
                               Buttons buttons, const QString& details)
{
    return ask(parent, {Kind::Question, title, text, buttons, details});
}
