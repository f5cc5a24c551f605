// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "machineinfo.h"

class FW_Dispenser;

/** What the driver knows of a dispenser. Travels in a QVariant under its name, also as the map that its struct is. */
class QUVPROTOCOL_EXPORT DispenserInfo : public MachineInfo
{
public:
    static constexpr char dispID_TAG[] = "disp_id";
    static constexpr char tintingParallelism_TAG[] = "tinting_parallelism";
    static constexpr char rotatingDisp_TAG[] = "rotating_disp";

    DispenserInfo() = default;
    DispenserInfo(const MachineInfo &machine, int dispenserID, int parallelism, bool isRotating);
    DispenserInfo(const FW_Dispenser *dispenser, QString connection); ///< as a MachineInfo is made
    /** Throws what MachineInfo throws, then DE00744 without disp_id, DE00769 without tinting_parallelism. */
    explicit DispenserInfo(const XmlRpc::XmlRpcValue &value);
    explicit DispenserInfo(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit DispenserInfo(int) = delete;
    explicit DispenserInfo(double) = delete;
    explicit DispenserInfo(const char *) = delete;

    DispenserInfo *clone() const override;
    XmlRpc::XmlRpcValue toXmlRpcValue() const override;
    bool equalTo(const MachineInfo &other, bool strict) const override;

    int disp_id = 0;
    int tinting_parallelism = 0; ///< how many circuits pour at once
    bool rotating_disp = false;  ///< its circuits stand on a turntable
};

Q_DECLARE_METATYPE(DispenserInfo)
