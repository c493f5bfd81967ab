// Timecode texts, jumps and tables: the text form a timecode string accepts, and what equality and
// the order of tables look at.

#include <Orvik/DataModel/MediaAssets/TimeCodeJump.h>
#include <Orvik/DataModel/MediaAssets/TimeCodeString.h>
#include <Orvik/DataModel/MediaAssets/TimeCodeTable.h>

#include <gmock/gmock.h>

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <stdexcept>
#include <string>

using namespace Orvik::DataModel::MediaAssets;
using ::testing::StrEq;
using ::testing::ThrowsMessage;

namespace {

constexpr char kDuplicate[] = "Orvik::DataModel::MediaAssets::SortedVector::Insert: item already present in the collection";

std::shared_ptr<TimeCodeJump> Jump(int64_t at, const char* text, int64_t duration)
{
    return std::make_shared<TimeCodeJump>(TimePoint(at), TimeCodeString(text), duration);
}

TimeCodeTable Table(std::initializer_list<std::shared_ptr<TimeCodeJump>> jumps)
{
    TimeCodeTable table;
    table.FullyQualifiedName(FullyQualifiedName("tc.ltc"));
    table.Standard(TimeCodeStandard::SmptePal25);
    table.Type("LTC");
    for (const auto& jump : jumps)
        table.TimeCodeJumpItems().Insert(jump);
    return table;
}

}  // namespace

TEST(TimeCodeStringFormat, AcceptsAndRejectsExactly)
{
    for (const char* text : {"1:02:03:04", "00:00:00:00", "23:59:59;29", "24:59:59:29", "9:00:00;00"}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(TimeCodeString(text).Value(), text);
    }
    for (const char* text : {"25:00:00:00", "1:2:03:04", "00:60:00:00", "00:00:00:30", "00:00:00:5", "00;00;00;00", "",
                             " 00:00:00:00", "00:00:00:00 ", "-1:00:00:00", "100:00:00:00", "00:00:00:00:00"}) {
        SCOPED_TRACE(text);
        EXPECT_THAT([&] { TimeCodeString{text}; },
                    ThrowsMessage<std::runtime_error>(StrEq(std::string("invalid timeCodeString ") + text)));
    }
}

TEST(TimeCodeStringSet, RefusalKeepsTheStoredText)
{
    TimeCodeString timeCode("10:00:00:00");
    EXPECT_THAT([&] { timeCode.Set("25:00:00:00"); },
                ThrowsMessage<std::runtime_error>(StrEq("invalid timeCodeString 25:00:00:00")));
    EXPECT_EQ(timeCode.Value(), "10:00:00:00");
    EXPECT_TRUE(TimeCodeString().IsEmpty());
}

TEST(TimeCodeJumpEquality, ComparesPointTextAndDuration)
{
    EXPECT_EQ(*Jump(0, "10:00:00:00", 25), *Jump(0, "10:00:00:00", 25));
    EXPECT_NE(*Jump(0, "10:00:00:00", 25), *Jump(0, "10:00:00:00", 26));
    EXPECT_NE(*Jump(0, "10:00:00:00", 25), *Jump(0, "10:00:00;00", 25));
}

TEST(TimeCodeTableEquality, ComparesScalarFieldsAndJumpsByValue)
{
    EXPECT_EQ(Table({Jump(0, "10:00:00:00", 25)}), Table({Jump(0, "10:00:00:00", 25)}));
    TimeCodeTable other = Table({});
    other.Type("VITC");
    EXPECT_NE(Table({}), other);
    EXPECT_NE(Table({Jump(0, "10:00:00:00", 25)}), Table({}));
}

TEST(TimeCodeTableOrder, IsByNameAloneSoTablesOfOneNameStandSideBySide)
{
    SortedVectorSharedPointer<TimeCodeTable> tables;
    tables.Insert(std::make_shared<TimeCodeTable>(Table({})));
    EXPECT_THAT([&] { tables.Insert(std::make_shared<TimeCodeTable>(Table({}))); },
                ThrowsMessage<std::runtime_error>(StrEq(kDuplicate)));
    tables.Insert(std::make_shared<TimeCodeTable>(Table({Jump(0, "10:00:00:00", 25)})));
    EXPECT_EQ(tables.Size(), 2u);
    EXPECT_EQ(tables.Front()->TimeCodeJumpItems().Size(), 1u) << "the later one stands first";
}
