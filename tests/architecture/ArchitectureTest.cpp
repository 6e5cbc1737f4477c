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
        const std::string content = contentOf(file);
        for (const char* word : {"Skyquill", "skyquill", "Tarvona", "project_open", "stake"}) {
            if (content.find(word) != std::string::npos)
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
                               "map", "reports", "project", "samples", "views", "app"}) {
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

TEST(IncludeFault, JudgesOneLine)
{
    const struct
    {
        const char* file;
        const char* line;
        const char* fault; ///< must stand in the message; empty for a comment
    } kLines[] = {
        // Which lines may stand is seen in the tree. The floors, however the line is written.
        {"platform/basalt_utilities/A.cpp", "#include \"lum_sdk/B.h\"",
         "upward, from platform/lum_sdk"},
        {"platform/basalt_utilities/A.cpp", "// #include \"lum_sdk/B.h\"", ""},
        {"quality/A.cpp", "#include \"project/B.h\"", "upward"},
        {"platform/lum_sdk/A.cpp", "#include \"B.h\"", "root"},
        {"platform/new_kit/A.cpp", "int i;", "no floor"},
        // Folders beside each other on a floor.
        {"protocol/A.cpp", "#include \"model/B.h\"", "neighbour"},
        {"quality/A.cpp", "#include \"exchange/csv/B.h\"", "neighbour"},
        // A folder in a folder is a floor of its own.
        {"quality/A.cpp", "#include \"quality/ui/B.h\"", "upward"},
        // The platform and the product.
        {"map/A.cpp", "#include \"lum_desktop_sdkx/B.h\"", "upward"},
        {"platform/lum_desktop_sdkx/map/A.cpp", "#include \"model/B.h\"", "the product's"},
        // Qt and its widgets.
        {"platform/basalt_utilities/A.h", "#include <QString>", "Qt"},
        {"model/A.h", "#include <QLabel>", "widgets"},
        {"design/A.h", "#include <QtWidgets/QMenu>", "widgets"},
        {"quality/statistics/A.h", "#include <qwt_plot.h>", "widgets"},
    };
    for (const auto& [file, line, fault] : kLines) {
        const std::string found = includeFault(file, line);
        EXPECT_EQ(found.empty(), std::string(fault).empty()) << file << ": " << line;
        EXPECT_NE(found.find(fault), std::string::npos) << file << ": " << line << '\n' << found;
    }
}

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
