#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"

#include "lum_desktop_sdkx/dialogs/SilencedBoxes.h"
#include "tests/support/Literals.h"

#include <QtTest>
#include <QtWidgets>

using Button = LumMessageBox::Button;
using Buttons = LumMessageBox::Buttons;

class LumMessageBoxTest : public QObject
{
    Q_OBJECT

    QPointer<QTimer> m_waiting;

    /// Calls `act` with the next box, once it is shown.
    void inTheBox(std::function<void(QMessageBox&)> act)
    {
        m_waiting = new QTimer(this);
        connect(m_waiting, &QTimer::timeout, this, [this, act] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box == nullptr)
                return;
            m_waiting->stop();
            m_waiting->deleteLater();
            QVERIFY(QTest::qWaitForWindowActive(box));
            act(*box);
        });
        m_waiting->start(5);
    }

private Q_SLOTS:
    void answersByKey()
    {
        const auto check = [this](Buttons buttons, std::optional<Button> usual, Qt::Key key,
                                  Button answer) {
            inTheBox([key](QMessageBox& box) {
                QTest::keyClick(&box, key, key == Qt::Key_N ? Qt::AltModifier : Qt::NoModifier);
            });
            QCOMPARE(LumMessageBox::ask(nullptr, {.title = "information"_q,
                                                  .text = "save project?"_q,
                                                  .buttons = buttons,
                                                  .defaultButton = usual}),
                     answer);
        };
        const std::optional<Button> none;
        const Buttons yesNo = Buttons(Button::Yes) | Button::No;
        check(yesNo, none, Qt::Key_Return, Button::No);
        check(yesNo, none, Qt::Key_Escape, Button::No);
        check(yesNo, none, Qt::Key_N, Button::No);
        check(yesNo, Button::Yes, Qt::Key_Return, Button::Yes);
        check(yesNo, Button::Yes, Qt::Key_Escape, Button::No);
        check(yesNo | Button::Cancel, none, Qt::Key_Return, Button::Cancel);
        check(yesNo | Button::Cancel, none, Qt::Key_Escape, Button::Cancel);
        check(Button::Ok, none, Qt::Key_Escape, Button::Ok);
    }

    void isSilentOnceItWasToldSo()
    {
        int shown = 0;
        const auto ask = [&](const char* key, Qt::Key answer = Qt::Key_Return) {
            inTheBox([&, answer](QMessageBox& box) {
                ++shown;
                box.checkBox()->click();
                QTest::keyClick(&box, answer);
            });
            const Button pressed =
                LumMessageBox::ask(nullptr, {.title = "information"_q,
                                             .text = "save project?"_q,
                                             .buttons = Buttons(Button::Yes) | Button::No,
                                             .defaultButton = Button::Yes,
                                             .silenceKey = key});
            delete m_waiting; // still waits when no box came
            return pressed;
        };
        QCOMPARE(ask("save", Qt::Key_Escape), Button::No);
        QCOMPARE(ask("save"), Button::Yes); // the first answer was not the default one
        QCOMPARE(ask("save"), Button::Yes);
        QCOMPARE(shown, 2);
        QCOMPARE(ask("other"), Button::Yes);
        QCOMPARE(shown, 3);
        QCOMPARE(SilencedBoxes::clear(), 2);
        QCOMPARE(SilencedBoxes::clear(), 0);
        QCOMPARE(ask("save"), Button::Yes);
        QCOMPARE(shown, 4);
        SilencedBoxes::clear();
    }

    void showsTextAsItIsAndIsWideEnoughForItsDetails()
    {
        const QString text = "Cannot write /数据/<b>a & b</b>.csv"_q;
        inTheBox([&](QMessageBox& box) {
            QCOMPARE(box.icon(), QMessageBox::Critical);
            QCOMPARE(box.text(), text);
            QCOMPARE(box.textFormat(), Qt::PlainText);
            QVERIFY2(box.width() > 500 && box.width() < 1000,
                     qPrintable(QString::number(box.width())));
            const auto* const details = box.findChild<QLabel*>("qt_msgbox_informativelabel"_q);
            QVERIFY(details->height() >= details->heightForWidth(details->width()));
            box.close();
        });
        LumMessageBox::error(nullptr, "failed"_q, text,
                             "/数据/"_q + QString(400, QLatin1Char('x')));
    }
};

QTEST_MAIN(LumMessageBoxTest)
#include "LumMessageBoxTest.moc"
