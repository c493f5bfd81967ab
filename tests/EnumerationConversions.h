#pragma once

// The round-trip check shared by the enumeration suites.

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

namespace {

template <typename E>
struct Row {
    E value;
    const char* text;
};

// Every value converts to its exact text and back; value 0 is what unknown numbers print as and
// unknown texts parse to, with `failed` telling the two apart.
template <typename E, size_t N, typename Parse, typename ParseFailed>
void ExpectConvertsBothWays(const Row<E> (&rows)[N], Parse parse, ParseFailed parseFailed)
{
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        EXPECT_EQ(ToString(row.value), row.text);
        bool failed = true;
        EXPECT_EQ(parseFailed(row.text, failed), row.value);
        EXPECT_FALSE(failed);
        EXPECT_EQ(parse(row.text), row.value);
    }
    const E zero = rows[0].value;
    EXPECT_EQ(ToString(static_cast<E>(N)), rows[0].text) << "first number past the end";
    EXPECT_EQ(ToString(static_cast<E>(-1)), rows[0].text);
    for (const std::string& text : {std::string(), std::string(" ") + rows[1].text, std::string(rows[1].text) + " ",
                                   std::string("no such text")}) {
        SCOPED_TRACE("'" + text + "'");
        bool failed = false;
        EXPECT_EQ(parseFailed(text, failed), zero);
        EXPECT_TRUE(failed);
        EXPECT_EQ(parse(text), zero);
    }
}

}  // namespace

#define EXPECT_CONVERTS_BOTH_WAYS(E, rows)                                                         \
    ExpectConvertsBothWays(                                                                        \
        rows, [](const std::string& text) { return To##E(text); },                                 \
        [](const std::string& text, bool& failed) { return To##E(text, failed); })
