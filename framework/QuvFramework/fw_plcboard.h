// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_device.h>

/** The board through which a production line hears of the machine. */
class QUVFRAMEWORK_EXPORT FW_PLCBoard : public FW_Device
{
public:
    FW_PLCBoard() : FW_Device(PLCBoard) {}
    FW_PLCBoard *clone() const override;
    bool equalTo(const FW_Device &other) const override;
    void setDefaults(bool enabled);

    int plcSignalsValue() const { return m_plcSignalsValue; } ///< a mask of the signals in use
    void setPlcSignalsValue(int value) { m_plcSignalsValue = value; }
    /** Seconds for which the line is told the end of a pour. */
    double endDispSignalActivationTime() const { return m_endDispSignalActivationTime; }
    void setEndDispSignalActivationTime(double seconds) { m_endDispSignalActivationTime = seconds; }
    /** Seconds for which the line is told an error of a pour. */
    double errDispSignalActivationTime() const { return m_errDispSignalActivationTime; }
    void setErrDispSignalActivationTime(double seconds) { m_errDispSignalActivationTime = seconds; }

private:
    int m_plcSignalsValue = 3;
    double m_endDispSignalActivationTime = 1.5;
    double m_errDispSignalActivationTime = 2.5;
};
