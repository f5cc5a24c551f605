// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_error.h>
#include <QuvFramework/fw_errorlist.h>

#include <algorithm>
#include <vector>

namespace quv {

/// The errors that a machine told before, to find each of those that it tells now among them; their times do not count.
class KnownErrors
{
public:
    /// \a errors must stay as long as this.
    explicit KnownErrors(const FW_ErrorList &errors)
    {
        for (int i = 0; i < errors.size(); ++i)
            m_errors.push_back(errors[i]);
    }

    /// Null for one that was not told. The same error may stand twice in a list, so each is found once.
    const FW_Error *take(const FW_Error &error)
    {
        const auto found =
            std::find_if(m_errors.begin(), m_errors.end(),
                         [&error](const FW_Error *candidate) { return candidate->equalTo(error); });
        if (found == m_errors.end())
            return nullptr;
        const FW_Error *known = *found;
        m_errors.erase(found);
        return known;
    }

private:
    std::vector<const FW_Error *> m_errors{};
};

} // namespace quv
