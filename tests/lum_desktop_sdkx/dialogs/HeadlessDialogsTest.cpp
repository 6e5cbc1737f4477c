#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "tests/support/Literals.h"
#include "tests/support/LogCapture.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

/// In a process with an event loop and no windows, as the command-line tool is.
TEST(HeadlessDialogs, GiveTheSafeAnswerAndLogTheQuestion)
{
    using Button = LumMessageBox::Button;
    int count = 0;
    const QCoreApplication application(count, nullptr);
    const LogCapture log;
    EXPECT_EQ(LumMessageBox::question(nullptr, "Warning"_q, "Overload?"_q), Button::No);
    EXPECT_TRUE(log.holds("Warning: Overload?")) << log.text();
    EXPECT_EQ(LumMessageBox::question(nullptr, "Warning"_q, "Overload?"_q,
                                      LumMessageBox::Buttons(Button::Yes) | Button::Cancel),
              Button::Cancel);
    EXPECT_EQ(LumMessageBox::warning(nullptr, "Warning"_q, "Overload?"_q), Button::Ok);

    EXPECT_TRUE(FileDialog::getOpenFileName(nullptr, "Open Project"_q).isEmpty());
    EXPECT_TRUE(FileDialog::getSaveFileName(nullptr, "Open Project"_q).isEmpty());
    EXPECT_TRUE(FileDialog::getExistingDirectory(nullptr, "Open Project"_q).isEmpty());
    EXPECT_TRUE(log.holds("Open Project")) << log.text();
}
