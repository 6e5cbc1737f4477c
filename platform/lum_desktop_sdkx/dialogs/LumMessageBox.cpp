#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"

#include "basalt_utilities/ILogger.h"
#include "lum_desktop_sdkx/dialogs/SilencedBoxes.h"

#include <QApplication>
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>

namespace {

using Button = LumMessageBox::Button;
using Message = LumMessageBox::Message;

struct ButtonPair
{
    Button ours;
    QMessageBox::StandardButton shown;
};

constexpr int kDetailColumns = 80; ///< the longest line of details, in average characters

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

Button defaultAnswer(const Message& message)
{
    const Button answer = message.defaultButton.value_or(safeAnswer(message.buttons));
    Q_ASSERT(message.buttons.testFlag(answer));
    return answer;
}

QMessageBox::Icon iconOf(LumMessageBox::Kind kind)
{
    switch (kind) {
    case LumMessageBox::Kind::Warning:
        return QMessageBox::Warning;
    case LumMessageBox::Kind::Question:
        return QMessageBox::Question;
    case LumMessageBox::Kind::Error:
        return QMessageBox::Critical;
    case LumMessageBox::Kind::Information:
        break;
    }
    return QMessageBox::Information;
}

/// A box is as wide as its text; this makes it wide enough for its details as well.
void addDetails(QMessageBox& box, const QString& details)
{
    box.setInformativeText(details);
    auto* const grid = qobject_cast<QGridLayout*>(box.layout());
    auto* const label = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_informativelabel"));
    if (grid == nullptr || label == nullptr)
        return;
    label->setTextInteractionFlags(
        Qt::TextSelectableByMouse); // also breaks words that are too long
    const QFontMetrics metrics = label->fontMetrics();
    int width = 0;
    for (const QString& line : details.split(QLatin1Char('\n')))
        width = std::max(width, metrics.horizontalAdvance(line));
    width = std::min(width, metrics.averageCharWidth() * kDetailColumns);
    grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), grid->columnCount() - 1);
}

void addButtons(QMessageBox& box, const Message& message)
{
    for (const auto& [ours, shown] : kButtons) {
        if (!message.buttons.testFlag(ours))
            continue;
        auto* const button = box.addButton(shown);
        if (ours == safeAnswer(message.buttons))
            box.setEscapeButton(button);
        if (ours == defaultAnswer(message))
            box.setDefaultButton(button);
    }
}

Button show(QWidget* parent, const Message& message)
{
    QMessageBox box(iconOf(message.kind), message.title, message.text, QMessageBox::NoButton,
                    parent);
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    addButtons(box, message);
    QCheckBox* silence = nullptr;
    if (message.silenceKey != nullptr) {
        silence = new QCheckBox(QCoreApplication::translate("LumMessageBox", "&Do not show again"));
        box.setCheckBox(silence);
    }
    if (!message.details.isEmpty())
        addDetails(box, message.details); // last, since the others lay the box out anew
    const auto pressed = static_cast<QMessageBox::StandardButton>(box.exec());
    Button answer = safeAnswer(message.buttons);
    for (const auto& [ours, shown] : kButtons) {
        if (shown == pressed)
            answer = ours;
    }
    if (silence != nullptr && silence->isChecked() && answer == defaultAnswer(message))
        SilencedBoxes::add(message.silenceKey);
    return answer;
}

} // namespace

Button LumMessageBox::ask(QWidget* parent, const Message& message)
{
    Q_ASSERT(message.buttons);
    if (message.silenceKey != nullptr && SilencedBoxes::contains(message.silenceKey))
        return defaultAnswer(message);
    if (const auto answer = Responder::answer(message))
        return *answer;
    if (qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr)
        return show(parent, message);
    QString line = message.title + QStringLiteral(": ") + message.text;
    if (!message.details.isEmpty())
        line += QLatin1Char(' ') + message.details;
    basalt::logWarning("Nobody to ask, the safe answer is taken. " + line.toStdString());
    return safeAnswer(message.buttons);
}

void LumMessageBox::error(QWidget* parent, const QString& title, const QString& text,
                          const QString& details)
{
    ask(parent, {Kind::Error, title, text, Button::Ok, details});
}

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
