#include "State/olHostState.h"

#include <gtest/gtest.h>

#include <set>

namespace
{

TEST(HostState, NoTwoValuesShareAName)
{
    std::set<std::string> names;
    for (const olHostValueBase *value : olHostState::the().values())
        EXPECT_TRUE(names.insert(value->name()).second) << value->name();
}

} // namespace
