#include "lum_desktop_sdkx/dialogs/FileDialog.h"

#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "tests/support/Literals.h"
#include "tests/support/TestFolder.h"

#include <QtTest>
#include <QtWidgets>

namespace {

using Button = LumMessageBox::Button;

QString csvFilter()
{
    return "csv file(*.csv)"_q;
}

} // namespace

class FileDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void appendsTheSuffixOfTheFilter()
    {
        const auto check = [this](const char* filter, const char* typed, const char* expected) {
            const FileDialog::Responder responder(
                [&](const FileDialog::Request&) { return m_folder.path(typed); });
            QCOMPARE(FileDialog::getSaveFileName(nullptr, "Save"_q, QString::fromUtf8(filter)),
                     m_folder.path(expected));
        };
        check("csv file(*.csv)", "测线 1", "测线 1.csv");
        check("csv file(*.csv)", "a.csv", "a.csv");
        check("csv file(*.csv)", "a.CSV", "a.CSV");
        check("csv file(*.csv)", "lines 2024.05", "lines 2024.05.csv");
        check("csv file(*.csv)", "a.txt", "a.txt");
        check("Kml file(*.kml)", "a.", "a.kml");
        check("db file(*.db)", "v1.2/a", "v1.2/a.db");
        check("image(*.png *.jpg);;csv file(*.csv)", "a", "a.png");
        check("all files(*)", "a", "a");
        check("", "a", "a");
    }

    void asksBeforeItReplacesTheCompletedNameAndComesAgainAfterANo()
    {
        const QString old = m_folder.write("有 old.csv", {});
        QStringList questions;
        QList<Button> answers{Button::No, Button::Yes};
        const LumMessageBox::Responder boxes([&](const LumMessageBox::Message& message) {
            questions += message.text;
            return answers.takeFirst();
        });
        QStringList typedNames{"有 old"_q, "new"_q, "有 old"_q};
        QTimer answering; // after a no the next dialog opens inside the same call
        connect(&answering, &QTimer::timeout, this, [&] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr)
                return;
            auto* const name = dialog->findChild<QLineEdit*>();
            name->setText(m_folder.path(typedNames.takeFirst()));
            QTest::keyClick(name, Qt::Key_Return);
        });
        answering.start(20);
        for (const QString& path : {m_folder.path("new.csv"), old})
            QCOMPARE(FileDialog::getSaveFileName(nullptr, "Save"_q, csvFilter()), path);
        QVERIFY(typedNames.isEmpty());
        QCOMPARE(questions.size(), 2);
        QVERIFY(questions[0].contains(old));
    }

    void beginsWhereItsPurposeEnded()
    {
        const auto folderShownFor = [this](const QString& title) {
            QString shown;
            QTimer::singleShot(0, this, [&shown] {
                auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
                QVERIFY(dialog != nullptr);
                shown = dialog->directory().absolutePath();
                dialog->reject();
            });
            const QString none = FileDialog::getOpenFileName(nullptr, title, csvFilter());
            return none.isEmpty() ? shown : none;
        };
        const QString title = "Choose Open File"_q;
        {
            m_folder.write("a.csv", {});
            const FileDialog::Responder responder(
                [this](const FileDialog::Request&) { return m_folder.path("a.csv"); });
            QCOMPARE(FileDialog::getOpenFileName(nullptr, title, csvFilter()),
                     m_folder.path("a.csv"));
        }
        QCOMPARE(folderShownFor(title), m_folder.path());
        QVERIFY(folderShownFor("Open Project"_q) != m_folder.path());
    }

private:
    TestFolder m_folder;
};

QTEST_MAIN(FileDialogTest)
#include "FileDialogTest.moc"
