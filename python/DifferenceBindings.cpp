// The first difference between two objects of the model, where operator== says they differ.

#include "Bindings.h"
#include "CommonMembers.h"
#include "Repr.h"

#include <Orvik/DataModel/MediaAssets.h>
#include <Orvik/DataModel/MediaAssets/Difference.h>
#include <Orvik/DataModel/MediaAssets/FirstDifference.h>

#include <pybind11/stl.h>

#include <string>

namespace Orvik::Python {
namespace {

using namespace MA;

template <typename T>
void DefineFirstDifference(py::module_& module)
{
    module.def(
        "first_difference", [](const T& left, const T& right) { return FirstDifference(left, right); }, py::arg("left"),
        py::arg("right"),
        "The first difference between two objects of one class, in the order operator== compares them, or None "
        "when they are equal.");
}

template <typename... T>
void DefineFirstDifferences(py::module_& module)
{
    (DefineFirstDifference<T>(module), ...);
}

}  // namespace

void BindFirstDifference(py::module_& module)
{
    py::class_<Difference> difference(module, "Difference",
                                      "The first field where two objects differ: its path in the model's field "
                                      "names (\"mediaResources[2].id\") and the two values as text.");
    difference.def(py::init<std::string, std::string, std::string>(), py::arg("path"), py::arg("left"), py::arg("right"))
        .def_property_readonly("path", &Difference::Path)
        .def_property_readonly("left", &Difference::Left)
        .def_property_readonly("right", &Difference::Right)
        .def("__repr__", [](const Difference& self) {
            return "Difference(" + Quoted(self.Path()) + ", " + Quoted(self.Left()) + ", " + Quoted(self.Right()) + ")";
        });
    DefineEquality(difference);
    DefineFirstDifferences<MediaAsset, MediaResource, Stream, Essence, Location, Track, TrackLayout, TrackLayoutItem,
                           Annotation, TimeBoundsArray, MetadataProfileDictionary, PelkOperatorMetadataProfile,
                           AnglesPelkOperatorMetadataProfile, MetadataProfile, TimeCodeTable, MediaAssetGroup,
                           MediaAssetGroupItem>(module);
}

}  // namespace Orvik::Python
