#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"

#include "tests/support/Literals.h"

#include <QtTest>
#include <QtWidgets>

using Button = LumMessageBox::Button;
using Buttons = LumMessageBox::Buttons;

class LumMessageBoxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersByKey()
    {
        const auto check = [this](Buttons buttons, Qt::Key key, Button answer) {
            QTimer::singleShot(0, this, [key] {
                QWidget* const box = QApplication::activeModalWidget();
                QVERIFY(QTest::qWaitForWindowActive(box));
                QTest::keyClick(box, key, key == Qt::Key_N ? Qt::AltModifier : Qt::NoModifier);
            });
            QCOMPARE(LumMessageBox::question(nullptr, "information"_q, "save project?"_q, buttons),
                     answer);
        };
        const Buttons yesNo = Buttons(Button::Yes) | Button::No;
        check(yesNo, Qt::Key_Return, Button::Yes);
        check(yesNo, Qt::Key_Escape, Button::No);
        check(yesNo, Qt::Key_N, Button::No);
        check(yesNo | Button::Cancel, Qt::Key_Escape, Button::Cancel);
        check(Button::Ok, Qt::Key_Escape, Button::Ok);
    }

    void showsTextAsItIsWithItsIcon()
    {
        const QString text = "Cannot write /数据/<b>a & b</b>.csv"_q;
        QTimer::singleShot(0, this, [text] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            QVERIFY(box != nullptr);
            QCOMPARE(box->icon(), QMessageBox::Warning);
            QCOMPARE(box->text(), text);
            QCOMPARE(box->textFormat(), Qt::PlainText);
            box->close();
        });
        QCOMPARE(LumMessageBox::warning(nullptr, "Error"_q, text), Button::Ok);
    }

    void asksTheLatestResponder()
    {
        const auto ask = [] { return LumMessageBox::question(nullptr, "Success"_q, "Open it?"_q); };
        LumMessageBox::Message asked;
        const LumMessageBox::Responder yes([&asked](const LumMessageBox::Message& message) {
            asked = message;
            return Button::Yes;
        });
        {
            const LumMessageBox::Responder no(
                [](const LumMessageBox::Message&) { return Button::No; });
            QCOMPARE(ask(), Button::No);
        }
        QCOMPARE(ask(), Button::Yes);
        QCOMPARE(asked.kind, LumMessageBox::Kind::Question);
        QCOMPARE(asked.title, "Success"_q);
        QCOMPARE(asked.text, "Open it?"_q);
        QCOMPARE(asked.buttons, Buttons(Button::Yes) | Button::No);
    }
};

QTEST_MAIN(LumMessageBoxTest)
#include "LumMessageBoxTest.moc"
