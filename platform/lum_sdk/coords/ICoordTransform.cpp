#include "lum_sdk/coords/ICoordTransform.h"

#include "lum_sdk/coords/CoordWjl.h"

#include <memory>

ICoordTransformFactory& extensible_factory_ICoordTransform()
{
    static ICoordTransformFactory factory("ICoordTransform");
    return factory;
}

bool extensible_factory_register_ICoordTransform(const char* name, const char* caption,
                                                 ICoordTransformFactory::Create create,
                                                 ICoordTransformFactory::Destroy destroy)
{
    return extensible_factory_ICoordTransform().add(name, caption, create, destroy);
}

ICoordTransform* extensible_factory_get_ICoordTransform(const char* name, const char* config)
{
    return extensible_factory_ICoordTransform().get(name, config);
}

void extensible_factory_release_ICoordTransform(ICoordTransform* component)
{
    extensible_factory_ICoordTransform().release(component);
}

void registerCoordComponents()
{
    if (extensible_factory_ICoordTransform().knows("coord_wjl"))
        return;
    extensible_factory_register_ICoordTransform(
        "coord_wjl", "Coordinate transformation",
        [](const char* /*config*/) -> ICoordTransform* {
            return std::make_unique<CoordWjl>().release();
        },
        [](ICoordTransform* component) { std::default_delete<ICoordTransform>()(component); });
}
