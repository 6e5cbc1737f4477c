#include "lum_sdk/coords/ProjectCoordTransform.h"

#include "lum_sdk/coords/ICoordTransform.h"

ICoordTransform& get_project_coord_transform()
{
    static const ICoordTransformFactory::Pointer transform = [] {
        registerCoordComponents();
        return extensible_factory_ICoordTransform().make("coord_wjl", nullptr);
    }();
    return *transform;
}
