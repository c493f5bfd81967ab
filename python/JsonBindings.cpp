// The JSON form of assets, resources, streams, groups and operator profiles.

#include "Bindings.h"

#include <Orvik/DataModel/MediaAssets/Json.h>

#include <string_view>

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

/// The object a document describes, read as `schema` names it.
py::object Read(const std::string& schema, std::string_view document)
{
    if (schema == "MediaAsset")
        return py::cast(Json::FromJson<MediaAsset>(document));
    if (schema == "MediaResource")
        return py::cast(Json::FromJson<MediaResource>(document));
    if (schema == "Stream")
        return py::cast(Json::FromJson<Stream>(document));
    if (schema == "MediaAssetGroup" || schema == "AnglesMediaAssetGroup")
        return py::cast(Json::FromJson<std::shared_ptr<MediaAssetGroup>>(document));
    if (schema == "PelkOperatorMetadataProfile")
        return py::cast(Json::FromJson<PelkOperatorMetadataProfile>(document));
    if (schema == "AnglesPelkOperatorMetadataProfile")
        return py::cast(Json::FromJson<AnglesPelkOperatorMetadataProfile>(document));
    throw py::type_error("from_json reads MediaAsset, MediaResource, Stream, MediaAssetGroup, "
                         "PelkOperatorMetadataProfile or AnglesPelkOperatorMetadataProfile documents, not "
                         + schema);
}

}  // namespace

void BindJson(py::module_& module)
{
    py::enum_<Json::Layout>(module, "JsonLayout",
                            "Compact is the canonical form (equal objects give identical documents); Indented "
                            "is the same document laid out for people.")
        .value("Compact", Json::Layout::Compact)
        .value("Indented", Json::Layout::Indented);

    // Released: the class lives as long as the interpreter, past the module's static destructors.
    static const py::handle jsonError = py::exception<Json::JsonError>(module, "JsonError", PyExc_ValueError).release();
    // Set on every instance that the module raises; one raised by Python code reads "".
    jsonError.attr("path") = "";
    py::register_exception_translator([](std::exception_ptr pending) {
        try {
            if (pending)
                std::rethrow_exception(pending);
        } catch (const Json::JsonError& error) {
            py::object instance = py::reinterpret_borrow<py::object>(jsonError)(error.what());
            instance.attr("path") = error.Path();
            PyErr_SetObject(jsonError.ptr(), instance.ptr());
        }
    });

    DefineToJson<MediaAsset>(module);
    DefineToJson<MediaResource>(module);
    DefineToJson<Stream>(module);
    DefineToJson<MediaAssetGroup>(module);
    DefineToJson<PelkOperatorMetadataProfile>(module);
    DefineToJson<AnglesPelkOperatorMetadataProfile>(module);

    module.def(
        "from_json",
        [](std::string_view document, const py::object& cls) {
            const std::string schema =
                cls.is_none() ? Json::SchemaName(document) : py::str(cls.attr("__name__")).cast<std::string>();
            return Read(schema, document);
        },
        py::arg("document"), py::arg("cls") = py::none(),
        "The object a document describes, of the class `cls` or, without it, of the class the document's schema "
        "names. JsonError (a ValueError) with `path`, the JSON pointer of the offending value, when it cannot be "
        "read.");
    module.def("schema_name", &Json::SchemaName, py::arg("document"),
               "The name in the document's \"schema\" member, telling which class the document describes.");
}

}  // namespace Orvik::Python
