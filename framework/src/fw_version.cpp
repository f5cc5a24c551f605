// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_version.h>

FW_Version::FW_Version(int family, int hardware, int major, int minor, int patch, int revision)
    : m_family(family),
      m_hardware(hardware),
      m_major(major),
      m_minor(minor),
      m_patch(patch),
      m_revision(revision)
{}

FW_Version::FW_Version(int family, int revision) : FW_Version(family, 0, 0, 0, 0, revision) {}

bool FW_Version::isValid() const
{
    return m_family >= 0 && m_hardware >= 0 && m_major >= 0 && m_minor >= 0 && m_patch >= 0 &&
           m_revision >= 0;
}

QString FW_Version::toString() const
{
    if (!isValid())
        return QString();
    return QStringLiteral("%1.%2.%3.%4.%5.%6")
        .arg(m_family)
        .arg(m_hardware)
        .arg(m_major)
        .arg(m_minor)
        .arg(m_patch)
        .arg(m_revision);
}

bool FW_Version::operator==(const FW_Version &other) const
{
    return m_family == other.m_family && m_hardware == other.m_hardware && m_major == other.m_major &&
           m_minor == other.m_minor && m_patch == other.m_patch && m_revision == other.m_revision;
}
