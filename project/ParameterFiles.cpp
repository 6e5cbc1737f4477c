#include "project/ParameterFiles.h"

#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/Paths.h"
#include "lum_sdk/DictionaryXml.h"

#include <QCoreApplication>

namespace ParameterFiles {

namespace {

constexpr const char* kTemplateFolder =
    "$(APP_DIR)/../etc/Tarvona/config/Skyquill/Tool/DataProcess5";

QString notRead(const std::string& path)
{
    return QCoreApplication::translate("ProjectStore",
                                       "The parameter file \"%1\" is missing or damaged.")
        .arg(QString::fromStdString(path));
}

QString notWritten(const std::string& path)
{
    return QCoreApplication::translate("ProjectStore",
                                       "The parameter file \"%1\" cannot be written.")
        .arg(QString::fromStdString(path));
}

} // namespace

QString read(const QString& folder, IDictionary& quality, IDictionary& design)
{
    const std::string qualityPath = folder.toStdString() + kQualityFile;
    const std::string designPath = folder.toStdString() + kDesignFile;
    basalt::Dictionary readQuality;
    basalt::Dictionary readDesign;
    if (!xml_to_dictionary(qualityPath, readQuality))
        return notRead(qualityPath);
    if (!xml_to_dictionary(designPath, readDesign))
        return notRead(designPath);
    dictionary_copy(readQuality, quality);
    dictionary_copy(readDesign, design);
    return {};
}

QString write(const QString& folder, const IDictionary& quality, const IDictionary& design)
{
    const std::string qualityPath = folder.toStdString() + kQualityFile;
    const std::string designPath = folder.toStdString() + kDesignFile;
    if (!dictionary_to_xml(quality, qualityPath))
        return notWritten(qualityPath);
    if (!dictionary_to_xml(design, designPath))
        return notWritten(designPath);
    dictionary_to_xml(design, basalt::resolvedPath(kTemplateFolder) + kDesignFile);
    return {};
}

} // namespace ParameterFiles
