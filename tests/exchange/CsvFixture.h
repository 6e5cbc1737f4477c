#pragma once

#include "exchange/ImportSummary.h"
#include "lum_sdk/events/EventManager.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "protocol/Events.h"
#include "tests/support/EventLog.h"
#include "tests/support/TestFolder.h"

#include <gtest/gtest.h>

#include <clocale>

/// A file in a folder of its own, and what the progress bar hears.
class CsvFixture : public testing::Test
{
protected:
    CsvFixture() { EXPECT_NE(std::setlocale(LC_ALL, "de_DE.UTF-8"), nullptr); } // decimal commas

    [[nodiscard]] QString path() const { return folder.path("f %2.csv"); }
    [[nodiscard]] QString file(const QByteArray& content) const
    {
        return folder.write("f %2.csv", content);
    }

    TestFolder folder;
    EventManager events;
    ProgressReporter progress{&events};
    EventLog heard{events, ::events::kProgress};
    ImportSummary summary;
};
