#pragma once

#include "State/olHome.h"
#include "State/olValue.h"

#include <QByteArray>
#include <QString>
#include <boost/any.hpp>

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// What a store holds.
namespace olStoreRows
{

using Key = std::pair<olHome, std::string>;
using Values = std::map<Key, boost::any>;

/// A value as it stands in the file, whether or not anyone here can read it.
struct Row {
    std::string type;
    std::string value; ///< JSON
    bool operator==(const Row &other) const { return type == other.type && value == other.value; }
    bool operator!=(const Row &other) const { return !(*this == other); }

    [[nodiscard]] static Row of(const boost::any &value) { return {olValue::typeName(value), olValue::toJson(value)}; }

    /// Empty where it cannot be understood.
    [[nodiscard]] boost::any parsed() const { return olValue::fromJson(type, QByteArray::fromStdString(value)); }
};

/// Of one setting; nothing where it had no row, or has none any more.
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

struct Contents {
    std::map<Key, Row> rows;
    Values values; ///< but for rows whose value cannot be understood
    History history;
    std::string seal; ///< differs where the rows do; empty where there is no store
    QByteArray file;  ///< that holds it all
    QString notice;   ///< where these are not the file's values, why; to be told to the person, once
};

/// As the file has it.
[[nodiscard]] inline const char *nameOf(olHome home) { return home == olHome::Record ? "record" : "service"; }

} // namespace olStoreRows
