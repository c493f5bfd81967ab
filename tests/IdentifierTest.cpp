// Identifiers, UTF-8 texts and fully qualified names.

#include <Orvik/BusinessEntityModel/BaseTypes/FullyQualifiedName.h>
#include <Orvik/BusinessEntityModel/BaseTypes/Identifier.h>
#include <Orvik/BusinessEntityModel/BaseTypes/Utf8String.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <set>
#include <string>

using namespace Orvik::BusinessEntityModel::BaseTypes;

TEST(IdentifierOrder, IsByteOrderWithPrefixFirstAndNoCaseFolding)
{
    EXPECT_LT(Identifier("A"), Identifier("AB"));
    EXPECT_LT(Identifier("AB"), Identifier("B"));
    EXPECT_GT(Identifier("a"), Identifier("Z"));
    EXPECT_LT(Identifier("z"), Identifier("\xC3\xA9")) << "bytes compare unsigned";
    EXPECT_NE(Identifier("clip"), Identifier("Clip"));
    EXPECT_LT(Identifier(), Identifier("0"));
}

TEST(IdentifierEmpty, IsOneSharedObjectAndANulByteIsNotEmpty)
{
    EXPECT_EQ(&Identifier::Empty(), &Identifier::Empty());
    EXPECT_FALSE(Identifier(std::string("\0", 1)).IsEmpty());
}

TEST(IdentifierGenerate, MakesDistinctUuidShapedTexts)
{
    std::set<std::string> seen;
    for (int i = 0; i < 100; ++i) {
        const std::string text = Identifier::Generate().Value();
        ASSERT_EQ(text.size(), 36u);
        EXPECT_EQ(text[8], '-');
        EXPECT_EQ(text[14], '4') << "version 4";
        EXPECT_TRUE(seen.insert(text).second);
    }
}

TEST(Utf8StringCounters, CountCodePointsWithoutReadingPastTheEnd)
{
    const Utf8String accented("\xC3\xA9");
    EXPECT_EQ(accented.size(), 2u);
    EXPECT_EQ(accented.Characters(), 1u);
    EXPECT_FALSE(accented.IsAscii());
    EXPECT_TRUE(Utf8String("abc").IsAscii());
    EXPECT_EQ(Utf8String("a\xE2\x82\xAC"
                         "b\xF0\x9F\x8E\xA5")
                  .Characters(),
              4u);

    // A lead byte that announces four bytes, alone at the end of an exactly sized buffer.
    const auto truncated = std::make_unique<char[]>(2);
    truncated[0] = 'x';
    truncated[1] = '\xF0';
    EXPECT_EQ(Utf8String::GetCharactersCount(truncated.get(), 2), 2u);
    EXPECT_EQ(Utf8String::GetCharactersCount("\xE2\x82"), 1u);
    EXPECT_EQ(Utf8String::GetCharactersCount("\x80\x80"), 2u) << "stray continuation bytes count one each";
    EXPECT_EQ(Utf8String(std::string("a\0\xC3\xA9", 4)).Characters(), 3u);
}

TEST(FullyQualifiedNameBuilders, JoinWithTheGivenSeparators)
{
    EXPECT_EQ(FullyQualifiedName::Combine("orvik", '.', "pelkoperator").Value(), "orvik.pelkoperator");
    EXPECT_EQ(FullyQualifiedName::Combine("track", '.', 3).Value(), "track.3");
    EXPECT_EQ(FullyQualifiedName::Concat("clip", uint32_t{42}).Value(), "clip42");
    EXPECT_EQ(FullyQualifiedName::Concat("clip", 'A').Value(), "clipA");
    EXPECT_EQ(FullyQualifiedName::CombinePath("a/", "/b").Value(), "a/b");
    EXPECT_EQ(FullyQualifiedName::CombinePath("a", "b").Value(), "a/b");
    EXPECT_EQ(FullyQualifiedName::CombinePath("", "b").Value(), "b");
}
