// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_global.h>

#include <memory>

/** A device of a machine beside its circuits. A machine has one of a kind at most. */
class QUVFRAMEWORK_EXPORT FW_Device
{
public:
    /** The kinds, by the numbers under which the machine knows them. */
    enum Kind {
        Autocap = 0,
        Shelf = 1,
        CanPresenceSensor = 2,
        Humidifier = 5,
        Offline = 6,
        TemperatureSensor = 7,
        BungHoleLocator = 8,
        NozzleLight = 9,
        Turntable = 10,
        Heater = 11,
        Brush = 12,
        NozzleValve = 13,
        Lineartable = 15,
        UltrasoundCleaning = 16,
        Lock = 17,
        Brush2 = 18,
        PLCBoard = 19
    };

    virtual ~FW_Device();
    virtual FW_Device *clone() const = 0; ///< owned by the caller
    /** True for a device of the same kind with the same values. */
    virtual bool equalTo(const FW_Device &other) const = 0;
    /** A device of the kind with its defaults, enabled; null for a number that is no kind. */
    static std::unique_ptr<FW_Device> create(int kind);

    int kind() const { return m_kind; }
    bool isEnabled() const { return m_enabled; }
    void setEnabled(bool enabled) { m_enabled = enabled; }

    bool operator==(const FW_Device &other) const { return equalTo(other); }
    bool operator!=(const FW_Device &other) const { return !equalTo(other); }

protected:
    explicit FW_Device(int kind) : m_kind(kind) {}
    FW_Device(const FW_Device &) = default;
    FW_Device &operator=(const FW_Device &) = default;

private:
    int m_kind = 0;
    bool m_enabled = true;
};
