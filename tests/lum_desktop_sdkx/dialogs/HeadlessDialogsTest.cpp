#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "tests/support/Literals.h"
#include "tests/support/LogCapture.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace {

using Button = LumMessageBox::Button;

/// A process with an event loop and no windows, as the command-line tool is.
class HeadlessDialogs : public testing::Test
{
protected:
    const LogCapture m_log;

private:
    int m_count = 1;
    char m_name[5] = "test";
    char* m_arguments[2] = {m_name, nullptr};
    QCoreApplication m_application{m_count, m_arguments};
};

} // namespace

TEST_F(HeadlessDialogs, GiveTheSafeAnswerAndLogTheQuestion)
{
    const QString title = "Warning"_q;
    const QString text = "Overload?"_q;
    const LumMessageBox::Buttons all =
        LumMessageBox::Buttons(Button::Yes) | Button::No | Button::Cancel;

    EXPECT_EQ(LumMessageBox::question(nullptr, title, text), Button::No);
    EXPECT_TRUE(m_log.holds("Warning: Overload?")) << m_log.text();
    EXPECT_EQ(LumMessageBox::question(nullptr, title, text, all), Button::Cancel);
    EXPECT_EQ(LumMessageBox::warning(nullptr, title, text), Button::Ok);
}

TEST_F(HeadlessDialogs, PickNoFile)
{
    const QString title = "Open Project"_q;
    EXPECT_TRUE(FileDialog::getOpenFileName(nullptr, title).isEmpty());
    EXPECT_TRUE(FileDialog::getSaveFileName(nullptr, title).isEmpty());
    EXPECT_TRUE(FileDialog::getExistingDirectory(nullptr, title).isEmpty());
    EXPECT_TRUE(m_log.holds("Open Project")) << m_log.text();
}
