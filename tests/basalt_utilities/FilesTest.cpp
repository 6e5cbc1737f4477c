#include "basalt_utilities/Files.h"

#include "basalt_utilities/Paths.h"
#include "tests/support/LogCapture.h"
#include "tests/support/TestFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>

namespace fs = std::filesystem;

namespace {

class Files : public testing::Test
{
protected:
    [[nodiscard]] std::string path(const char* name) const
    {
        return m_folder.path(name).toStdString();
    }

    TestFolder m_folder;
};

} // namespace

TEST_F(Files, ACopyReplacesWholeFilesAndCanBeWritten)
{
    m_folder.write("模板.db", "new content");
    m_folder.write("target.db", "old and longer content");
    fs::permissions(path("模板.db"), fs::perms::owner_read);
    for (const char* target : {"target.db", "new.db"}) {
        EXPECT_TRUE(file_system_copy_file(path("模板.db"), path(target)));
        EXPECT_EQ(TestFolder::read(m_folder.path(target)), "new content");
        EXPECT_EQ(fs::status(path(target)).permissions(),
                  fs::perms::owner_read | fs::perms::owner_write);
    }
    EXPECT_EQ(std::distance(fs::directory_iterator(path("")), {}), 3);
}

TEST_F(Files, AFailedCopyIsLoggedAndLeavesTheTargetAsItWas)
{
    const LogCapture log;
    m_folder.write("target.db", "old");
    EXPECT_FALSE(file_system_copy_file(path("missing.db"), path("target.db")));
    EXPECT_EQ(TestFolder::read(m_folder.path("target.db")), "old");
    EXPECT_FALSE(file_system_copy_file(path("target.db"), path("no/such/folder/x.db")));
    EXPECT_TRUE(log.holds("missing.db") && log.holds("no/such/folder/x.db"));
}

TEST(Paths, AppDirIsTheFolderOfTheExecutable)
{
    const fs::path executable = fs::read_symlink("/proc/self/exe");
    EXPECT_EQ(basalt::resolvedPath("$(APP_DIR)/../etc/x.sys"),
              (executable.parent_path().parent_path() / "etc/x.sys").string());
    EXPECT_EQ(basalt::resolvedPath("/plain/path"), "/plain/path");
}

TEST(Paths, ATextThatDoesNotFitIsRefusedWhole)
{
    std::array<char, 8> buffer{'?', '?', '?'};
    EXPECT_FALSE(process_resolve_path("/a/much/too/long", buffer.data(), buffer.size()));
    EXPECT_STREQ(buffer.data(), "");
    EXPECT_TRUE(process_resolve_path("/seven7", buffer.data(), buffer.size()));
    EXPECT_STREQ(buffer.data(), "/seven7");
    EXPECT_FALSE(process_resolve_path("/eight88", buffer.data(), buffer.size()));
}
