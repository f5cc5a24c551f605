// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_global.h>

#include <QtCore/QList>
#include <QtCore/QMetaType>
#include <QtCore/QString>

#include <xmlrpcpp/XmlRpcValue.h>

class FW_Dispenser;

/** A colorant of the machine's colour system. */
class QUVFRAMEWORK_EXPORT FW_Colorant
{
public:
    FW_Colorant() = default;
    explicit FW_Colorant(const QString &code, const QString &name = QString()) : m_code(code), m_name(name) {}
    explicit FW_Colorant(const char *code) : m_code(QString::fromUtf8(code)) {}
    /** From the struct that toXmlRpcValue writes; members may be missing. \throws FW_Exception DE03350 */
    explicit FW_Colorant(const XmlRpc::XmlRpcValue &value);

    QString code() const { return m_code; }
    void setCode(const QString &code) { m_code = code; }
    QString name() const { return m_name; }
    void setName(const QString &name) { m_name = name; }
    bool isEnabled() const { return m_enabled; }
    void setEnabled(bool enabled) { m_enabled = enabled; }
    /** The number under which the colour system knows the colorant; 0 for none. */
    int systemColorantID() const { return m_systemColorantID; }
    void setSystemColorantID(int id) { m_systemColorantID = id; }

    /** Positions of the circuits of the machine's canisters that hold it: of all, or of what is enabled only. */
    QList<int> getPositionsID(const FW_Dispenser &machine, bool onlyEnabled) const;

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    bool operator==(const FW_Colorant &other) const;
    bool operator!=(const FW_Colorant &other) const { return !(*this == other); }

private:
    QString m_code;
    QString m_name;
    bool m_enabled = true;
    int m_systemColorantID = 0;
};

Q_DECLARE_METATYPE(FW_Colorant)
