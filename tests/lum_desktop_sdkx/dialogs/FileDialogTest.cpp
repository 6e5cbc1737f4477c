#include "lum_desktop_sdkx/dialogs/FileDialog.h"

#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"

#include <QtTest>
#include <QtWidgets>

namespace {

using Button = LumMessageBox::Button;

QString csvFilter()
{
    return QStringLiteral("csv file(*.csv)");
}

void touch(const QString& path)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
}

} // namespace

class FileDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void appendsTheSuffixOfTheFilter_data();
    void appendsTheSuffixOfTheFilter();
    void asksBeforeItReplacesTheCompletedName();
    void comesAgainAfterANo();
    void beginsWhereItsPurposeEnded();

private:
    [[nodiscard]] QString inFolder(const char* name) const
    {
        return m_folder.filePath(QString::fromUtf8(name));
    }

    QTemporaryDir m_folder;
};

void FileDialogTest::appendsTheSuffixOfTheFilter_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("path");

    const auto row = [this](const char* name, const char* filter, const char* typed,
                            const char* path) {
        QTest::newRow(name) << QString::fromUtf8(filter) << inFolder(typed) << inFolder(path);
    };
    row("none typed", "csv file(*.csv)", "测线 1", "测线 1.csv");
    row("typed", "csv file(*.csv)", "a.csv", "a.csv");
    row("typed in capitals", "csv file(*.csv)", "a.CSV", "a.CSV");
    row("a number behind a point", "csv file(*.csv)", "lines 2024.05", "lines 2024.05.csv");
    row("another one typed", "csv file(*.csv)", "a.txt", "a.txt");
    row("only the dot typed", "Kml file(*.kml)", "a.", "a.kml");
    row("dot in the folder", "db file(*.db)", "v1.2/a", "v1.2/a.db");
    row("several patterns", "image(*.png *.jpg);;csv file(*.csv)", "a", "a.png");
    row("any file", "all files(*)", "a", "a");
    row("no filter", "", "a", "a");
}

void FileDialogTest::appendsTheSuffixOfTheFilter()
{
    QFETCH(QString, filter);
    QFETCH(QString, typed);
    QFETCH(QString, path);
    const FileDialog::Responder responder([&](const FileDialog::Request&) { return typed; });
    QCOMPARE(FileDialog::getSaveFileName(nullptr, QStringLiteral("Save"), filter), path);
}

void FileDialogTest::asksBeforeItReplacesTheCompletedName()
{
    touch(inFolder("有 old.csv"));
    QStringList questions;
    Button answer = Button::No;
    const LumMessageBox::Responder boxes([&](const LumMessageBox::Message& message) {
        questions += message.text;
        return answer;
    });
    const FileDialog::Responder responder(
        [&](const FileDialog::Request&) { return inFolder("有 old"); });
    const auto save = [] {
        return FileDialog::getSaveFileName(nullptr, QStringLiteral("Save"), csvFilter());
    };

    QCOMPARE(save(), QString());
    QCOMPARE(questions.size(), 1);
    QVERIFY(questions[0].contains(inFolder("有 old.csv")));
    answer = Button::Yes;
    QCOMPARE(save(), inFolder("有 old.csv"));
}

void FileDialogTest::comesAgainAfterANo()
{
    touch(inFolder("old.csv"));
    const LumMessageBox::Responder boxes([](const LumMessageBox::Message&) { return Button::No; });
    QStringList typedNames{inFolder("old"), inFolder("new")};
    QTimer answering; // the second dialog opens inside the same call
    connect(&answering, &QTimer::timeout, this, [&] {
        auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr)
            return;
        auto* const name = dialog->findChild<QLineEdit*>();
        name->setText(typedNames.takeFirst());
        QTest::keyClick(name, Qt::Key_Return);
    });
    answering.start(20);

    const QString path = FileDialog::getSaveFileName(nullptr, QStringLiteral("Save"), csvFilter());

    QCOMPARE(path, inFolder("new.csv"));
    QVERIFY(typedNames.isEmpty());
}

void FileDialogTest::beginsWhereItsPurposeEnded()
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
    const QString title = QStringLiteral("Choose Open File");
    {
        touch(inFolder("a.csv"));
        const FileDialog::Responder responder(
            [this](const FileDialog::Request&) { return inFolder("a.csv"); });
        QCOMPARE(FileDialog::getOpenFileName(nullptr, title, csvFilter()), inFolder("a.csv"));
    }
    QCOMPARE(folderShownFor(title), m_folder.path());
    QVERIFY(folderShownFor(QStringLiteral("Open Project")) != m_folder.path());
}

QTEST_MAIN(FileDialogTest)
#include "FileDialogTest.moc"
