#pragma once

// The fuzzer's bytes as a text, and a check that stops the run when a property fails.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

[[maybe_unused]] std::string Text(const uint8_t* data, size_t size)
{
    return std::string(reinterpret_cast<const char*>(data), size);
}

void Check(bool property, const char* what)
{
    if (!property) {
        std::fprintf(stderr, "property failed: %s\n", what);
        std::abort();
    }
}

}  // namespace
