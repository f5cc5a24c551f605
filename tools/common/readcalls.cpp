// SPDX-License-Identifier: LGPL-3.0-or-later
#include "readcalls.h"

#include <utility>

namespace quv {

std::shared_ptr<const ReadCalls::Call> ReadCalls::read(std::string document)
{
    if (auto call = kept(document))
        return call;
    const auto call = std::make_shared<Call>();
    call->call = parseMethodCall(QByteArray::fromRawData(document.data(), static_cast<int>(document.size())),
                                 m_limits);
    call->mayLast = m_mayLast && m_mayLast(call->call);
    if (document.size() > MaxDocument)
        return call;
    const std::lock_guard lock(m_mutex);
    if (m_kept.size() >= MaxKept) // those that are sent on are back at once
        m_kept.clear();
    m_kept.emplace(std::move(document), call);
    return call;
}

std::shared_ptr<const ReadCalls::Call> ReadCalls::kept(const std::string &document) const
{
    if (document.size() > MaxDocument)
        return nullptr;
    const std::lock_guard lock(m_mutex);
    const auto found = m_kept.find(document);
    return found == m_kept.end() ? nullptr : found->second;
}

} // namespace quv
