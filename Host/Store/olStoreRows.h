#pragma once

#include <QString>

#include <map>
#include <string>
#include <utility>

/// Why a store cannot be used; the reason is a part of a sentence, without the file's name.
struct olStoreFault {
    enum class Kind {
        Damaged,
        Newer,   ///< written by a later version, whose rows are not ours to judge
        Foreign, ///< nothing that ever was a store
        Busy,
        Access
    };

    Kind kind;
    QString reason;
};

/// The rows of a store as they stand in its file, whether or not anyone here can read their values.
struct olStoreRows {
    using Key = std::pair<std::string, std::string>; ///< home and key
    struct Row {
        std::string type;
        std::string value;
        bool operator==(const Row &other) const { return type == other.type && value == other.value; }
    };

    std::map<Key, Row> rows;
};
