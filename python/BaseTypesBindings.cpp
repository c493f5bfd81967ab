// Metadata profiles and the dictionary that files them by name.

#include "Bindings.h"
#include "References.h"
#include "Repr.h"
#include "TextCasters.h"

#include <Orvik/DataModel/MediaAssets.h>

#include <pybind11/stl.h>

#include <cstddef>
#include <memory>
#include <stdexcept>

namespace Orvik::Python {
namespace {

using MA::FullyQualifiedName;
using MA::MetadataProfile;
using MA::MetadataProfileDictionary;

/// The profile filed under `name`, shared with the dictionary. KeyError with the library's text
/// when there is none.
std::shared_ptr<MetadataProfile> SharedProfile(const MetadataProfileDictionary& dictionary, const FullyQualifiedName& name)
{
    const MetadataProfile* profile = nullptr;
    try {
        profile = &dictionary.At(name);
    } catch (const std::out_of_range& error) {
        throw py::key_error(error.what());
    }
    for (const auto& value : dictionary.Values())
        if (value.get() == profile)
            return value;
    return nullptr;
}

}  // namespace

void BindBaseTypes(py::module_& module)
{
    py::class_<MetadataProfile, std::shared_ptr<MetadataProfile>>(
        module, "MetadataProfile",
        "Base of the metadata profiles: a typed set of values filed in a dictionary under the "
        "profile's fixed name. Profiles compare by value.")
        .def_property_readonly("fully_qualified_name", &MetadataProfile::FullyQualifiedName)
        .def("clone", &MetadataProfile::Clone)
        .def("__deepcopy__", [](const MetadataProfile& self, const py::dict&) { return self.Clone(); })
        .def("__str__", &MetadataProfile::ToString)
        .def(
            "__eq__", [](const MetadataProfile& self, const MetadataProfile& other) { return self == other; },
            py::is_operator())
        .def(
            "__ne__", [](const MetadataProfile& self, const MetadataProfile& other) { return self != other; },
            py::is_operator());

    py::class_<MetadataProfileDictionary, std::shared_ptr<MetadataProfileDictionary>>(
        module, "MetadataProfileDictionary",
        "At most one metadata profile per name, in byte order of the names. A plain copy shares "
        "the profiles; clone() copies them. Looking up a missing name raises KeyError.")
        .def(py::init<>())
        .def("__len__", &MetadataProfileDictionary::Size)
        .def("__contains__",
             [](const MetadataProfileDictionary& self, const FullyQualifiedName& name) { return self.Contains(name); })
        .def("__iter__", [](const MetadataProfileDictionary& self) { return py::iter(py::cast(self.Keys())); })
        .def("__getitem__", &SharedProfile)
        .def("__delitem__",
             [](MetadataProfileDictionary& self, const FullyQualifiedName& name) {
                 SharedProfile(self, name);
                 self.Erase(name);
             })
        .def(
            "get",
            [](const MetadataProfileDictionary& self, const FullyQualifiedName& name) {
                return OrNone(self.Contains(name) ? SharedProfile(self, name) : nullptr);
            },
            "The profile filed under `name`, or None.")
        .def("keys", &MetadataProfileDictionary::Keys)
        .def("values", &MetadataProfileDictionary::Values)
        .def("items",
             [](const MetadataProfileDictionary& self) {
                 py::list items;
                 const auto keys = self.Keys();
                 const auto values = self.Values();
                 for (std::size_t i = 0; i < keys.size(); ++i)
                     items.append(py::make_tuple(keys[i], values[i]));
                 return items;
             })
        .def("set", &MetadataProfileDictionary::Set, py::arg("profile"),
             "Files `profile` (shared, not copied) under its own name, replacing one of that name. "
             "None raises ValueError.")
        .def(
            "erase", [](MetadataProfileDictionary& self, const FullyQualifiedName& name) { return self.Erase(name); },
            "True when an entry was removed.")
        .def("clear", &MetadataProfileDictionary::Clear)
        .def("deep_copy", &MetadataProfileDictionary::DeepCopy, py::arg("source"),
             "Empties this dictionary, then fills it with clones of the source's profiles; copying a "
             "dictionary into itself leaves it empty.")
        .def("clone", &MetadataProfileDictionary::Clone)
        .def("__deepcopy__", [](const MetadataProfileDictionary& self, const py::dict&) { return self.Clone(); })
        .def("__copy__", [](const MetadataProfileDictionary& self) { return MetadataProfileDictionary(self); })
        .def(
            "__eq__",
            [](const MetadataProfileDictionary& self, const MetadataProfileDictionary& other) { return self == other; },
            py::is_operator())
        .def("__repr__", [](const MetadataProfileDictionary& self) {
            return "MetadataProfileDictionary(" + Repr(py::cast(self.Keys())) + ")";
        });
}

}  // namespace Orvik::Python
