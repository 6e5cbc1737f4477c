#pragma once

#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_sdk/Text.h"
#include "tests/project/NotingWindow.h"
#include "tests/project/OpenProject.h"
#include "tests/support/Literals.h"
#include "tests/support/Points.h"
#include "tests/support/Widgets.h"
#include "views/problems/ProblemCommands.h"
#include "views/problems/ProblemKindBar.h"
#include "views/problems/ProblemTableModel.h"
#include "views/problems/ProblemWindow.h"
#include "views/SelectionFollower.h"

#include <algorithm>

/// A design of two lines of six points, and the window of the problems with the tables.
struct ProblemPlace : OpenProject
{
    ProblemPlace()
    {
        host.windowRegistry.windows = {{"Problems List"_q, &window},
                                       {"Survey Data List"_q, &resultTable},
                                       {"Design Data List"_q, &designed}};
        for (int line = 0; line < 2; ++line) {
            for (int place = 0; place < 6; ++place)
                design().set({std::to_string(1001 + line), std::to_string(5001 + place),
                              100.0 * line, 25.0 * place, 0, 90, 1, 0});
        }
        window.resize(1100, 400);
        window.show();
        publish("UPDATE_SYSTEM_STATUS_EVENT");
    }

    void find() { FindProblemsCommand("", &host).execute(); }
    void step(const char* what)
    {
        ProblemStepCommand((QByteArray("what=") + what).constData(), &host).execute();
    }
    /// A result at its design position, with nothing wrong.
    SurveyPoint& survey(const char* line, const char* point)
    {
        const DesignPoint& designedPoint = *design().find(line, point);
        SurveyPoint result = surveyPoint(line, point);
        result.north = result.designNorth = designedPoint.north;
        result.east = result.designEast = designedPoint.east;
        result.antennaHeight = 2;
        result.pdop = result.hdop = result.vdop = 1;
        result.satelliteNumber = 20;
        result.solutionType = 4;
        return results().set(std::move(result));
    }
    [[nodiscard]] QStringList selected() const
    {
        QStringList names;
        for (const int row : table.selectedRows())
            names << lum::toQString(model.problem(row).line) + QLatin1Char('/') +
                         lum::toQString(model.problem(row).point);
        return names;
    }
    [[nodiscard]] bool says(const char* part) const
    {
        return ::says(window, QString::fromUtf8(part));
    }
    void chooseKind(const char* caption)
    {
        const auto rows = kinds.findItems(QString::fromUtf8(caption), Qt::MatchExactly);
        QCOMPARE(rows.size(), 1);
        kinds.setCurrentItem(rows.first());
        QVERIFY(rows.first()->isSelected());
    }
    void click(int row, Qt::KeyboardModifiers keys = {}) const
    {
        QTest::mouseClick(table.viewport(), Qt::LeftButton, keys,
                          table.visualRect(model.index(row, 3)).center());
    }

    NotingWindow resultTable, designed;
    ProblemWindow window{"", &host};
    CustomTableWidget& table{*window.findChild<CustomTableWidget*>()};
    ProblemTableModel& model{*window.findChild<ProblemTableModel*>()};
    ProblemKindBar& kinds{*window.findChild<ProblemKindBar*>()};
    SelectionFollower follower{host};
};
