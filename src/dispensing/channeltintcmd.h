// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

#include <QuvFramework/formula.h>

class FW_Dispenser;

/**
 * CHANNEL_TINT: one of the two channels of a dual machine pours a formula. Only an empty one can be built without its
 * dispenser.
 */
class QUVPROTOCOL_EXPORT ChannelTintCmd : public quv::DescribedCommand<ChannelTintCmd, SerialProtoCommand>
{
public:
    struct Description;

    ChannelTintCmd() = default; ///< channel 0, which no machine has
    // The others throw what checkChannelID and then checkFormula fail with.
    /** Throws DE01423 when the formula cannot be copied. */
    ChannelTintCmd(int channel, const Formula &formula, const FW_Dispenser *dispenser);
    /** Channel (int) and formula. Throws DE01424 for another channel type, DE01425 for no formula. */
    ChannelTintCmd(const XmlRpc::XmlRpcValue &value, const FW_Dispenser *dispenser);
    /**
     * The same as a list. Throws DE01426 for another channel type, DE01428 for no formula, DE01427 when it cannot be
     * read.
     */
    ChannelTintCmd(QList<QVariant> list, const FW_Dispenser *dispenser);

    ChannelTintCmd *clone() const override;
    void setDefaults(); ///< channel 0; the formula stays

    /** As for a TINT with criterion 2 that has the channel in the place of the queues and leaves out what has no steps. */
    QList<int> serialParameters(int family) const override;

    QString commandString() const override; ///< channelIDStr()
    TString actionString(bool detailed) const override;

    int channelID() const { return m_channelID; }
    const Formula &formula() const { return m_formula; }
    QString channelIDStr() const; ///< "Channel 1 dosing", translated

    /**
     * False and \a error filled when the command's machine cannot pour the formula: DE01109 no dispenser, DE01433 a quantity
     * that is not above 0, DE01434 nothing to pour, DE01435 steps, DE01436 speed, or an error of the formula itself.
     */
    bool checkFormula(FW_DriverError &error) const;
    /** False and \a error filled: DE01429 no dispenser, DE01432 not 1 or 2, DE01430 not on this machine, DE01431 not dual. */
    static bool checkChannelID(int channelID, const FW_Dispenser *dispenser, FW_DriverError &error);

private:
    void requireChannel(const char *function) const;

    int m_channelID = 0;
    Formula m_formula;
};
