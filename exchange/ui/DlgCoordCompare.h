#pragma once

#include "exchange/CoordCompare.h"
#include "lum_desktop_sdkx/dialogs/Dialog.h"
#include "protocol/Outcome.h"

class CoordParameterModel;
class CustomTableWidget;
class IDesktopHost;
class ProgressReporter;
class QLabel;
class QSplitter;
class QVBoxLayout;
struct AxisFigures;
struct SurveyRecords;

/// Shows how far the coordinate system of another project is from the current one, when its results
/// could not be imported for that: the parameters of both side by side, for each result the stored
/// and the transformed coordinates with their differences, and below them their figures and what
/// they mean. The table can be saved as a workbook or as CSV.
class DlgCoordCompare final : public Dialog
{
    Q_OBJECT

public:
    /// \param current coordinate parameters of the project
    /// \param path    of the other project's database
    DlgCoordCompare(IDesktopHost& host, const QString& path, const IDictionary& current,
                    SurveyRecords other);

    /// Shows it until the user closes it, with the usual cursor also while another one is set; for
    /// the handler of `DataProcessDataManager::setOtherSystemHandler`.
    static void tell(IDesktopHost& host, const QString& path, SurveyRecords other);

private:
    using Writer = Outcome (*)(const QString& path, const CoordCompare& comparison,
                               int degreeFormat, ProgressReporter& progress);
    /// A form of export with its texts.
    struct Form
    {
        const char* filter;
        const char* success;
        const char* failure;
        Writer write;
    };

    void addHead(int differences, QVBoxLayout& rows);
    void addParameters(CoordParameterModel* parameters, QSplitter& areas);
    void addTable(QSplitter& areas);
    void addFigures(const QString& unit, QVBoxLayout& rows);
    void addSentence(const IDictionary& current, const IDictionary& file, QVBoxLayout& rows);
    void addButtons(QVBoxLayout& rows);
    [[nodiscard]] QLabel* placeLabel(const AxisFigures& figures);
    void exportAs(const Form& form);

    IDesktopHost& m_host; // outlives the dialog
    QString m_path;
    CoordCompare m_comparison;
    CustomTableWidget* m_table = nullptr;
};
