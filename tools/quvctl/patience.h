// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "xmlrpcerrors.h"

#include <optional>

namespace quv {

/// Asks a driver again and again, and lets it be gone for a few questions.
class Patience
{
public:
    /// What \a ask gives; nothing for a driver that is gone. \throws TransportError of the fifth time in a row, and what else it throws
    template <class Ask>
    auto answerTo(Ask ask) -> std::optional<decltype(ask())>
    {
        constexpr int mostFailures = 5;
        try {
            std::optional<decltype(ask())> answer = ask();
            m_failures = 0;
            return answer;
        } catch (const TransportError &) {
            if (++m_failures == mostFailures)
                throw;
            return std::nullopt;
        }
    }

private:
    int m_failures = 0;
};

} // namespace quv
