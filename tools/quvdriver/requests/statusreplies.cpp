// SPDX-License-Identifier: LGPL-3.0-or-later
#include "requests/statusreplies.h"

#include <algorithm>

namespace quv {

QByteArray StatusReplies::find(const StatusSource &source) const
{
    const std::lock_guard lock(m_mutex);
    const auto found = std::find_if(m_replies.begin(), m_replies.end(),
                                    [&](const Reply &reply) { return reply.source == source; });
    return found == m_replies.end() ? QByteArray() : found->document;
}

void StatusReplies::keep(const StatusSource &source, const QByteArray &document)
{
    const std::lock_guard lock(m_mutex);
    if (m_replies.size() < MaxKept)
        m_replies.resize(m_replies.size() + 1);
    m_replies[m_next] = {source, document};
    m_next = (m_next + 1) % MaxKept;
}

} // namespace quv
