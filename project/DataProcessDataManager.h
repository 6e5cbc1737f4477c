#pragma once

#include "app/protocol/EventSubscription.h"
#include "basalt_utilities/Dictionary.h"
#include "lum_sdk/IEventManager.h"
#include "project/DBAdapter.h"
#include "project/model/PointLines.h"
#include "project/StoreResult.h"

#include <QStringList>

class IHost;
struct ImportSummary;

/// The store of the open project.
///
/// The assistant makes one at start and ends it when the application closes; everybody else
/// reaches it through `instance`. Holds one project at a time; for the GUI thread.
class DataProcessDataManager final : public IEventHandler
{
public:
    /// The first manager becomes the instance.
    explicit DataProcessDataManager(IHost* host);
    ~DataProcessDataManager() override;

    DataProcessDataManager(const DataProcessDataManager&) = delete;
    DataProcessDataManager& operator=(const DataProcessDataManager&) = delete;

    /// The manager of this process; null before it is made and after it is ended. For the GUI
    /// thread only: what paints on a worker works on a copy that was made here.
    [[nodiscard]] static DataProcessDataManager* instance();

    /// Reads the project's parameter files and its database, "NAME.db" in `folder`. When a file
    /// cannot be read the parameters stay as they were.
    StoreResult openProject(const QString& folder, const QString& name);
    /// Writes them all, and the design parameters as the start of the next new project.
    StoreResult saveProject(const QString& folder, const QString& name);
    /// Forgets the points of the project that was open.
    void clear();

    /// The database alone, see ProjectLoader and ProjectSaver.
    StoreResult load(const QString& path);
    StoreResult save(const QString& path);

    // CSV files, see exchange/; 1 when done, else 0, and the log says why. Lines are written in the
    // order of the list.
    int exportDesignCsv(const QStringList& lines, const QString& path, bool onlyUnsurveyed);
    int importDesignCsv(const QString& path, ImportSummary* summary = nullptr);
    /// The columns of `exportCaptions`, which gets all of them when it is empty.
    int exportSurveyCsv(const QStringList& lines, const QString& path);
    int importSurveyCsv(const QString& path, ImportSummary* summary = nullptr);

    [[nodiscard]] DesignPoints& designPoints() { return m_design; }
    [[nodiscard]] SurveyPoints& surveyPoints() { return m_survey; }
    [[nodiscard]] IDBAdapter& database() { return m_database.inner(); }
    /// Of the project's coordinate system, keys as in CoordinateRecord.h.
    [[nodiscard]] IDictionary& coordParameters() { return m_coordParameters; }
    /// The limits of the quality checks, "qc_param.ini".
    [[nodiscard]] IDictionary& qualityParameters() { return m_qualityParameters; }
    /// The grid to generate, "design_param.ini".
    [[nodiscard]] IDictionary& designParameters() { return m_designParameters; }

    /// Captions of all survey columns, and of those that the user exports, in the user's order.
    [[nodiscard]] const QStringList& surveyCaptions() const { return m_surveyCaptions; }
    [[nodiscard]] QStringList& exportCaptions() { return m_exportCaptions; }

    // The code tables of project/model/CodeTables.h.
    [[nodiscard]] static QString solutionTypeText(int code);
    [[nodiscard]] static int solutionTypeCode(const QString& text);
    [[nodiscard]] static QString obstacleText(int code);

    void handleEvent(const char* eventName, const char* payload, int reserved) override;

private:
    void reportQuery(const char* payload);

    IHost& m_host; // outlives the manager
    EventSubscription m_subscription;
    DBAdapter m_database;
    DesignPoints m_design;
    SurveyPoints m_survey;
    basalt::Dictionary m_coordParameters;
    basalt::Dictionary m_qualityParameters;
    basalt::Dictionary m_designParameters;
    QStringList m_surveyCaptions;
    QStringList m_exportCaptions;
};
