#include "project/OverlayList.h"

#include "tests/project/SavedProject.h"

namespace {

struct PlaceCase
{
    const char* name;
    const char* path;   ///< of the picture
    const char* folder; ///< of the project
    const char* stored;
};

class OverlayPlace : public testing::TestWithParam<PlaceCase>
{
};

TEST_P(OverlayPlace, IsStoredAndFoundAgain)
{
    const QString folder = QString::fromUtf8(GetParam().folder);
    const QString path = QString::fromUtf8(GetParam().path);
    basalt::Dictionary project;
    OverlayList::write({{path, false, 0.35}}, folder, project);
    EXPECT_EQ(project.text("overlay_1_file"), GetParam().stored);
    EXPECT_EQ(project.text("overlay_1_opacity"), "0.35");
    EXPECT_EQ(OverlayList::read(project, folder),
              (std::vector<OverlayImage>{{QDir::cleanPath(path), false, 0.35}}));
}

INSTANTIATE_TEST_SUITE_P(
    Places, OverlayPlace,
    testing::Values(
        PlaceCase{"InTheProject", "/data/测区 1/ground/河.tif", "/data/测区 1", "ground/河.tif"},
        PlaceCase{"BesideTheProject", "/data/maps/a b.tif", "/data/p", "../maps/a b.tif"},
        PlaceCase{"InAFolderOfALikeName", "/data/p2/a.tif", "/data/p", "../p2/a.tif"},
        PlaceCase{"FartherAway", "/database/a.tif", "/data/p", "/database/a.tif"},
        PlaceCase{"OfAProjectInTheRoot", "/maps/a.tif", "/p", "/maps/a.tif"},
        PlaceCase{"NotClean", "/data/p/../p/a.tif", "/data/p/", "a.tif"}),
    [](const auto& test) { return test.param.name; });

TEST(OverlayList, ReadsOnPastBadValues)
{
    basalt::Dictionary project;
    project.set("overlay_1_file", "");
    project.set("overlay_2_file", "a.tif");
    project.set("overlay_2_opacity", "nan");
    project.set("overlay_3_file", "b.tif");
    project.set("overlay_3_opacity", "7");
    project.set("overlay_5_file", "none.tif"); // the list ends before it
    EXPECT_EQ(OverlayList::read(project, "/p"_q),
              (std::vector<OverlayImage>{{"/p/a.tif"_q}, {"/p/b.tif"_q}}));
}

TEST(OverlayList, OfACopyNamesTheSamePictures)
{
    const TestFolder root;
    Host host;
    DataProcessDataManager manager(&host);
    const ProjectPlace place = ProjectPlace::planned(root.path(), "first"_q);
    const ProjectPlace copy = ProjectPlace::planned(root.path("far/away"), "copy"_q);
    for (const ProjectPlace& each : {place, copy})
        ASSERT_TRUE(QDir().mkpath(each.folder));
    basalt::Dictionary project;
    ProjectCreator::describe(place, project);
    const std::vector<OverlayImage> images = {{place.folder + "/in.tif"_q},
                                              {root.path("beside.tif")}};
    OverlayList::write(images, place.folder, project);
    expectDone(ProjectCreator::create(place, project));
    expectDone(manager.openProject(place));
    expectDone(manager.saveCopy(copy));
    expectDone(manager.openProject(copy));
    EXPECT_EQ(OverlayList::read(manager.project(), copy.folder), images);
}

} // namespace
