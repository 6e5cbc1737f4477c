#include "project/ui/CoordSystemQuestions.h"

#include "basalt_utilities/Dictionary.h"
#include "exchange/SameCoordSystem.h"
#include "lum_desktop_sdkx/coords/CoordSystemRows.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_sdk/coords/CoordStoredForm.h"
#include "lum_sdk/coords/EpsgSystem.h"
#include "lum_sdk/coords/LengthUnit.h"
#include "lum_sdk/Text.h"
#include "model/CoordinateRecord.h"
#include "project/DataProcessDataManager.h"

#include <QCoreApplication>
#include <QLocale>

namespace CoordSystemQuestions {

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("CoordSystemQuestions", text);
}

bool isYes(QWidget* parent, const QString& text, const QString& details)
{
    using Button = LumMessageBox::Button;
    return LumMessageBox::question(
               parent, translated(QT_TRANSLATE_NOOP("CoordSystemQuestions", "Coordinate System")),
               text, LumMessageBox::Buttons(Button::Yes) | Button::No, details) == Button::Yes;
}

QString nameOf(const IDictionary& system)
{
    if (!CoordSystemRows::isSet(system))
        return translated(QT_TRANSLATE_NOOP("CoordSystemQuestions", "none"));
    const QString id = lum::toQString(system.text(CoordinateRecord::kId));
    const QString code = id.section(QLatin1String("EPSG:"), 1);
    if (code.isEmpty())
        return translated(QT_TRANSLATE_NOOP("CoordSystemQuestions", "by its own parameters"));
    return id + QLatin1Char(' ') + QString::fromStdString(epsgName(code.toStdString()));
}

/// What becomes of the numbers' unit; null when it stays.
QString unitChange(const IDictionary& present, const IDictionary& chosen)
{
    const std::string before = lum::symbolOf(lum::lengthUnitOf(present));
    const std::string after = lum::symbolOf(lum::lengthUnitOf(chosen));
    if (before == after)
        return {};
    return QStringLiteral("\n\n") +
           translated(QT_TRANSLATE_NOOP("CoordSystemQuestions",
                                        "Their unit is another: what is %1 now will count as %2."))
               .arg(lum::toQString(before), lum::toQString(after));
}

/// \param chosen  in stored form, as the panel gives it
bool isSame(const IDictionary& present, const IDictionary& chosen)
{
    basalt::Dictionary stored(present);
    lum::toStoredForm(stored);
    return sameCoordSystem(stored, chosen);
}

} // namespace

bool mayBegin(QWidget* parent, const IDictionary& chosen)
{
    return CoordSystemRows::isSet(chosen) ||
           isYes(
               parent,
               translated(QT_TRANSLATE_NOOP("CoordSystemQuestions",
                                            "No coordinate system is chosen. Make the project "
                                            "without one?")),
               translated(QT_TRANSLATE_NOOP(
                   "CoordSystemQuestions",
                   "Without one, latitude and longitude cannot be turned into north and east, nor "
                   "back. It can be chosen later in the project settings.")));
}

bool mayChange(QWidget* parent, const IDictionary& present, const IDictionary& chosen)
{
    DataProcessDataManager& manager = DataProcessDataManager::instance();
    const std::size_t designed = manager.designPoints().pointCount();
    const std::size_t surveyed = manager.surveyPoints().pointCount();
    if (designed + surveyed == 0 || isSame(present, chosen))
        return true;
    const auto shown = [](std::size_t count) {
        return QLocale().toString(static_cast<qulonglong>(count));
    };
    return isYes(
        parent,
        translated(
            QT_TRANSLATE_NOOP("CoordSystemQuestions",
                              "This project holds points (designed: %1, survey results: %2). "
                              "Change its coordinate system?"))
            .arg(shown(designed), shown(surveyed)),
        translated(
            QT_TRANSLATE_NOOP(
                "CoordSystemQuestions",
                "Now: %1.\nThen: %2.\n\nThe positions stay the numbers that they are: nothing "
                "is converted. They then count as positions in the new system, which "
                "is another place on the ground. Sea heights are computed anew."))
                .arg(nameOf(present), nameOf(chosen)) +
            unitChange(present, chosen));
}

} // namespace CoordSystemQuestions
