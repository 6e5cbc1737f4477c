#include "lum_sdk/files/SystemParameter.h"

#include "basalt_utilities/Files.h"
#include "basalt_utilities/ILogger.h"
#include "lum_sdk/files/DictionaryXml.h"

#include <filesystem>

SystemParameter::SystemParameter(std::string userFile) : m_userFile(std::move(userFile)) {}

bool SystemParameter::load(const std::string& path)
{
    basalt::Dictionary installed;
    if (!xml_to_dictionary(path, installed)) // has logged why
        return false;
    m_installed = std::move(installed);
    m_values = m_installed;
    if (!m_userFile.empty() && file_system_check_file(m_userFile) &&
        !xml_to_dictionary(m_userFile, m_values))
        basalt::logWarning("The user's settings are passed over: " + m_userFile);
    return true;
}

bool SystemParameter::save() const
{
    basalt::Dictionary changed;
    for (std::size_t i = 0; i < m_values.size(); ++i) {
        if (m_installed.find(m_values.keyAt(i)) != m_values.valueAt(i))
            changed.set(m_values.keyAt(i), m_values.valueAt(i));
    }
    const std::string folder = std::filesystem::path(m_userFile).parent_path().string();
    return file_system_create_dir(folder) && dictionary_to_xml(changed, m_userFile);
}
