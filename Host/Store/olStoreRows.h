#pragma once

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// The rows of a store as they stand in its file, whether or not anyone here can read their values.
namespace olStoreRows
{

using Key = std::pair<std::string, std::string>; ///< home and key

struct Row {
    std::string type;
    std::string value; ///< JSON
    bool operator==(const Row &other) const { return type == other.type && value == other.value; }
    bool operator!=(const Row &other) const { return !(*this == other); }
};

using Rows = std::map<Key, Row>;

/// What a save makes of the rows; those without a row go.
using Changes = std::map<Key, std::optional<Row>>;

/// A row that a save changed; nothing for one that was not there.
struct Change {
    Key key;
    std::optional<Row> before;
    std::optional<Row> after;
};

struct Save {
    int number = 0;   ///< the later the greater
    std::string time; ///< in UTC, as ISO 8601 has it
    std::string program;
    std::vector<Change> changes; ///< but for those of confidential settings
};

/// The earliest first.
using History = std::vector<Save>;

} // namespace olStoreRows
