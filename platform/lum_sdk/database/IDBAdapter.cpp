#include "lum_sdk/database/IDBAdapter.h"

#include "basalt_utilities/KeyList.h"
#include "lum_sdk/ComponentFactory.h"
#include "lum_sdk/database/SqliteAdapter.h"

namespace {

using Factory = ComponentFactory<IDBAdapter>;

Factory makeFactory()
{
    Factory factory("IDBAdapter");
    factory.add(
        "sqlite", "SQLite",
        []() -> IDBAdapter* { return std::make_unique<SqliteAdapter>().release(); },
        [](IDBAdapter* adapter) { std::default_delete<IDBAdapter>()(adapter); });
    return factory;
}

Factory& adapters()
{
    static Factory factory = makeFactory();
    return factory;
}

} // namespace

bool extensible_factory_register_IDBAdapter(const char* name, const char* caption,
                                            IDBAdapter* (*create)(), void (*destroy)(IDBAdapter*))
{
    return adapters().add(name, caption, create, destroy);
}

IDBAdapter* extensible_factory_get_IDBAdapter(const char* name)
{
    return adapters().get(name);
}

void extensible_factory_release_IDBAdapter(IDBAdapter* adapter)
{
    adapters().release(adapter);
}

std::string lum::databaseConnection(std::string_view path)
{
    std::string text = "dbPath=\"";
    for (const char c : path)
        text.append(c == '"' ? 2 : 1, c);
    return text + '"';
}

std::string lum::readOnlyConnection(std::string_view path)
{
    return databaseConnection(path) + ",readOnly=1";
}
