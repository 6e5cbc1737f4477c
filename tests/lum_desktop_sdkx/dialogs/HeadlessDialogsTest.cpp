#include "basalt_utilities/ILogger.h"
#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace {

using Button = LumMessageBox::Button;

/// A process with an event loop and no windows, as the command-line tool is.
class HeadlessDialogs : public testing::Test
{
public:
    HeadlessDialogs()
    {
        basalt::setLogListener(
            [](void* context, ILogger::Level, std::string_view line) {
                *static_cast<std::string*>(context) += line;
            },
            &m_log);
    }
    ~HeadlessDialogs() override { basalt::setLogListener(nullptr, nullptr); }

protected:
    std::string m_log;

private:
    int m_count = 1;
    char m_name[5] = "test";
    char* m_arguments[2] = {m_name, nullptr};
    QCoreApplication m_application{m_count, m_arguments};
};

} // namespace

TEST_F(HeadlessDialogs, GiveTheSafeAnswerAndLogTheQuestion)
{
    const QString title = QStringLiteral("Warning");
    const QString text = QStringLiteral("Overload?");
    const LumMessageBox::Buttons all =
        LumMessageBox::Buttons(Button::Yes) | Button::No | Button::Cancel;

    EXPECT_EQ(LumMessageBox::question(nullptr, title, text), Button::No);
    EXPECT_NE(m_log.find("Warning: Overload?"), std::string::npos) << m_log;
    EXPECT_EQ(LumMessageBox::question(nullptr, title, text, all), Button::Cancel);
    EXPECT_EQ(LumMessageBox::warning(nullptr, title, text), Button::Ok);
}

TEST_F(HeadlessDialogs, PickNoFile)
{
    const QString title = QStringLiteral("Open Project");
    EXPECT_TRUE(FileDialog::getOpenFileName(nullptr, title).isEmpty());
    EXPECT_TRUE(FileDialog::getSaveFileName(nullptr, title).isEmpty());
    EXPECT_TRUE(FileDialog::getExistingDirectory(nullptr, title).isEmpty());
    EXPECT_NE(m_log.find("Open Project"), std::string::npos) << m_log;
}
