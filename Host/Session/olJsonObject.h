#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <string_view>
#include <vector>

/// A key and its value in an object, as they stand in a file.
struct olJsonMember {
    QString key;
    int line;
    std::string_view value;

    [[nodiscard]] QByteArray text() const { return {value.data(), int(value.size())}; }
};

/// What is wrong with a JSON text, and where.
struct olJsonFault {
    int line;
    QString what;
};

/// An object's members in their order. A key that stands twice is a fault: that is a slip, which must not go unnoticed.
/// The first line is that of the object's beginning.
[[nodiscard]] std::optional<olJsonFault> olReadObject(std::string_view text, int firstLine,
                                                      std::vector<olJsonMember> &members);
