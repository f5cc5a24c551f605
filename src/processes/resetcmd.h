// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

/** RESET: resets a module of the machine, or all of them. The position is the serial address, 0 for all. */
class QUVPROTOCOL_EXPORT ResetCmd : public quv::DescribedCommand<ResetCmd, SerialProtoCommand>
{
public:
    struct Description;

    ResetCmd() = default; ///< all modules
    explicit ResetCmd(int position);
    /** The position (int), which may be left out. Throws DE01025 for another type. */
    explicit ResetCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list. Throws DE01026 for another type. */
    explicit ResetCmd(QList<QVariant> list);
    explicit ResetCmd(bool) = delete; // would read as a position, as would the next two
    explicit ResetCmd(double) = delete;
    explicit ResetCmd(const char *) = delete;

    ResetCmd *clone() const override;
    using DescribedCommand::setDefaults;

    /** Of one module on any machine; of all modules, for each enabled circuit of a dispenser. */
    long long getCmdEstimatedExecutionTime(const FW_Machine *machine) const override;
    TString actionString(bool detailed) const override;
};
