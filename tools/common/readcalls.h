// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "xmlrpccodec.h"

#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <unordered_map>

namespace quv {

/// Reads calls, and keeps short ones: a client that watches a machine sends the same document again and again. Any number of
/// threads may use it.
class ReadCalls
{
public:
    using MayLast = std::function<bool(const MethodCall &call)>;

    static constexpr std::size_t MaxKept = 64;
    static constexpr std::size_t MaxDocument = 1024; ///< bytes of one that is kept

    struct Call
    {
        MethodCall call{};
        bool mayLast = false;
    };

    ReadCalls(const XmlRpcLimits &limits, MayLast mayLast) : m_limits(limits), m_mayLast(std::move(mayLast))
    {}

    /// \throws CodecError
    std::shared_ptr<const Call> read(std::string document);

private:
    std::shared_ptr<const Call> kept(const std::string &document) const;

    const XmlRpcLimits m_limits;
    const MayLast m_mayLast;
    mutable std::mutex m_mutex{}; ///< guards what follows
    std::unordered_map<std::string, std::shared_ptr<const Call>> m_kept{};
};

} // namespace quv
