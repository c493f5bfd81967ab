#pragma once

// Member names matched against the keys of a document as machine words, without unescaping.

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <string_view>

namespace Orvik::DataModel::MediaAssets::Json::detail {

/// A member name as the words of text that a key spelled exactly so starts with in the document,
/// its closing quote included: a key is matched by at most three word comparisons. Names hold
/// neither quotes nor backslashes, so such a key has no escapes and is the name itself. The
/// tables of names are built while compiling, where a name of more than 23 characters fails.
class MemberKey {
public:
    constexpr MemberKey() = default;
    constexpr explicit MemberKey(std::string_view name)
    {
        if (name.size() >= kWords * sizeof(uint64_t))
            throw std::length_error("member name too long");
        for (size_t at = 0; at <= name.size(); ++at) {
            const auto byte = static_cast<uint64_t>(static_cast<unsigned char>(at < name.size() ? name[at] : '"'));
            const size_t shift = 8 * (__BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__ ? at % 8 : 7 - at % 8);
            words[at / 8] |= byte << shift;
            masks[at / 8] |= uint64_t{0xFF} << shift;
        }
        count = name.size() / 8 + 1;
    }

    /// Whether the key whose text starts at `raw`, in a document padded as simdjson requires, is
    /// this name written without escapes.
    bool Matches(const char* raw) const noexcept
    {
        for (size_t index = 0; index < count; ++index) {
            uint64_t word = 0;
            std::memcpy(&word, raw + index * sizeof(uint64_t), sizeof(uint64_t));
            if ((word & masks[index]) != words[index])
                return false;
        }
        return true;
    }

private:
    static constexpr size_t kWords = 3;
    std::array<uint64_t, kWords> words{};
    std::array<uint64_t, kWords> masks{};
    size_t count = 0;
};

template <size_t N>
constexpr std::array<MemberKey, N> KeysOf(const std::array<std::string_view, N>& names)
{
    std::array<MemberKey, N> keys{};
    for (size_t index = 0; index < N; ++index)
        keys[index] = MemberKey(names[index]);
    return keys;
}

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
