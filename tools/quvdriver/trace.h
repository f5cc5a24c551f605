// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/firmware.h"

#include "xmlrpccodec.h"

#include <QtCore/QDateTime>
#include <QtCore/QElapsedTimer>

#include <functional>
#include <memory>
#include <mutex>
#include <string>

namespace quv {

/**
 * Tells what the driver does: a line a call of a client, a line an exchange with a firmware. Arguments, answers and texts are never
 * told, nor a command name that the catalogue does not have: who knows what a client puts there. Any number of threads may use it.
 */
class Trace
{
public:
    enum class Form { People, Json }; ///< words, or one JSON object a line
    using Write = std::function<void(const std::string &line)>;

    /// \a write gets whole lines with their ends, one at a time.
    Trace(Form form, Write write);

    /// What \a handle gives, told with how it went; also when it throws.
    XmlRpc::XmlRpcValue call(const MethodCall &call, const std::function<XmlRpc::XmlRpcValue()> &handle);

    /// \a firmware, whose exchanges are told as those of \a machine. The trace must live longer.
    std::unique_ptr<Firmware> watching(std::unique_ptr<Firmware> firmware, const QString &machine);

private:
    class WatchedFirmware;
    struct Line;

    Line begin(const char *what) const;
    void end(const Line &line);

    const Form m_form;
    const Write m_write;
    std::mutex m_mutex{}; ///< held for a line
};

} // namespace quv
