// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_global.h>

#include <QtCore/QString>

/**
 * A firmware version as a board reports it: six integers. Gates of the protocol are tables over the first, the family
 * code, and the sixth, the revision.
 */
struct QUVFRAMEWORK_EXPORT FW_Version
{
    FW_Version() = default;
    FW_Version(int family, int hardware, int major, int minor, int patch, int revision);
    /** For those who only ask gates; the four integers between are 0. */
    FW_Version(int family, int revision);

    /** True when a version has been read: no integer of it is negative. */
    bool isValid() const;
    QString toString() const; ///< the six integers joined by dots; empty when not valid

    bool operator==(const FW_Version &other) const;
    bool operator!=(const FW_Version &other) const { return !(*this == other); }

    int m_family = -1;
    int m_hardware = -1;
    int m_major = -1;
    int m_minor = -1;
    int m_patch = -1;
    int m_revision = -1;
};
