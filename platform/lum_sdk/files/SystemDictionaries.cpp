#include "lum_sdk/files/SystemDictionaries.h"

#include "basalt_utilities/Product.h"

SystemParameter& get_system_config_parameter()
{
    static SystemParameter parameter;
    return parameter;
}

SystemParameter& get_system_ini_parameter()
{
    static SystemParameter parameter(basalt::settingsFolder() + "/settings.xml");
    return parameter;
}

IDictionary& get_system_status_dictionary()
{
    static basalt::Dictionary dictionary;
    return dictionary;
}
