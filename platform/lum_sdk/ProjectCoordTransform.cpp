#include "lum_sdk/ProjectCoordTransform.h"

#include "lum_sdk/ICoordTransform.h"

ICoordTransform& get_project_coord_transform()
{
    static const ICoordTransformFactory::Pointer transform = [] {
        registerCoordComponents();
        return extensible_factory_ICoordTransform().make("coord_wjl", nullptr);
    }();
    return *transform;
}
