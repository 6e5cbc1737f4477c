#pragma once

#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/Host.h"
#include "project/DataProcessDataManager.h"
#include "project/PointCorrection.h"
#include "project/ProjectCreator.h"
#include "tests/project/ExpectOutcome.h"
#include "tests/project/TestProject.h"
#include "tests/support/Literals.h"
#include "tests/support/TestFolder.h"

#include <QDir>

/// A new project, without a coordinate system.
inline void makeProject(const ProjectPlace& place)
{
    QDir().mkpath(place.folder);
    basalt::Dictionary project;
    ProjectCreator::describe(place, project);
    expectDone(ProjectCreator::create(place, project));
}

/// Runs SQL on a database that no program has open.
inline void executeSql(const QString& path, const char* sql)
{
    DBAdapter adapter;
    ASSERT_TRUE(adapter.open(lum::databaseConnection(path.toStdString()).c_str()));
    ASSERT_TRUE(adapter.execute(sql, 0)) << adapter.lastError();
}

/// A new project that is open, its edits kept as a window keeps them.
class SavedProject : public testing::Test
{
protected:
    using Texts = std::vector<std::string>;

    SavedProject()
    {
        const basalt::Dictionary none;
        get_project_coord_transform().initialise(none, none);
        makeProject(place);
        expectDone(manager.openProject(place));
        manager.setEditHandler([this](const auto& edit) { edits.push_back(edit); });
    }

    void import(const QByteArray& rows)
    {
        const QString path = root.write("数据, \"1\".csv", "line num,point num,remarks\n" + rows);
        ASSERT_EQ(manager.importSurveyCsv(path), 1);
    }
    void remark(const PointName& name, const char* text)
    {
        SurveyCorrection correction;
        correction.remarks = text;
        ASSERT_EQ(manager.correctSurveyPoint(name, correction), 1);
    }
    std::size_t remove(const std::vector<PointName>& points)
    {
        return manager.deleteSurveyPoints(points);
    }
    /// Takes the last edit back.
    void takeBack()
    {
        ASSERT_EQ(manager.exchange(edits.back(), true), 1);
        edits.pop_back();
    }
    void save() { expectDone(manager.saveProject(place)); }
    void reopen()
    {
        manager.clear();
        edits.clear();
        expectDone(manager.openProject(place));
    }
    void execute(const char* sql) const { executeSql(place.database(), sql); }

    [[nodiscard]] std::vector<HistoryAction> actions(const HistoryFilter& filter = {})
    {
        std::vector<HistoryAction> found;
        expectDone(manager.history().actions(filter, found));
        return found;
    }
    [[nodiscard]] std::vector<HistoryItem> items(const HistoryAction& action)
    {
        std::vector<HistoryItem> found;
        expectDone(manager.history().items(action, found));
        return found;
    }
    /// What the saved history tells of a point, the newest first.
    [[nodiscard]] std::vector<HistoryReader::Event> eventsOf(const PointName& name)
    {
        HistoryFilter filter;
        filter.point = name;
        std::vector<HistoryReader::Event> events;
        expectDone(manager.history().life(filter, events));
        return events;
    }

    TestFolder root;
    ProjectPlace place = ProjectPlace::planned(root.path(), "测区 1"_q);
    std::string database = place.database().toStdString();
    Host host;
    DataProcessDataManager manager{&host};
    std::vector<std::shared_ptr<Edit>> edits;
};
