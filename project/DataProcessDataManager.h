#pragma once

#include "basalt_utilities/Dictionary.h"
#include "lum_sdk/events/EventSubscription.h"
#include "lum_sdk/events/IEventManager.h"
#include "model/PointLines.h"
#include "model/PointName.h"
#include "project/DBAdapter.h"
#include "project/edits/Edit.h"
#include "project/history/HistoryReader.h"
#include "project/history/UnsavedHistory.h"
#include "project/ProjectLock.h"
#include "project/ProjectPlace.h"
#include "project/SurveyDatabase.h"
#include "protocol/Outcome.h"
#include "quality/problems/Acceptance.h"

#include <QStringList>

#include <memory>
#include <span>
#include <vector>

class IHost;
class ProblemList;
struct CheckedData;
struct CheckKind;
struct CheckResult;
struct DesignCorrection;
struct ImportSummary;
struct Problem;
struct ProblemKind;
struct QualityLimits;
struct QualityRow;
struct ReportChoice;
struct ReportKind;
struct Renaming;
struct RepeatedPoint;
struct ResolvedRepeats;
struct SurveyCorrection;
enum class DesignLines;

/// What a project is opened for.
enum class ProjectAccess
{
    Change,
    Look ///< also while another program has it
};

/// The store of the open project. Holds one project at a time; for the GUI thread only.
///
/// The assistant makes it when the program starts and ends it when the program closes. Everybody
/// else reaches it through `instance`.
class DataProcessDataManager final : public IEventHandler
{
public:
    /// The first manager becomes the instance.
    explicit DataProcessDataManager(IHost* host);
    ~DataProcessDataManager() override;

    DataProcessDataManager(const DataProcessDataManager&) = delete;
    DataProcessDataManager& operator=(const DataProcessDataManager&) = delete;

    /// The manager of this process. There always is one while a project is open; to ask for it
    /// without one is a mistake of ours, and ends the program with a report.
    [[nodiscard]] static DataProcessDataManager& instance();
    /// The question of code that also runs before the manager is made or after its end.
    [[nodiscard]] static bool hasInstance();

    // Operations on files. Why one failed stands in the log, and in its outcome for the user.

    /// Takes the project for this program alone, unless it is only looked at, and reads its
    /// parameter files, its database and its project file. A project that cannot be opened leaves
    /// nothing in memory. What is named otherwise than a project file is none. A project file that
    /// cannot be read is no failure; a notice says so.
    Outcome openProject(const ProjectPlace& place, ProjectAccess access = ProjectAccess::Change);
    /// Writes them all, and the design parameters as the template of new projects. A database that
    /// is missing is made anew.
    Outcome saveProject(const ProjectPlace& place);
    /// Why the project file could not be read, so that nothing is saved in it; empty when it was.
    [[nodiscard]] const QString& projectFileFault() const { return m_projectFileFault; }
    /// Writes what is in memory as a project of its own in another folder, which must be there.
    /// The open project and its files stay as they are; it need not have them any more.
    Outcome saveCopy(const ProjectPlace& copy);
    /// Whether the last `saveProject` failed, so that the files are older than what is in memory.
    [[nodiscard]] bool isSaveOwed() const { return m_isSaveOwed; }
    /// Whether the project lives in a folder that could not be written when it was opened, or is
    /// only looked at.
    [[nodiscard]] bool isReadOnly() const { return !m_lock.isHeld(); }

    /// To be called once by whoever has changed what is saved with the project and is no edit, such
    /// as its description or the verdicts of a check. Operations of this class do it themselves.
    void markChanged();
    /// Whether memory holds what the files do not. Opening and saving end it, and taking back all
    /// edits since then, not a failed save. "ON_PROJECT_MODIFIED" is published when it changes.
    [[nodiscard]] bool isChanged() const { return m_isElseChanged || m_unsaved.holdChanges(); }

    // Edits: whatever changes points or parameters.

    /// For the user interface, which keeps the edits so that the user can take them back. It is
    /// told each edit once it is done.
    using EditHandler = std::function<void(const std::shared_ptr<Edit>&)>;
    void setEditHandler(EditHandler handler);
    /// Takes an edit back, or does it again. Whoever keeps the edits goes through them in order.
    int exchange(const std::shared_ptr<Edit>& edit, bool isTakenBack, Outcome* outcome = nullptr);
    /// What was done and taken back since the project was saved last.
    [[nodiscard]] const UnsavedEdits& unsavedEdits() const { return m_unsaved; }
    /// Why an edit was made, in the user's words, for the history.
    /// \param entry  its place in `unsavedEdits`
    void setReason(std::size_t entry, const QString& reason) { m_unsaved.setReason(entry, reason); }
    /// Whoever keeps the edits will not exchange this one and those before it any more.
    void letGo(const std::shared_ptr<Edit>& edit) { m_unsaved.letGo(edit, editedData()); }
    /// Reads the history of the open project: what was saved. To be used at once.
    [[nodiscard]] HistoryReader history() { return HistoryReader(m_database); }
    /// What the next save adds to it. To be used at once.
    [[nodiscard]] UnsavedHistory unsavedHistory() { return {m_unsaved.entries(), editedData()}; }

    /// Forgets the points and parameters of the open project and gives up its lock. Its coordinate
    /// system stays: the next new project starts from it.
    void clear();

    // Operations that answer 1 when they are done, else 0, and give their outcome to who asks.

    /// The database alone, see ProjectLoader and ProjectSaver.
    int load(const QString& path, Outcome* outcome = nullptr);
    int save(const QString& path, Outcome* outcome = nullptr);

    // CSV files, see exchange/. Lines are written in the order of the list. An import that is done
    // has a notice: what became of the file's lines; `counts` gets it in numbers.

    int exportDesignCsv(const QStringList& lines, const QString& path, bool onlyUnsurveyed,
                        Outcome* outcome = nullptr);
    int importDesignCsv(const QString& path, Outcome* outcome = nullptr,
                        ImportSummary* counts = nullptr);
    /// \param captions  the columns, in their order; without any those of `exportCaptions`, which
    ///                  become all columns when they are empty
    int exportSurveyCsv(const QStringList& lines, const QString& path,
                        const QStringList& captions = {}, Outcome* outcome = nullptr);
    /// The same for single points, in the columns of `exportCaptions`.
    int exportSurveyPoints(const std::vector<PointName>& points, const QString& path,
                           Outcome* outcome = nullptr);
    int importSurveyCsv(const QString& path, Outcome* outcome = nullptr,
                        ImportSummary* counts = nullptr);

    // Databases and KML files, see DesignDatabase.h, SurveyDatabase.h and exchange/. Lines are
    // written in the order of the list. No export replaces a file of the open project.

    /// Writes the points into a new database with the project's coordinate system, over a file
    /// that is there.
    int exportDesignDatabase(const QStringList& lines, const QString& path, bool onlyUnsurveyed,
                             Outcome* outcome = nullptr);
    /// A point without a place on the globe is left out; the outcome has a notice then.
    int exportDesignKml(const QStringList& lines, const QString& path, bool onlyUnsurveyed,
                        Outcome* outcome = nullptr);
    int exportSurveyKml(const QStringList& lines, const QString& path, Outcome* outcome = nullptr);
    /// Writes the design points of these problems for the crew that measures them again, see
    /// exchange/CrewList.h: as KML when the file's name ends in ".kml", else as CSV. Of a result
    /// that is the point that it measures, see quality/MeasuredPoint.h. The outcome has a notice in
    /// numbers.
    int exportCrewList(const std::vector<const Problem*>& problems, const QString& path,
                       Outcome* outcome = nullptr);
    /// Adds the results of another project's database. One of another coordinate system goes to the
    /// handler of `setOtherSystemHandler` instead; the outcome has no text then.
    int importSurveyDatabase(const QString& path, Outcome* outcome = nullptr,
                             ImportSummary* counts = nullptr);
    /// For the user interface, which then shows how far the systems disagree.
    void setOtherSystemHandler(OtherSystemHandler handler);

    /// Writes a workbook about the project, see reports/ReportKinds.h. The outcome has a notice in
    /// numbers.
    int writeReport(const ReportKind& kind, const QString& path, const ReportChoice& choice,
                    Outcome* outcome = nullptr);

    // Changes by hand. What is not there is passed over.

    /// \returns how many results are gone
    std::size_t deleteSurveyPoints(const std::vector<PointName>& points);
    std::size_t deleteSurveyLines(const QStringList& lines);
    /// Refused when the point does not exist or the correction has a fault. A result that gets the
    /// name of another one takes its place. `filedAs` gets its name in memory.
    int correctSurveyPoint(const PointName& name, const SurveyCorrection& correction,
                           Outcome* outcome = nullptr, PointName* filedAs = nullptr);
    /// Gives results other names, all at once, and what follows from a name; see PointRenaming.h.
    /// Refused when a name is taken: nothing is replaced.
    int renameResults(const std::vector<Renaming>& renamings, Outcome* outcome = nullptr);
    int correctDesignPoint(const PointName& name, const DesignCorrection& correction,
                           Outcome* outcome = nullptr);
    /// Puts points of the history back, over those of the same names.
    /// \returns how many there are
    std::size_t restorePoints(HistoryPoints&& points);
    /// The points that were measured more than once, see quality/RepeatChoice.h.
    [[nodiscard]] std::vector<RepeatedPoint> repeatedPoints() const;
    /// Gives each of them one result; the others are gone.
    void resolveRepeats(ResolvedRepeats&& resolved);

    // Problems that the user accepts as they are.

    [[nodiscard]] const Acceptances& acceptances() const { return m_acceptances; }
    /// Accepts problems; person and time become those of now, and a reason that all have is also
    /// that of the edit. Those that are accepted for the same reason already are passed over.
    /// \returns how many are accepted
    std::size_t accept(std::vector<Acceptance> problems);
    /// Opens accepted problems again; what is not accepted is passed over.
    /// \returns how many there are
    std::size_t endAcceptances(std::vector<Acceptance> problems);
    /// Says of each problem whether it is accepted; needed when the acceptances are others than
    /// those of `findProblems`.
    void markAccepted(ProblemList& problems) const;

    /// Replaces the whole design by the grids of these parameters, see design/DesignGenerator.h,
    /// and keeps the parameters. The outcome has a notice in numbers.
    int generateDesign(DesignLines lines, const IDictionary& parameters,
                       Outcome* outcome = nullptr);
    /// The limits of the quality checks, and the grid to generate.
    void setQualityParameters(const IDictionary& parameters);
    void setDesignParameters(const IDictionary& parameters);

    // The checks of quality/CheckKinds.h.

    /// Runs a check, which writes its verdicts on the points in memory; one that only lists does
    /// nothing.
    void run(const CheckKind& check);
    /// What the last run of a check found.
    [[nodiscard]] CheckResult resultOf(const CheckKind& check);

    /// Judges every survey result by the quality parameters. \returns 1
    int checkQuality();
    /// Writes on every design point whether it is surveyed. \returns 1
    int checkEmptyPoints();
    /// Compares every resurvey with the first result. \returns 1
    int checkResurveys();
    /// Runs the checks, which write their verdicts, and finds all problems, see
    /// quality/problems/ProblemFinders.h.
    /// \param kinds  those that are wanted; all when it is empty
    [[nodiscard]] ProblemList findProblems(std::span<const ProblemKind* const> kinds = {});
    /// The limits of the quality check in force, for coordinates in the project's unit.
    [[nodiscard]] QualityLimits qualityLimits() const;
    /// The faults that the last quality check found in one result.
    [[nodiscard]] std::vector<QualityRow> describeQuality(const SurveyPoint& point) const;

    /// Gives the project another coordinate system, keys as in CoordinateRecord.h, and recomputes
    /// the sea heights. The system itself is kept by `get_project_coord_transform`.
    void setCoordSystem(const IDictionary& parameters);
    /// Rewrites the sea height of every result; needed when results or coordinate system are new.
    void recomputeSeaHeights();
    /// Why sea heights were elevations when they were computed last; empty when none was. The log
    /// has got it.
    [[nodiscard]] const QString& seaHeightNotice() const { return m_seaHeightNotice; }

    [[nodiscard]] DesignPoints& designPoints() { return m_design; }
    [[nodiscard]] SurveyPoints& surveyPoints() { return m_survey; }
    /// The description of the project as a whole, keys as in ProjectFile.h. It also holds a
    /// coordinate system: the present one, once that was changed; until then the one of the file,
    /// which may be older.
    [[nodiscard]] IDictionary& project() { return m_project; }
    /// The limits of the quality checks, "qc_param.ini".
    [[nodiscard]] IDictionary& qualityParameters() { return m_qualityParameters; }
    /// The grid to generate, "design_param.ini".
    [[nodiscard]] IDictionary& designParameters() { return m_designParameters; }

    /// Captions of all survey columns, and of those that the user exports, in the user's order.
    [[nodiscard]] const QStringList& surveyCaptions() const { return m_surveyCaptions; }
    [[nodiscard]] QStringList& exportCaptions() { return m_exportCaptions; }

    // The code tables of model/CodeTables.h.
    [[nodiscard]] static QString solutionTypeText(int code);
    [[nodiscard]] static int solutionTypeCode(const QString& text);
    [[nodiscard]] static QString obstacleText(int code);

    void handleEvent(const char* eventName, const char* payload, int reserved) override;

private:
    [[nodiscard]] EditedData editedData();
    std::size_t deleteResults(PointNames&& names);
    /// Makes the change that a new edit holds, and keeps the edit.
    void make(const std::shared_ptr<Edit>& edit);
    /// Keeps an edit that is made, with room for it in `m_unsaved`.
    void keep(const std::shared_ptr<Edit>& edit);
    /// \param read  `Outcome(ProgressReporter&, ImportSummary&, TakenOver<Points>&)`
    template <class Points, class Read>
    int importPoints(const EditKind& kind, const QString& path, Outcome* outcome,
                     ImportSummary* counts, Read read);
    void change(const EditKind& kind, EditScope which, const IDictionary& present,
                const IDictionary& wanted);
    /// \param other  those of these problems that are accepted afterwards
    std::size_t changeAcceptances(const EditKind& kind, const std::vector<Acceptance>& problems,
                                  Acceptances&& other);
    void tellModified(bool wasChanged);
    [[nodiscard]] CheckedData checkedData();
    void run(std::span<const CheckKind* const> checks);
    void reportQuery(const char* payload);
    void applyCoordSystem(const IDictionary& parameters);
    [[nodiscard]] Outcome read(const ProjectPlace& place);
    [[nodiscard]] Outcome write(const ProjectPlace& place);
    [[nodiscard]] Outcome readDatabase(const QString& path, IDictionary& coordSystem);
    /// \param edits  to be added to the history
    [[nodiscard]] Outcome writeDatabase(IDBAdapter& database, const QString& path,
                                        const UnsavedEdits& edits);
    [[nodiscard]] Outcome fillCopy(const ProjectPlace& copy);
    /// Calls `write` unless `path` is a file of the open project.
    template <class Write>
    int exportTo(const QString& path, Outcome* outcome, Write write);

    IHost& m_host; // outlives the manager
    EventSubscription m_subscription;
    DBAdapter m_database;
    ProjectLock m_lock;
    ProjectPlace m_place; ///< of the open project
    OtherSystemHandler m_onOtherSystem;
    DesignPoints m_design;
    SurveyPoints m_survey;
    Acceptances m_acceptances;
    basalt::Dictionary m_project;
    QString m_projectFile; ///< the one that was opened; empty when it could not be read
    QString m_projectFileFault;
    bool m_isSaveOwed = false;
    bool m_isElseChanged = false; ///< by what is no edit
    UnsavedEdits m_unsaved;
    EditHandler m_onEdit;
    QString m_seaHeightNotice;
    basalt::Dictionary m_qualityParameters;
    basalt::Dictionary m_designParameters;
    QStringList m_surveyCaptions;
    QStringList m_exportCaptions;
};
