#include "basalt_utilities/IDictionary.h"
#include "exchange/ImportSummary.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/Host.h"
#include "project/DataProcessDataManager.h"
#include "protocol/StatusKeys.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

TEST(DataManagerCsv, FilesGoOutAndComeBack)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("s.csv"));
    Host host;
    DataProcessDataManager manager(&host);
    SurveyPoint point;
    point.lineNumber = "L";
    point.pointNumber = "P";
    point.latitude = 30.5;
    manager.surveyPoints().set(point);
    manager.exportCaptions().clear();
    get_system_status_dictionary().set(status::kDegreeFormat, "1");
    EXPECT_EQ(manager.exportSurveyCsv({QStringLiteral("L")}, path), 1);
    get_system_status_dictionary().remove(status::kDegreeFormat);
    EXPECT_EQ(manager.exportCaptions(), manager.surveyCaptions());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("L,P,S,30deg30min0.000sec,"));

    manager.clear();
    ImportSummary summary;
    EXPECT_EQ(manager.importSurveyCsv(path, &summary), 1);
    EXPECT_EQ(summary.pointsNew, 1U);
    EXPECT_EQ(manager.surveyPoints().find("L", "P")->latitude, 30.5);
}

TEST(DataManagerCsv, WhatCannotBeDoneIsNoSuccess)
{
    const QTemporaryDir folder;
    Host host;
    DataProcessDataManager manager(&host);
    EXPECT_EQ(manager.importSurveyCsv(folder.path()), 0);
    EXPECT_EQ(manager.importDesignCsv(folder.path()), 0);
    EXPECT_EQ(manager.exportSurveyCsv({}, folder.path()), 0);
    EXPECT_EQ(manager.exportDesignCsv({}, folder.path(), false), 0);
}
