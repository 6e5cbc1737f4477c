#pragma once

#include "exchange/ImportSummary.h"
#include "lum_sdk/events/EventManager.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "protocol/Events.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <vector>

/// Files in a folder of their own, and what the progress bar hears.
class CsvFixture : public testing::Test, public IEventHandler
{
protected:
    CsvFixture() { events.subscribe(::events::kProgress, this); }

    void handleEvent(const char* /*eventName*/, const char* payload, int /*reserved*/) override
    {
        heard.emplace_back(payload);
    }

    [[nodiscard]] QString path(const char* name = "f %2.csv") const
    {
        return folder.filePath(QString::fromUtf8(name));
    }
    [[nodiscard]] QString file(const QByteArray& content, const char* name = "f %2.csv") const
    {
        QFile written(path(name));
        EXPECT_TRUE(written.open(QIODevice::WriteOnly));
        EXPECT_EQ(written.write(content), content.size());
        return written.fileName();
    }
    [[nodiscard]] static QByteArray content(const QString& path)
    {
        QFile read(path);
        return read.open(QIODevice::ReadOnly) ? read.readAll() : QByteArray("(no file)");
    }

    QTemporaryDir folder;
    EventManager events;
    ProgressReporter progress{&events};
    std::vector<std::string> heard;
    ImportSummary summary;
};
