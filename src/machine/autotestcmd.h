// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

#include <memory>
#include <vector>

class FW_Dispenser;
enum class MachineModel;

/**
 * AUTOTEST: tests a dispenser by a long series of movements, pours and other processes. The firmware does not know it: the driver
 * carries out the commands of buildCommandList, one after the other.
 */
class QUVPROTOCOL_EXPORT AutotestCmd : public quv::DescribedCommand<AutotestCmd, SerialProtoCommand>
{
public:
    struct Description;
    using CommandList = std::vector<std::unique_ptr<SerialProtoCommand>>;

    AutotestCmd() = default; ///< as many cycles as is usual for the machine's model
    /** Throws DE03302 for a number that checkAutotestCycles refuses. */
    explicit AutotestCmd(int cycles);
    /** The cycles (int), which may be left out. Throws DE01865 for another type or number. */
    explicit AutotestCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list. Throws DE01866. */
    explicit AutotestCmd(QList<QVariant> list);
    explicit AutotestCmd(bool) = delete; // would read as a number, as would the next two
    explicit AutotestCmd(double) = delete;
    explicit AutotestCmd(const char *) = delete;

    AutotestCmd *clone() const override;
    using DescribedCommand::setDefaults;

    int autotestCycles() const { return m_cycles; } ///< 0 for defaultAutotestCycles of the machine
    static bool checkAutotestCycles(int cycles);    ///< 0 to 500
    static int defaultAutotestCycles(MachineModel model);

    /**
     * The series for the dispenser; none when no enabled circuit has a dosing motor. What is poured by chance differs from call
     * to call. Throws FW_Exception of a command that the dispenser cannot carry out, as a pour by a motor without a speed.
     */
    CommandList buildCommandList(const FW_Dispenser &dispenser) const;

private:
    int m_cycles = 0;
};
