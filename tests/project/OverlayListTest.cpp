#include "project/OverlayList.h"

#include "tests/project/SavedProject.h"

namespace {

TEST(OverlayList, PlacesAreStoredAndFoundAgain)
{
    const struct
    {
        const char* path;   ///< of the picture
        const char* folder; ///< of the project
        const char* stored;
    } cases[] = {{"/data/测区 1/ground/河.tif", "/data/测区 1", "ground/河.tif"},
                 {"/data/maps/a b.tif", "/data/p", "../maps/a b.tif"},
                 {"/data/p2/a.tif", "/data/p", "../p2/a.tif"},
                 {"/database/a.tif", "/data/p", "/database/a.tif"},
                 {"/maps/a.tif", "/p", "/maps/a.tif"},
                 {"/data/p/../p/a.tif", "/data/p/", "a.tif"}};
    for (const auto& [path, folder, stored] : cases) {
        basalt::Dictionary project;
        const QString inFolder = QString::fromUtf8(folder);
        const QString file = QString::fromUtf8(path);
        OverlayList::write({{file, false, 0.35}}, inFolder, project);
        EXPECT_EQ(project.text("overlay_1_file"), stored);
        EXPECT_EQ(project.text("overlay_1_opacity"), "0.35");
        EXPECT_EQ(OverlayList::read(project, inFolder),
                  (std::vector<OverlayImage>{{QDir::cleanPath(file), false, 0.35}}));
    }
}

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
    makeProject(place);
    ASSERT_TRUE(QDir().mkpath(copy.folder));
    expectDone(manager.openProject(place));
    const std::vector<OverlayImage> images = {{place.folder + "/in.tif"_q},
                                              {root.path("beside.tif")}};
    OverlayList::write(images, place.folder, manager.project());
    expectDone(manager.saveCopy(copy));
    expectDone(manager.openProject(copy));
    EXPECT_EQ(OverlayList::read(manager.project(), copy.folder), images);
}

} // namespace
