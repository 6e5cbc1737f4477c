#include "lum_desktop_sdkx/dialogs/DlgAbout.h"
#include "lum_sdk/DpiScale.h"
#include "tests/support/Literals.h"

#include <QtTest>
#include <QtWidgets>

namespace {

class SizedDialog : public Dialog
{
public:
    explicit SizedDialog(const QString& key)
    {
        setMinimumSizeScaled(200, 100);
        rememberSize(key);
    }
};

} // namespace

class DialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { lum::setDpiScale(1); }

    void remembersItsSizeUnderItsKey()
    {
        lum::setDpiScale(1.5);
        const QString key = "results"_q;
        {
            SizedDialog dialog(key);
            QCOMPARE(dialog.minimumSize(), QSize(300, 150));
            dialog.show();
            dialog.resize(654, 321);
            QTest::keyClick(&dialog, Qt::Key_Escape);
            QCOMPARE(dialog.result(), int(QDialog::Rejected));
        }
        QCOMPARE(SizedDialog(key).size(), QSize(654, 321));
        QVERIFY(SizedDialog("other"_q).size() != QSize(654, 321));
    }

    void aTallDialogScrollsAboveItsButtons()
    {
        const QSize screen = QGuiApplication::primaryScreen()->availableSize();
        struct TallDialog : Dialog
        {
            TallDialog()
            {
                setFixedSizeScaled(300, 4000);
                auto* const form = new QFormLayout;
                for (int i = 0; i < 100; ++i)
                    form->addRow(QString::number(i), new QLineEdit(this));
                auto* const hint = new QLabel(this);
                QVBoxLayout* const rows = makeMainLayout();
                rows->addWidget(hint);
                rows->addLayout(form, 1);
                rows->addStretch();
                rows->addWidget(new QDialogButtonBox(QDialogButtonBox::Ok, this));
            }
        } dialog;
        dialog.show();
        QVERIFY(dialog.height() < screen.height());
        QVERIFY(dialog.width() >= 300 && dialog.width() < screen.width());
        const auto placeOf = [&](const QWidget* widget) {
            return QRect(widget->mapTo(&dialog, QPoint(0, 0)), widget->size());
        };
        QTRY_VERIFY(dialog.rect().contains(placeOf(dialog.findChild<QPushButton*>())));
        const auto fields = dialog.findChildren<QLineEdit*>();
        QCOMPARE(fields.size(), 100);
        QVERIFY(!dialog.rect().contains(placeOf(fields.last())));
        dialog.activateWindow();
        fields.first()->setFocus();
        QTRY_VERIFY(fields.first()->hasFocus());
        for (int i = 1; i < fields.size(); ++i)
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Tab);
        QVERIFY(fields.last()->hasFocus()); // and comes into sight
        QTRY_VERIFY(dialog.rect().contains(placeOf(fields.last())));
        QVERIFY(fields.last()->height() >= fields.last()->minimumSizeHint().height());
    }

    void aDialogThatGrowsStaysOnTheScreen()
    {
        Dialog dialog;
        auto* const rows = new QVBoxLayout(&dialog);
        auto* const faults = new QLabel(&dialog);
        auto* const field = new QLineEdit(&dialog);
        rows->addWidget(field);
        rows->addWidget(faults);
        rows->addWidget(new QPushButton(&dialog));
        dialog.setMinimumSizeScaled(100, 50);
        dialog.show();
        dialog.activateWindow();
        field->setFocus();
        QTRY_VERIFY(field->hasFocus());
        faults->setText("fault\n"_q.repeated(200));
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        QTRY_VERIFY(dialog.findChild<QScrollArea*>() != nullptr);
        QTRY_VERIFY(screen.contains(dialog.geometry()));
        QVERIFY(field->hasFocus()); // the user types on
        QVERIFY(dialog.rect().contains(dialog.findChild<QPushButton*>()->geometry()));
    }
};

QTEST_MAIN(DialogTest)
#include "DialogTest.moc"
