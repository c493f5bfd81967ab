#pragma once

// The member names of every table of fields, by the definition of the object in the JSON
// Schema (docs/schema), so that a test holds the tables and the schema side by side.

#include <string_view>
#include <vector>

namespace Orvik::DataModel::MediaAssets::Json::detail {

struct TableMembers {
    std::string_view definition;
    std::vector<std::string_view> names;
};

/// Every table of the codecs, in no particular order.
std::vector<TableMembers> FieldTables();

// One per codec source, each adding the tables it holds.
void AddTimeTables(std::vector<TableMembers>& tables);
void AddEssenceTables(std::vector<TableMembers>& tables);
void AddLocationTables(std::vector<TableMembers>& tables);
void AddStreamTables(std::vector<TableMembers>& tables);
void AddAssetTables(std::vector<TableMembers>& tables);
void AddGroupTables(std::vector<TableMembers>& tables);
void AddOperatorProfileTables(std::vector<TableMembers>& tables);

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
