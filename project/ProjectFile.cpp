#include "project/ProjectFile.h"

#include "lum_sdk/files/DictionaryXml.h"
#include "lum_sdk/files/WholeFile.h"

#include <QCoreApplication>

namespace ProjectFile {

Outcome read(const QString& path, IDictionary& project)
{
    const QString fault = lum::readDictionaryFile(path.toStdString(), project);
    if (fault.isEmpty())
        return Outcome::done();
    return Outcome::failed(
        QCoreApplication::translate("ProjectStore",
                                    "The project file \"%1\" cannot be read (%2): what it says "
                                    "about the project is neither shown nor saved.")
            .arg(path, fault));
}

Outcome write(const QString& path, const IDictionary& project)
{
    const QString fault = lum::writeWholeFile(path, lum::writeDictionary(project));
    if (fault.isEmpty())
        return Outcome::done();
    return Outcome::failed(
        QCoreApplication::translate("ProjectStore", "The project file \"%1\" cannot be written.")
            .arg(path),
        "Cannot write \"" + path.toStdString() + "\": " + fault.toStdString());
}

} // namespace ProjectFile
