// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QtGlobal>

#include <gtest/gtest.h>

#include <utility>
#include <vector>

/** Runs a test without the variables of the environment that tell where a driver's files lie. */
class CleanEnvironment : public testing::Test
{
protected:
    void SetUp() override
    {
        for (const char *name : {"NUA_RW_DATA", "NUA_CONFIG", "NUA_LOG_PATH"}) {
            if (qEnvironmentVariableIsSet(name))
                m_kept.emplace_back(name, qgetenv(name));
            qunsetenv(name);
        }
    }

    void TearDown() override
    {
        for (const char *name : {"NUA_RW_DATA", "NUA_CONFIG", "NUA_LOG_PATH"})
            qunsetenv(name);
        for (const auto &[name, value] : m_kept)
            qputenv(name, value);
    }

private:
    std::vector<std::pair<const char *, QByteArray>> m_kept;
};
