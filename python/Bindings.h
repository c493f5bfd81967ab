#pragma once

// The binding functions of the module orvik_media_assets, one per area of the model, each in its
// <Area>Bindings.cpp; Module.cpp calls them in this order.

#include "Aliases.h"

namespace Orvik::Python {

void BindBaseTypes(py::module_& module);
void BindTimeValues(py::module_& module, py::module_& timePoints);
void BindTimeTexts(py::module_& timePoints);
void BindEnumerations(py::module_& module);
void BindIdentifiers(py::module_& module);
void BindEssences(py::module_& module);
void BindLocations(py::module_& module);
void BindStreams(py::module_& module);
void BindTracks(py::module_& module);
void BindOperatorMetadata(py::module_& module);
void BindMediaAsset(py::module_& module);
void BindGroups(py::module_& module);
void BindFirstDifference(py::module_& module);

}  // namespace Orvik::Python
