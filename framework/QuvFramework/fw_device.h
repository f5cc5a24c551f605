// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_global.h>

/** A device of a machine beside its circuits. A machine has one of a kind at most. */
class QUVFRAMEWORK_EXPORT FW_Device
{
public:
    /** The kinds, by the numbers under which the machine knows them. */
    enum Kind { Autocap = 0, Shelf = 1, Turntable = 10 };

    virtual ~FW_Device();
    virtual FW_Device *clone() const = 0; ///< owned by the caller

    int kind() const { return m_kind; }
    bool isEnabled() const { return m_enabled; }
    void setEnabled(bool enabled) { m_enabled = enabled; }

protected:
    explicit FW_Device(int kind) : m_kind(kind) {}
    FW_Device(const FW_Device &) = default;
    FW_Device &operator=(const FW_Device &) = default;

private:
    int m_kind = 0;
    bool m_enabled = true;
};
