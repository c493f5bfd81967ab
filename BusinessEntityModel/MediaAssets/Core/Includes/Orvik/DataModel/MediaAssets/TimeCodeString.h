#pragma once

#include <string>

namespace Orvik::DataModel::MediaAssets {

/// A checked timecode text: hours (0 to 9, or 00 to 24), minutes and seconds (00 to 59) and
/// frames (00 to 29), separated by ":", with ";" instead before the frames for drop-frame
/// ("1:02:03:04", "23:59:59;29"). Nothing may stand before or after it.
///
/// Only a default-constructed value is empty. Set() and the constructor from text refuse any
/// other text, the empty one included, with std::runtime_error "invalid timeCodeString " followed
/// by the text; the stored value is then unchanged. Equal when the texts are.
class TimeCodeString {
public:
    TimeCodeString() = default;
    /// Implicit, so that a text goes where a timecode text is expected (`jump.TimeCode(text)`);
    /// the conversion checks the text and throws as Set() does.
    TimeCodeString(const std::string& text) { Set(text); }

    void Set(const std::string& text);
    bool IsStringFormatValid(const std::string& text) const;
    const std::string& Value() const { return value_; }
    bool IsEmpty() const { return value_.empty(); }

    bool operator==(const TimeCodeString& other) const { return value_ == other.value_; }
    bool operator!=(const TimeCodeString& other) const { return value_ != other.value_; }

private:
    std::string value_;
};

}  // namespace Orvik::DataModel::MediaAssets
