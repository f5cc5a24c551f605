// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <gtest/gtest.h>

namespace testing_base {

/** Fails for each fact that a contract needs and a test left out, since nothing would be compared then. */
class MissingFacts
{
public:
    void require(bool isTold, const char *fact)
    {
        if (isTold)
            return;
        ADD_FAILURE() << "the test does not tell " << fact;
        m_any = true;
    }
    bool any() const { return m_any; }

private:
    bool m_any = false;
};

} // namespace testing_base
