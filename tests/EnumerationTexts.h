#pragma once

// The check shared by the enumeration suites: an enumeration's published texts, listed by their
// published numbers, against its three conversions.

#include <gtest/gtest.h>

#include <cctype>
#include <cstddef>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

namespace {

// The words of `list` in order: text i is the text of the value numbered i.
std::vector<std::string> Texts(const std::string& list)
{
    std::istringstream words(list);
    return {std::istream_iterator<std::string>(words), std::istream_iterator<std::string>()};
}

// Value i prints as text i and text i parses to value i (`failed` false). A number outside the
// list prints as text 0; a text outside the list (empty, padded, in another case) parses to
// value 0 with `failed` true.
template <typename E, typename Print, typename Parse, typename ParseFailed>
void ExpectPublishedTexts(const std::vector<std::string>& texts, Print print, Parse parse, ParseFailed parseFailed)
{
    const auto number = [](E value) { return static_cast<int>(value); };  // printable on failure
    for (size_t i = 0; i < texts.size(); ++i) {
        SCOPED_TRACE(texts[i]);
        EXPECT_EQ(print(static_cast<E>(i)), texts[i]);
        EXPECT_EQ(number(parse(texts[i])), static_cast<int>(i));
        bool failed = true;
        EXPECT_EQ(number(parseFailed(texts[i], failed)), static_cast<int>(i));
        EXPECT_FALSE(failed);
    }
    EXPECT_EQ(print(static_cast<E>(texts.size())), texts[0]) << "first number past the end";
    EXPECT_EQ(print(static_cast<E>(-1)), texts[0]);
    std::string otherCase = texts.back();
    otherCase[0] = static_cast<char>(std::isupper(static_cast<unsigned char>(otherCase[0])) ? std::tolower(otherCase[0])
                                                                                            : std::toupper(otherCase[0]));
    for (const std::string& text : {std::string(), " " + texts.back(), texts.back() + " ", otherCase}) {
        SCOPED_TRACE("'" + text + "'");
        EXPECT_EQ(number(parse(text)), 0);
        bool failed = false;
        EXPECT_EQ(number(parseFailed(text, failed)), 0);
        EXPECT_TRUE(failed);
    }
}

}  // namespace

// For an enumeration E of the model's namespace, with ToString(E), ToE(text) and ToE(text, failed).
#define EXPECT_PUBLISHED_TEXTS(E, texts)                                                                                    \
    ExpectPublishedTexts<E>(                                                                                                \
        texts, [](E value) { return ToString(value); }, [](const std::string& text) { return To##E(text); },                \
        [](const std::string& text, bool& failed) { return To##E(text, failed); })
