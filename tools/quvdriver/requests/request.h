// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QString>

#include <xmlrpcpp/XmlRpcValue.h>

#include <functional>

namespace quv {

/// What a call asks for: [session ID,] command name, arguments.
struct Request
{
    /// Whether a text is the ID of a session.
    using IsSession = std::function<bool(const QString &)>;

    /// \throws CallRefusal DE03101 without a name, DE03102 for a name that is no text
    explicit Request(const XmlRpc::XmlRpcValue &params, const IsSession &isSession = {});

    /// Whether the arguments are those of a request that waits for a change of the answer: at most two structs, the
    /// command's own arguments and the last answer, then interval and timeout.
    bool isWaiting() const;

    QString session{};               ///< its ID; empty for none
    QString name{};                  ///< not looked up; cut when no command has it
    XmlRpc::XmlRpcValue arguments{}; ///< an array
};

} // namespace quv
