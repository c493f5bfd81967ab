#include "TableList.h"

namespace Orvik::DataModel::MediaAssets::Json::detail {

std::vector<TableMembers> FieldTables()
{
    std::vector<TableMembers> tables;
    AddTimeTables(tables);
    AddEssenceTables(tables);
    AddLocationTables(tables);
    AddStreamTables(tables);
    AddAssetTables(tables);
    AddGroupTables(tables);
    AddOperatorProfileTables(tables);
    return tables;
}

}  // namespace Orvik::DataModel::MediaAssets::Json::detail
