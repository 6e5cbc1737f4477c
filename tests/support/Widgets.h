#pragma once

#include <QtTest>
#include <QtWidgets>

#include <functional>

// What a user sees of a window, and does to it.

/// The visible window of this class; null without one.
template <class Window>
Window* findWindow()
{
    for (QWidget* const each : QApplication::topLevelWidgets()) {
        if (auto* const found = qobject_cast<Window*>(each); found != nullptr && found->isVisible())
            return found;
    }
    return nullptr;
}

/// The visible button with this text, marks of keys left aside; null without one.
inline QAbstractButton* findButton(const QWidget& window, const QString& text)
{
    for (QAbstractButton* const each : window.findChildren<QAbstractButton*>()) {
        if (each->isVisible() && each->text().remove(QLatin1Char('&')) == text)
            return each;
    }
    return nullptr;
}

inline QAbstractButton& buttonOf(const QWidget& window, const char* text)
{
    QAbstractButton* const found = findButton(window, QString::fromUtf8(text));
    if (found == nullptr)
        qFatal("no button %s", text);
    return *found;
}

inline void press(const QWidget& window, const char* text)
{
    QTest::mouseClick(&buttonOf(window, text), Qt::LeftButton);
}

/// Whether a visible label of the window holds this text.
inline bool says(const QWidget& window, const QString& part)
{
    const auto labels = window.findChildren<QLabel*>();
    return std::any_of(labels.begin(), labels.end(), [&](const QLabel* label) {
        return label->isVisible() && label->text().contains(part);
    });
}

/// Types over what a field holds.
inline void typeOver(QWidget& field, const QString& text)
{
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&field, Qt::Key_Delete);
    QTest::keyClicks(&field, text);
}

/// Calls `act` with the next modal dialog of this class, while `context` lives.
inline void whenDialog(QObject& context, const char* className, std::function<void(QDialog&)> act)
{
    auto* const timer = new QTimer(&context);
    QObject::connect(timer, &QTimer::timeout, timer, [=] {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || qstrcmp(dialog->metaObject()->className(), className) != 0)
            return;
        timer->stop();
        timer->deleteLater();
        act(*dialog);
    });
    timer->start(5);
}
