// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "firmware/firmware.h"

#include "machine/commanddatalist.h"

#include <QuvFramework/fw_version.h>

#include <functional>

class FW_Machine;
class ProtoCommand;

namespace quv {

/**
 * What a machine's firmware can do, as far as it has told: its version, and the list of its commands. Of a firmware that nobody has asked
 * nothing is known, and all is left to its replies.
 */
class Abilities
{
public:
    /// An exchange with the firmware, at the address of the machine itself.
    using Ask = std::function<FirmwareReply(const QString &code, const QList<int> &parameters)>;

    Abilities() = default; ///< nothing is known
    /// What the firmware of \a machine tells. Nothing is known of one that does not tell its version.
    /// \throws FW_Exception for a reply that cannot be read
    Abilities(const FW_Machine &machine, const Ask &ask);

    /// \throws CallRefusal DE03406 for a command that the firmware's version does not have, DE03407 for one that is not on its list
    void require(const ProtoCommand &command) const;

    /// Whether tints and purges go by the code that tells more of each circuit.
    bool hasTint2() const;

private:
    FW_Version m_version{};
    CommandDataList m_commands{};
};

} // namespace quv
