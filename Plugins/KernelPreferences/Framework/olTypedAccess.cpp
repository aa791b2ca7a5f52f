#include "Framework/olTypedAccess.h"

#include <boost/core/demangle.hpp>

#include <cstdio>

void reportWrongType(const std::string &key, const std::type_info &held, const std::type_info &required)
{
    std::fprintf(stderr, "getFromMessage : Attribute '%s' has wrong type (is:'%s' != req:'%s')!\n", key.c_str(),
                 boost::core::demangle(held.name()).c_str(), boost::core::demangle(required.name()).c_str());
    olMessage::printBT();
}
