#include "project/ProjectFile.h"

#include "lum_sdk/files/DictionaryXml.h"

#include <QString>

namespace ProjectFile {

bool read(const QString& path, IDictionary& project)
{
    return xml_to_dictionary(path.toStdString(), project);
}

bool write(const QString& path, const IDictionary& project)
{
    return dictionary_to_xml(project, path.toStdString());
}

} // namespace ProjectFile
