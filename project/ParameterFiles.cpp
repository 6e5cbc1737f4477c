#include "project/ParameterFiles.h"

#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/ILogger.h"
#include "basalt_utilities/Product.h"
#include "lum_sdk/files/DictionaryXml.h"
#include "lum_sdk/files/WholeFile.h"

#include <QCoreApplication>

#include <string>
#include <utility>

namespace ParameterFiles {

namespace {

Outcome readFile(const QString& path, IDictionary& parameters)
{
    const QString fault = lum::readDictionaryFile(path.toStdString(), parameters);
    if (fault.isEmpty())
        return Outcome::done();
    return Outcome::failed(
        QCoreApplication::translate("ProjectStore", "The parameter file \"%1\" cannot be read: %2")
            .arg(path, fault));
}

Outcome writeFile(const QString& path, const IDictionary& parameters)
{
    const QString fault = lum::writeWholeFile(path, lum::writeDictionary(parameters));
    if (fault.isEmpty())
        return Outcome::done();
    return Outcome::failed(
        QCoreApplication::translate("ProjectStore", "The parameter file \"%1\" cannot be written.")
            .arg(path),
        "Cannot write \"" + path.toStdString() + "\": " + fault.toStdString());
}

} // namespace

Outcome read(const QString& folder, IDictionary& quality, IDictionary& design)
{
    basalt::Dictionary readQuality;
    basalt::Dictionary readDesign;
    Outcome reading = readFile(folder + QLatin1String(kQualityFile), readQuality);
    if (reading.isDone())
        reading = readFile(folder + QLatin1String(kDesignFile), readDesign);
    if (reading.isDone()) {
        dictionary_copy(readQuality, quality);
        dictionary_copy(readDesign, design);
    }
    return reading;
}

Outcome write(const QString& folder, const IDictionary& quality, const IDictionary& design)
{
    Outcome writing = writeFile(folder + QLatin1String(kQualityFile), quality);
    if (writing.isDone())
        writing = writeFile(folder + QLatin1String(kDesignFile), design);
    return writing;
}

void writeTemplate(const IDictionary& design)
{
    const std::string path = basalt::toolFolder() + kDesignFile;
    const QString fault =
        lum::writeWholeFile(QString::fromStdString(path), lum::writeDictionary(design));
    static std::string told; // the path of the last note: an installation stays read-only
    if (fault.isEmpty() || path == std::exchange(told, path))
        return;
    basalt::logInfo("New projects start from the installed design parameters, since \"" + path +
                    "\" cannot be written: " + fault.toStdString());
}

} // namespace ParameterFiles
