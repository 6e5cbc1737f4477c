#pragma once

#include <proj.h>

#include <memory>
#include <string>

/// Owners of PROJ's objects.
namespace lum {

struct ProjDeleter
{
    void operator()(PJ_CONTEXT* context) const { proj_context_destroy(context); }
    void operator()(PJ* object) const { proj_destroy(object); }
    void operator()(PJ_OBJ_LIST* list) const { proj_list_destroy(list); }
    void operator()(PJ_OPERATION_FACTORY_CONTEXT* context) const
    {
        proj_operation_factory_context_destroy(context);
    }
    void operator()(PROJ_CRS_INFO** list) const { proj_crs_info_list_destroy(list); }
    void operator()(PROJ_UNIT_INFO** list) const { proj_unit_list_destroy(list); }
    void operator()(PROJ_CRS_LIST_PARAMETERS* parameters) const
    {
        proj_get_crs_list_parameters_destroy(parameters);
    }
};

template <class Object>
using ProjOwner = std::unique_ptr<Object, ProjDeleter>;

using ProjContext = ProjOwner<PJ_CONTEXT>;
using ProjObject = ProjOwner<PJ>;

/// A context that never asks the network and writes no message to the standard error.
[[nodiscard]] inline ProjContext makeProjContext()
{
    ProjContext context(proj_context_create());
    proj_context_set_enable_network(context.get(), 0);
    proj_log_level(context.get(), PJ_LOG_NONE);
    return context;
}

} // namespace lum
