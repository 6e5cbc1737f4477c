#pragma once

#include "basalt_utilities/Dictionary.h"
#include "lum_sdk/events/EventSubscription.h"
#include "lum_sdk/events/IEventManager.h"
#include "model/PointLines.h"
#include "project/DBAdapter.h"
#include "project/ProjectLock.h"
#include "project/StoreResult.h"

#include <QStringList>

#include <memory>
#include <vector>

class IHost;
class QAbstractTableModel;
struct CheckedData;
struct CheckKind;
struct ImportSummary;
struct ProjectPlace;
struct QualityRow;

/// What a project is opened for.
enum class ProjectAccess
{
    Change,
    Look ///< also while another program has it
};

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

    /// Takes the project for this program alone, unless it is only looked at, and reads its
    /// parameter files, its database and its project file. A project that cannot be opened leaves
    /// nothing in memory; a project file that cannot be read is passed over, with a message.
    StoreResult openProject(const ProjectPlace& place,
                            ProjectAccess access = ProjectAccess::Change);
    /// Writes them all, and the design parameters as the start of the next new project. A database
    /// that is gone is made anew.
    StoreResult saveProject(const ProjectPlace& place);
    /// Whether the last `saveProject` failed, so that more is in memory than on the disk.
    [[nodiscard]] bool isSaveOwed() const { return m_isSaveOwed; }
    /// Forgets the points and parameters of the project that was open, and lets others have it; its
    /// coordinate system stays as the start of the next new project.
    void clear();

    /// The database alone, see ProjectLoader and ProjectSaver.
    StoreResult load(const QString& path);
    StoreResult save(const QString& path);

    /// Gives the project another coordinate system, keys as in CoordinateRecord.h, and with it the
    /// results their sea heights. The system itself is `get_project_coord_transform`'s.
    void setCoordSystem(const IDictionary& parameters);
    /// Rewrites every result's sea height; due whenever results or coordinate system are new.
    void recomputeSeaHeights();

    // The checks of quality/CheckKinds.h.

    /// Runs a check; it writes its verdicts on the points in memory.
    void run(const CheckKind& check);
    /// What the last run of a check found, a row each.
    [[nodiscard]] std::unique_ptr<QAbstractTableModel> resultOf(const CheckKind& check);

    /// Judges every survey result by the quality parameters. \returns 1
    int checkQuality();
    /// The faults that the last quality check found in one result.
    [[nodiscard]] std::vector<QualityRow> describeQuality(const SurveyPoint& point) const;

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
    /// What is said about the project as a whole, keys as in ProjectFile.h. The coordinate system
    /// in it is the one that the project was made with.
    [[nodiscard]] IDictionary& project() { return m_project; }
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
    [[nodiscard]] CheckedData checkedData();
    void reportQuery(const char* payload);
    [[nodiscard]] StoreResult read(const ProjectPlace& place);
    [[nodiscard]] StoreResult readDatabase(const QString& path, IDictionary& coordSystem);

    IHost& m_host; // outlives the manager
    EventSubscription m_subscription;
    DBAdapter m_database;
    ProjectLock m_lock;
    DesignPoints m_design;
    SurveyPoints m_survey;
    basalt::Dictionary m_project;
    QString m_projectFile; ///< as it was opened; empty for one that we could not read
    bool m_isSaveOwed = false;
    basalt::Dictionary m_qualityParameters;
    basalt::Dictionary m_designParameters;
    QStringList m_surveyCaptions;
    QStringList m_exportCaptions;
};
