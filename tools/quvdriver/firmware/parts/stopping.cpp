// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/parts/stopping.h"

#include "firmware/wirereader.h"
#include "firmware/wirereply.h"

namespace quv {

std::vector<FirmwareCode> Stopping::codes()
{
    return {{QStringLiteral("0003"),
             {},
             [this](int, const QList<int> &numbers) { return stopAll(numbers); },
             true}};
}

/// There are four kinds of stops, and this machine knows one way to stand still.
FirmwareReply Stopping::stopAll(const QList<int> &parameters)
{
    constexpr int LastKind = 3;
    WireReader reader(parameters);
    reader.next(0, LastKind);
    if (!reader.isGood() || !reader.atEnd())
        return refused(Reason::WrongParameters);
    for (const auto &part : m_machine.parts())
        part->stop();
    return begun();
}

} // namespace quv
