// The JSON form of assets, resources, streams, groups and operator profiles.

#include "Aliases.h"
#include "ExceptionClass.h"

#include <Orvik/DataModel/MediaAssets/Json.h>

#include <pybind11/pybind11.h>

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

namespace Orvik::Python {
namespace {

using namespace MA;
namespace Json = MA::Json;

template <typename T>
void DefineToJson(py::module_& module)
{
    module.def(
        "to_json", [](const T& value, Json::Layout layout) { return Json::ToJson(value, layout); }, py::arg("value"),
        py::arg("layout") = Json::Layout::Compact,
        "The JSON document of an asset, resource, stream, group or operator profile; JsonError when it cannot "
        "be written.");
}

/// The Python class of an object that a document describes: the group's, for a group's pointer.
template <typename T>
struct ClassOf {
    using type = T;
};
template <typename T>
struct ClassOf<std::shared_ptr<T>> {
    using type = T;
};

template <std::size_t Index>
using Kind = std::variant_alternative_t<Index, Json::AnyDocument>;

template <std::size_t Index>
std::string KindName()
{
    return py::type::of<typename ClassOf<Kind<Index>>::type>().attr("__name__").template cast<std::string>();
}

/// "MediaAsset, ..., Stream or AnglesPelkOperatorMetadataProfile": the classes that documents describe.
template <std::size_t... Index>
std::string KindNames(std::index_sequence<Index...>)
{
    std::string names;
    ((names += (Index == 0 ? "" : Index + 1 == sizeof...(Index) ? " or " : ", ") + KindName<Index>()), ...);
    return names;
}

/// The object a document describes, read as the first kind from `Index` on whose class is `cls`
/// or a base of it (so that AnglesMediaAssetGroup reads a group).
template <std::size_t Index = 0>
py::object ReadAs(const py::object& cls, std::string_view document)
{
    constexpr std::size_t kKinds = std::variant_size_v<Json::AnyDocument>;
    if constexpr (Index == kKinds) {
        throw py::type_error("from_json reads " + KindNames(std::make_index_sequence<kKinds>()) + " documents, not "
                             + py::str(cls.attr("__name__")).cast<std::string>());
    } else {
        const py::handle kind = py::type::of<typename ClassOf<Kind<Index>>::type>();
        const int derived = PyObject_IsSubclass(cls.ptr(), kind.ptr());
        if (derived < 0)
            throw py::error_already_set();
        if (derived == 1)
            return py::cast(Json::FromJson<Kind<Index>>(document));
        return ReadAs<Index + 1>(cls, document);
    }
}

}  // namespace

void BindJson(py::module_& module)
{
    py::enum_<Json::Layout>(module, "JsonLayout",
                            "Compact is the canonical form (equal objects give identical documents); Indented "
                            "is the same document laid out for people.")
        .value("Compact", Json::Layout::Compact)
        .value("Indented", Json::Layout::Indented);

    DefineExceptionClass<Json::JsonError, 1>(module, "JsonError", {{{"path", &Json::JsonError::Path}}});

    DefineToJson<MediaAsset>(module);
    DefineToJson<MediaResource>(module);
    DefineToJson<Stream>(module);
    DefineToJson<MediaAssetGroup>(module);
    DefineToJson<PelkOperatorMetadataProfile>(module);
    DefineToJson<AnglesPelkOperatorMetadataProfile>(module);

    module.def(
        "from_json",
        [](std::string_view document, const py::object& cls) {
            if (!cls.is_none())
                return ReadAs(cls, document);
            Json::AnyDocument read = Json::FromAnyJson(document);
            return std::visit([](auto& held) { return py::cast(std::move(held)); }, read);
        },
        py::arg("document"), py::arg("cls") = py::none(),
        "The object a document describes, of the class `cls` or, without it, of the class the document's schema "
        "names. JsonError (a ValueError) with `path`, the JSON pointer of the offending value, when it cannot be "
        "read.");
    module.def("schema_name", &Json::SchemaName, py::arg("document"),
               "The name in the document's \"schema\" member, telling which class the document describes.");
}

}  // namespace Orvik::Python
