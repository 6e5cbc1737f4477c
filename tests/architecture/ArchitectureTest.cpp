#include "IncludeRules.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace {

std::string joined(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines)
        text += line + '\n';
    return text;
}

/// Every source below `folder`, as a path from the root; nothing when there is no such folder.
std::vector<std::string> sourcesOf(const char* folder)
{
    namespace fs = std::filesystem;
    const fs::path root = SOURCE_FOLDER;
    std::vector<std::string> sources;
    if (!fs::exists(root / folder))
        return sources;
    for (const auto& entry : fs::recursive_directory_iterator(root / folder)) {
        const fs::path extension = entry.path().extension();
        if (extension == ".h" || extension == ".cpp")
            sources.push_back(entry.path().lexically_relative(root).generic_string());
    }
    return sources;
}

std::string contentOf(const std::string& file)
{
    std::ifstream text(std::string(SOURCE_FOLDER) + '/' + file);
    return {std::istreambuf_iterator<char>(text), {}};
}

} // namespace

TEST(Architecture, ThePlatformDoesNotKnowWhoseItIs)
{
    std::vector<std::string> faults;
    for (const std::string& file : sourcesOf("platform")) {
        for (const char* word : {"Skyquill", "skyquill", "Tarvona", "project_open", "stake"}) {
            if (contentOf(file).find(word) != std::string::npos)
                faults.push_back(file + ": " + word);
        }
    }
    EXPECT_EQ(joined(faults), "");
}

TEST(Architecture, EveryIncludePointsDown)
{
    std::vector<std::string> faults;
    std::size_t headers = 0;
    for (const char* folder : {"platform", "protocol", "model", "exchange", "quality", "design",
                               "map", "project", "views", "app"}) {
        for (const std::string& file : sourcesOf(folder)) {
            std::ifstream text(std::string(SOURCE_FOLDER) + '/' + file);
            ASSERT_TRUE(text.is_open()) << file;
            const auto found = includeFaults(file, text);
            faults.insert(faults.end(), found.begin(), found.end());
            headers += file.back() == 'h' ? 1U : 0U;
        }
    }
    EXPECT_EQ(joined(faults), "");
    EXPECT_GT(headers, 80U) << "the walk has missed most of the tree";
}

struct IncludeCase
{
    const char* name;
    const char* file;
    const char* line;
    const char* fault; ///< must stand in the message; empty when the line may stand
};

class IncludeRule : public testing::TestWithParam<IncludeCase>
{
};

TEST_P(IncludeRule, JudgesOneLine)
{
    const auto& [name, file, line, fault] = GetParam();
    const std::string found = includeFault(file, line);
    EXPECT_EQ(found.empty(), std::string(fault).empty()) << found;
    EXPECT_NE(found.find(fault), std::string::npos) << found;
}

INSTANTIATE_TEST_SUITE_P(
    Floors, IncludeRule,
    testing::Values(
        IncludeCase{"OwnFolder", "platform/lum_sdk/A.cpp", "#include \"lum_sdk/B.h\"", ""},
        IncludeCase{"LowerFloor", "protocol/A.h", "#include \"basalt_utilities/B.h\"", ""},
        IncludeCase{"Upward", "platform/basalt_utilities/A.cpp", "#include \"lum_sdk/B.h\"",
                    "upward, from platform/lum_sdk"},
        IncludeCase{"UpwardInAngles", "platform/basalt_utilities/A.cpp",
                    " #  include <lum_sdk/B.h> // why", "upward"},
        IncludeCase{"ProtocolToApp", "protocol/A.cpp", "#include \"app/B.h\"", "upward"},
        IncludeCase{"ProtocolToModel", "protocol/A.cpp", "#include \"model/B.h\"", "neighbour"},
        IncludeCase{"CommentIsNoInclude", "platform/basalt_utilities/A.cpp",
                    "// #include \"lum_sdk/B.h\"", ""},
        IncludeCase{"NotFromTheRoot", "platform/lum_sdk/A.cpp", "#include \"B.h\"", "root"},
        IncludeCase{"FileOnNoFloor", "platform/new_kit/A.cpp", "int i;", "no floor"}),
    [](const auto& test) { return test.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Subjects, IncludeRule,
    testing::Values(
        IncludeCase{"RecordsAreGround", "quality/A.cpp", "#include \"model/B.h\"", ""},
        IncludeCase{"Neighbours", "quality/A.cpp", "#include \"exchange/csv/B.h\"", "neighbour"},
        IncludeCase{"SubjectToManager", "quality/A.cpp", "#include \"project/B.h\"", "upward"},
        IncludeCase{"ManagerToSubject", "project/A.cpp", "#include \"quality/B.h\"", ""},
        IncludeCase{"RecordsToManager", "model/A.h", "#include \"project/B.h\"", "upward"},
        IncludeCase{"CoreToItsUi", "quality/A.cpp", "#include \"quality/ui/B.h\"", "upward"},
        IncludeCase{"CoreToDesktop", "map/A.cpp", "#include \"lum_desktop_sdkx/B.h\"", "upward"},
        IncludeCase{"UiToItsCore", "quality/ui/A.cpp", "#include \"quality/B.h\"", ""},
        IncludeCase{"UiToManager", "quality/ui/A.cpp", "#include \"project/B.h\"", ""},
        IncludeCase{"UiToFrame", "map/ui/A.cpp", "#include \"lum_desktop_sdkx/frame/B.h\"", ""},
        IncludeCase{"UiToSharedUi", "quality/ui/A.cpp", "#include \"map/ui/B.h\"", ""},
        IncludeCase{"UiToOtherUi", "quality/ui/A.cpp", "#include \"design/ui/B.h\"", "neighbour"},
        IncludeCase{"UiToApp", "quality/ui/A.cpp", "#include \"app/B.h\"", "upward"},
        IncludeCase{"AppToAll", "app/A.cpp", "#include \"views/B.h\"", ""}),
    [](const auto& test) { return test.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Desktop, IncludeRule,
    testing::Values(IncludeCase{"InterfaceToFrame", "platform/lum_desktop_sdkx/IA.h",
                                "#include \"lum_desktop_sdkx/frame/B.h\"", "upward"},
                    IncludeCase{"DialogsToControls", "platform/lum_desktop_sdkx/dialogs/A.cpp",
                                "#include \"lum_desktop_sdkx/controls/B.h\"", "upward"},
                    IncludeCase{"ControlsToDialogs", "platform/lum_desktop_sdkx/controls/A.cpp",
                                "#include \"lum_desktop_sdkx/dialogs/B.h\"", ""},
                    IncludeCase{"ControlsToMap", "platform/lum_desktop_sdkx/controls/A.cpp",
                                "#include \"lum_desktop_sdkx/map/B.h\"", "upward"},
                    IncludeCase{"MapToFrame", "platform/lum_desktop_sdkx/map/A.cpp",
                                "#include \"lum_desktop_sdkx/frame/B.h\"", "upward"},
                    IncludeCase{"PlatformToEvents", "platform/lum_sdk/events/A.cpp",
                                "#include \"protocol/B.h\"", "upward"},
                    IncludeCase{"PlatformToRecords", "platform/lum_desktop_sdkx/map/A.cpp",
                                "#include \"model/B.h\"", "the product's"}),
    [](const auto& test) { return test.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Foreign, IncludeRule,
    testing::Values(
        IncludeCase{"QtOnTheGround", "platform/basalt_utilities/A.h", "#include <QString>", "Qt"},
        IncludeCase{"QtModule", "platform/basalt_utilities/A.h", "#include <QtCore/QFile>", "Qt"},
        IncludeCase{"QtInSmallLetters", "platform/basalt_utilities/A.h", "#include <qglobal.h>",
                    "Qt"},
        IncludeCase{"StandardOnTheGround", "platform/basalt_utilities/A.h", "#include <queue>", ""},
        IncludeCase{"WidgetInRecords", "model/A.h", "#include <QLabel>", "widgets"},
        IncludeCase{"AllWidgets", "platform/lum_sdk/A.cpp", "#include <QtWidgets>", "widgets"},
        IncludeCase{"WidgetByModule", "design/A.h", "#include <QtWidgets/QMenu>", "widgets"},
        IncludeCase{"WidgetInSmallLetters", "project/A.h", "#include <qwidget.h>", "widgets"},
        IncludeCase{"Docking", "map/A.h", "#include <qtadvanceddocking/DockWidget.h>", "widgets"},
        IncludeCase{"PictureIsNoWidget", "map/A.h", "#include <QImage>", ""},
        IncludeCase{"WidgetInUi", "map/ui/A.h", "#include <QWidget>", ""}),
    [](const auto& test) { return test.param.name; });

TEST(IncludeFaults, NameFileAndLine)
{
    std::istringstream header("#pragma once\n\n#include <vector>\n#include \"project/B.h\"\n");
    EXPECT_EQ(joined(includeFaults("quality/A.h", header)),
              "quality/A.h:4: quality includes upward, from project\n");
}

TEST(IncludeFaults, AHeaderBeginsWithPragmaOnce)
{
    for (const char* text : {"", "// first\n#pragma once\n", "#ifndef A_H\n"}) {
        std::istringstream header(text);
        EXPECT_EQ(joined(includeFaults("quality/A.h", header)),
                  "quality/A.h:1: a header begins with #pragma once\n");
        std::istringstream source(text);
        EXPECT_EQ(joined(includeFaults("quality/A.cpp", source)), "");
    }
}
