// Prints the member names of every table of fields of the JSON codecs, one definition per line
// ("definition name name ..."), for check_field_tables.py to hold against docs/schema.

#include "TableList.h"

#include <iostream>

int main()
{
    for (const auto& table : Orvik::DataModel::MediaAssets::Json::detail::FieldTables()) {
        std::cout << table.definition;
        for (const std::string_view name : table.names)
            std::cout << ' ' << name;
        std::cout << '\n';
    }
}
