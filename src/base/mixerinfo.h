// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "machineinfo.h"

class FW_Mixer;

/** What the driver knows of a can mixer. Travels in a QVariant under its name, also as the map that its struct is. */
class QUVPROTOCOL_EXPORT MixerInfo : public MachineInfo
{
public:
    static constexpr char mixerID_TAG[] = "mixer_id";

    // The device type is that of a mixer, whatever that of the machine.
    MixerInfo();
    MixerInfo(const MachineInfo &machine, int mixerID);
    MixerInfo(const FW_Mixer *mixer, QString connection); ///< as a MachineInfo is made
    /** Throws what MachineInfo throws, then DE03200 without mixer_id. */
    explicit MixerInfo(const XmlRpc::XmlRpcValue &value);
    explicit MixerInfo(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit MixerInfo(int) = delete;
    explicit MixerInfo(double) = delete;
    explicit MixerInfo(const char *) = delete;

    MixerInfo *clone() const override;
    XmlRpc::XmlRpcValue toXmlRpcValue() const override;
    bool equalTo(const MachineInfo &other, bool strict) const override;

    int mixer_id = 0;
};

Q_DECLARE_METATYPE(MixerInfo)
