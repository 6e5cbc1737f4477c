#include "lum_sdk/files/FileAside.h"

#include "lum_sdk/files/WholeFile.h"
#include "lum_sdk/files/WholeFileWriter.h"
#include "tests/support/TestFolder.h"

#include <QDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace {

class FileAside : public testing::Test
{
protected:
    /// Puts `content` in the place of the target.
    [[nodiscard]] static QString replace(const QString& target, const QByteArray& content)
    {
        lum::FileAside aside(target);
        QFile file(aside.path());
        const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(content) != -1;
        file.close();
        return isWritten ? aside.commit() : aside.fault();
    }
    [[nodiscard]] QStringList names() const { return QDir(folder.path()).entryList(QDir::Files); }

    TestFolder folder;
    QString target = folder.path("测 区.db");
};

} // namespace

TEST_F(FileAside, TakesThePlaceOfItsTarget)
{
    EXPECT_EQ(replace(target, "new"), QString());
    EXPECT_EQ(TestFolder::read(target), "new");
    const auto others = QFile::permissions(target) & QFile::Permissions(0x0077);
    QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner);
    EXPECT_NE(others, 0) << "a new file is as open as the user's other files";
    const QString link = folder.path("link");
    ASSERT_TRUE(QFile::link(target, link));
    EXPECT_EQ(replace(link, "newer"), QString());
    EXPECT_TRUE(QFileInfo(link).isSymLink());
    EXPECT_EQ(TestFolder::read(target), "newer");
    EXPECT_EQ(QFile::permissions(target) & QFile::Permissions(0x0077), 0) << "they stay";
    EXPECT_EQ(names().size(), 2);
}

TEST_F(FileAside, IsNeverPutInThePlaceOfAPipe)
{
    ASSERT_EQ(::mkfifo(QFile::encodeName(target).constData(), 0666), 0);
    lum::WholeFileWriter writer(target);
    const QString unsupported = writer.commit();
    EXPECT_FALSE(unsupported.isEmpty());
    EXPECT_EQ(lum::writeWholeFile(target, "new"), unsupported);
    EXPECT_EQ(replace(target, "new"), unsupported);
    EXPECT_FALSE(QFileInfo(target).isFile());
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::System).size(), 1);
}
