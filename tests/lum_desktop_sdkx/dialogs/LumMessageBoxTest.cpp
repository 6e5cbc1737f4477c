#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"

#include <QtTest>
#include <QtWidgets>

using Button = LumMessageBox::Button;
using Buttons = LumMessageBox::Buttons;

Q_DECLARE_METATYPE(LumMessageBox::Buttons)
Q_DECLARE_METATYPE(LumMessageBox::Button)

class LumMessageBoxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answersByKey_data();
    void answersByKey();
    void showsTextAsItIsWithItsIcon();
    void asksTheLatestResponder();
};

void LumMessageBoxTest::answersByKey_data()
{
    QTest::addColumn<Buttons>("buttons");
    QTest::addColumn<int>("key");
    QTest::addColumn<Button>("answer");

    const Buttons yesNo = Buttons(Button::Yes) | Button::No;
    QTest::newRow("enter is yes") << yesNo << int(Qt::Key_Return) << Button::Yes;
    QTest::newRow("escape is no") << yesNo << int(Qt::Key_Escape) << Button::No;
    QTest::newRow("n is no") << yesNo << int(Qt::Key_N) << Button::No;
    QTest::newRow("escape is cancel")
        << (yesNo | Button::Cancel) << int(Qt::Key_Escape) << Button::Cancel;
    QTest::newRow("escape is ok") << Buttons(Button::Ok) << int(Qt::Key_Escape) << Button::Ok;
}

void LumMessageBoxTest::answersByKey()
{
    QFETCH(Buttons, buttons);
    QFETCH(int, key);
    QFETCH(Button, answer);
    QTimer::singleShot(0, this, [key] {
        QWidget* const box = QApplication::activeModalWidget();
        QVERIFY(QTest::qWaitForWindowActive(box));
        const bool isMnemonic = key == Qt::Key_N;
        QTest::keyClick(box, Qt::Key(key), isMnemonic ? Qt::AltModifier : Qt::NoModifier);
    });
    QCOMPARE(LumMessageBox::question(nullptr, QStringLiteral("information"),
                                     QStringLiteral("save project?"), buttons),
             answer);
}

void LumMessageBoxTest::showsTextAsItIsWithItsIcon()
{
    const QString text = QStringLiteral("Cannot write /数据/<b>a & b</b>.csv");
    QTimer::singleShot(0, this, [text] {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        QVERIFY(box != nullptr);
        QCOMPARE(box->icon(), QMessageBox::Warning);
        QCOMPARE(box->text(), text);
        QCOMPARE(box->textFormat(), Qt::PlainText);
        box->close();
    });
    QCOMPARE(LumMessageBox::warning(nullptr, QStringLiteral("Error"), text), Button::Ok);
}

void LumMessageBoxTest::asksTheLatestResponder()
{
    const auto ask = [] {
        return LumMessageBox::question(nullptr, QStringLiteral("Success"),
                                       QStringLiteral("Open it?"));
    };
    LumMessageBox::Message asked;
    const LumMessageBox::Responder yes([&asked](const LumMessageBox::Message& message) {
        asked = message;
        return Button::Yes;
    });
    {
        const LumMessageBox::Responder no([](const LumMessageBox::Message&) { return Button::No; });
        QCOMPARE(ask(), Button::No);
    }
    QCOMPARE(ask(), Button::Yes);
    QCOMPARE(asked.kind, LumMessageBox::Kind::Question);
    QCOMPARE(asked.title, QStringLiteral("Success"));
    QCOMPARE(asked.text, QStringLiteral("Open it?"));
    QCOMPARE(asked.buttons, Buttons(Button::Yes) | Button::No);
}

QTEST_MAIN(LumMessageBoxTest)
#include "LumMessageBoxTest.moc"
