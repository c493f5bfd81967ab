// The operator metadata profiles filed under "orvik.pelkoperator".

#include "Bindings.h"
#include "CameraArgument.h"
#include "CommonMembers.h"
#include "Properties.h"
#include "Repr.h"
#include "TextCasters.h"

#include <Orvik/DataModel/MediaAssets.h>

#include <pybind11/stl.h>

#include <memory>
#include <string>

namespace Orvik::Python {
namespace {

using namespace MA;

/// The model's member-wise copy of a profile: its copy constructor is protected, its assignment
/// is not.
template <typename Profile>
std::shared_ptr<Profile> MemberwiseCopy(const Profile& source)
{
    auto copy = std::make_shared<Profile>();
    *copy = source;
    return copy;
}

}  // namespace

void BindOperatorMetadata(py::module_& module)
{
    using Profile = PelkOperatorMetadataProfile;
    py::class_<Profile, MetadataProfile, std::shared_ptr<Profile>> profile(
        module, "PelkOperatorMetadataProfile",
        "What the slow-motion controller's operators attach to a clip, filed under \"orvik.pelkoperator\". "
        "Equality ignores object_id and the two protection flags. Keywords sit in slots by index.");
    profile.def(py::init<>())
        .def(py::init<const PelkId&>(), py::arg("pelk_id"))
        .def_readonly_static("ZAN3_MAX_KEYWORD", &Profile::Zan3MaxKeyword)
        .def_readonly_static("ZAN3_MAX_KEYWORD_LENGTH", &Profile::Zan3MaxKeywordLength)
        .def_static("static_fully_qualified_name", &Profile::StaticFullyQualifiedName)
        .def_static("static_keys", &Profile::StaticKeys)
        .def_static(
            "empty", [] { return MemberwiseCopy(Profile::Empty()); }, "A new default profile.")
        .ORVIK_PROPERTY(Profile, "server_id", ServerId)
        .ORVIK_PROPERTY(Profile, "page", Page)
        .ORVIK_PROPERTY(Profile, "bank", Bank)
        .ORVIK_PROPERTY(Profile, "clip", Clip)
        .ORVIK_PROPERTY(Profile, "row", Row)
        .def_property(
            "camera", [](const Profile& self) { return CameraText(self.Camera()); },
            [](Profile& self, const std::string& camera) { self.Camera(CameraArgument(camera)); })
        .ORVIK_READONLY(Profile, "has_camera", HasCamera)
        .ORVIK_READONLY(Profile, "pelk_id", PelkId)
        .ORVIK_PROPERTY(Profile, "um_id", UmId)
        .ORVIK_PROPERTY(Profile, "var_id", VarId)
        .ORVIK_PROPERTY(Profile, "rating", Rating)
        .ORVIK_PROPERTY(Profile, "archive_status", ArchiveStatus)
        .ORVIK_PROPERTY(Profile, "user_timecode_type", UserTimecodeType)
        .ORVIK_PROPERTY(Profile, "primary_timecode", PrimaryTimecode)
        .ORVIK_PROPERTY(Profile, "user_timecode", UserTimecode)
        .ORVIK_PROPERTY(Profile, "tod_timecode", TodTimecode)
        .ORVIK_PROPERTY(Profile, "icon", Icon)
        .ORVIK_PROPERTY(Profile, "color", Color)
        .ORVIK_PROPERTY(Profile, "fill_and_key_type", FillAndKeyType)
        .ORVIK_PROPERTY(Profile, "fill_and_key_media_asset_id", FillAndKeyMediaAssetId)
        .def_property("user_protected", &Profile::IsUserProtected,
                      [](Profile& self, bool value) { self.UserProtected(value); })
        .def_property("pelk_ui_protected", &Profile::IsPelkUiProtected,
                      [](Profile& self, bool value) { self.PelkUIProtected(value); })
        .def(
            "keyword", [](const Profile& self, std::size_t index) { return self.Keyword(index); }, py::arg("index"),
            "The keyword in slot `index`, or '' beyond the last slot.")
        .def(
            "set_keyword", [](Profile& self, std::size_t index, const Utf8String& text) { self.Keyword(index, text); },
            py::arg("index"), py::arg("keyword"),
            "Stores `keyword` in slot `index`, adding empty slots up to it; ValueError \"Negative keyword index "
            "...\" for an index of 2**31 or more.")
        .ORVIK_READONLY(Profile, "keywords", Keywords)
        .def(
            "split_keywords",
            [](Profile& self, const Utf8String& text, const Utf8String& separator) { self.Keywords(text, separator); },
            py::arg("text"), py::arg("separator"),
            "Replaces the keywords by the pieces of `text` between occurrences of `separator`.")
        .def("zan3_keywords", &Profile::Zan3Keywords)
        .ORVIK_READONLY(Profile, "keywords_count", KeywordsCount)
        .def("any_keyword", py::overload_cast<>(&Profile::AnyKeyword, py::const_))
        .def("any_keyword", py::overload_cast<const Utf8String&>(&Profile::AnyKeyword, py::const_), py::arg("keyword"))
        .def("clear_keywords", &Profile::ClearKeywords)
        .def("__copy__", &MemberwiseCopy<Profile>)
        .def("__repr__",
             [](const Profile& self) { return "<PelkOperatorMetadataProfile " + Quoted(self.PelkId().ToString()) + ">"; });
    DefineObjectId(profile);

    using AnglesProfile = AnglesPelkOperatorMetadataProfile;
    py::class_<AnglesProfile, MetadataProfile, std::shared_ptr<AnglesProfile>> angles(
        module, "AnglesPelkOperatorMetadataProfile",
        "The clip on the video server that a multi-angle group stands for, filed under the same name as "
        "PelkOperatorMetadataProfile; lookups tell the two apart by class.");
    angles.def(py::init<>())
        .def(py::init<const PelkId&>(), py::arg("pelk_id"))
        .def_static("static_fully_qualified_name", &AnglesProfile::StaticFullyQualifiedName)
        .def_static(
            "empty", [] { return MemberwiseCopy(AnglesProfile::Empty()); }, "A new default profile.")
        .ORVIK_PROPERTY(AnglesProfile, "server_id", ServerId)
        .ORVIK_PROPERTY(AnglesProfile, "page", Page)
        .ORVIK_PROPERTY(AnglesProfile, "bank", Bank)
        .ORVIK_PROPERTY(AnglesProfile, "clip", Clip)
        .ORVIK_READONLY(AnglesProfile, "pelk_id", PelkId)
        .def("__copy__", &MemberwiseCopy<AnglesProfile>)
        .def("__repr__", [](const AnglesProfile& self) {
            return "<AnglesPelkOperatorMetadataProfile " + Quoted(self.PelkId().ToString()) + ">";
        });
    DefineObjectId(angles);
}

}  // namespace Orvik::Python
