#pragma once

#include <stdexcept>
#include <string>

namespace Orvik::DataModel::MediaAssets::Json {

/// The one exception of the JSON form, thrown for a document that cannot be read (malformed JSON,
/// a wrong type, a missing, duplicate or unexpected member, an unknown enumeration text, an
/// integer out of range, a dangling reference, an unsupported schema, nesting too deep) and for
/// an object that cannot be written (a metadata profile without codec, text that is not UTF-8, a
/// layout item showing a track that is not the asset's).
///
/// Path() is the JSON pointer of the offending value ("/mediaResources/2/pointer/streams/0"; the
/// empty text is the whole document), Expected() what was expected there ("expected a string,
/// found 17"). The message is that path ("(root)" for the whole document), ": " and what was
/// expected, for instance "/name: expected a string, found 17"; a caller that puts its own words
/// in front (a file name, say) takes the two parts rather than cutting the message apart.
class JsonError : public std::runtime_error {
public:
    JsonError(const std::string& path, const std::string& expected);

    const std::string& Path() const { return path; }
    const std::string& Expected() const { return expected; }

private:
    std::string path;
    std::string expected;
};

}  // namespace Orvik::DataModel::MediaAssets::Json
