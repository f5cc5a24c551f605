// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "confdata.h"

/**
 * What the structures that describe one device of a dispenser share. A machine without the device still gives a complete
 * row, of the device's defaults, with `cmd_enabled` 0.
 */
template <class Device>
class QUVPROTOCOL_EXPORT DeviceConfData : public ConfData
{
public:
    void clear(); ///< gives the device its defaults
    const Device &device() const { return m_device; }

    static QStringList labels(); ///< of the fields behind `cmd_enabled`, by position

    bool updateLocalData(QString *error) override;
    /**
     * Gives the device to a dispenser, which gets one if it has none. `cmd_enabled` 0 changes nothing. False without a
     * dispenser.
     */
    bool updateConfiguration(FW_Machine *machine, FW_CalibrationProfiles *profiles,
                             QList<int> *extra) const override;
    XmlRpc::XmlRpcValue toXmlRpcValue() const override;

protected:
    // \a function is the signature of the structure's own constructor, which refusals name.
    DeviceConfData();
    DeviceConfData(const FW_Machine *machine, const char *function);
    DeviceConfData(QStringList tokens, int fieldCount, const char *function);
    DeviceConfData(QString row, const char *function);

    Device m_device;
};
