// The code-point counters read only the bytes they are given (AddressSanitizer watches the exact
// buffer) and count at most one code point per byte and at least one per four.

#include <Orvik/BusinessEntityModel/BaseTypes/Utf8String.h>

#include "FuzzText.h"

#include <cstring>
#include <memory>

using Orvik::BusinessEntityModel::BaseTypes::Utf8String;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const auto exact = std::make_unique<char[]>(size);
    if (size != 0)
        std::memcpy(exact.get(), data, size);
    const size_t count = Utf8String::GetCharactersCount(exact.get(), size);
    Check(count <= size && count * 4 >= size, "between a quarter and all of the bytes");
    Check(Utf8String(data, size).Characters() == count, "the member counter agrees");
    const std::string text = Text(data, size);
    Check(Utf8String::GetCharactersCount(text.c_str())
              == Utf8String::GetCharactersCount(text.c_str(), std::strlen(text.c_str())),
          "the zero-terminated counter stops at the first zero");
    return 0;
}
