// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

#include <functional>

namespace fields {

/** What a value of an object begins as, takes, and does to equality and to copies. */
template <class Object, class Get, class Set, class Value>
void expectField(const char *name, Get get, Set set, Value initial, Value value)
{
    SCOPED_TRACE(name);
    ASSERT_NE(initial, value);
    Object object;
    EXPECT_EQ(std::invoke(get, object), initial);
    const Object copy(object);
    std::invoke(set, object, value);
    EXPECT_EQ(std::invoke(get, object), value);
    EXPECT_EQ(std::invoke(get, copy), initial);
    EXPECT_FALSE(object == copy);
    EXPECT_TRUE(object != copy);
    Object same;
    std::invoke(set, same, value);
    EXPECT_TRUE(object == same);
    EXPECT_FALSE(object != same);
}

} // namespace fields
