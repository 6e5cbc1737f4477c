#include "project/ParameterFiles.h"

#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/Product.h"
#include "lum_sdk/files/DictionaryXml.h"

#include <QCoreApplication>

namespace ParameterFiles {

namespace {

QString notRead(const std::string& path, const QString& reason)
{
    return QCoreApplication::translate("ProjectStore",
                                       "The parameter file \"%1\" cannot be read: %2")
        .arg(QString::fromStdString(path), reason);
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
    if (const QString fault = lum::readDictionaryFile(qualityPath, readQuality); !fault.isEmpty())
        return notRead(qualityPath, fault);
    if (const QString fault = lum::readDictionaryFile(designPath, readDesign); !fault.isEmpty())
        return notRead(designPath, fault);
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
    dictionary_to_xml(design, basalt::toolFolder() + kDesignFile);
    return {};
}

} // namespace ParameterFiles
