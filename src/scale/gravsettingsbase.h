// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QuvFramework/fw_gravimetricsettings.h>

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QVariant>

#include <xmlrpcpp/XmlRpcValue.h>

namespace quv {
struct MemberFacts;
}

/** How circuits are dosed by a scale, each by its position: what SetGravSettingsCmd and GravSettingsAnswer share. */
class QUVPROTOCOL_EXPORT GravSettingsBase
{
public:
    static constexpr char circuitsGravSettings_TAG[] = "circuits_grav_settings";
    static constexpr char positionID_TAG[] = "position_id";

    GravSettingsBase() = default;
    explicit GravSettingsBase(const QMap<int, GravimetricSettings> &settings);
    /**
     * A list of maps, of which each has the position and the members of the settings; of two of one circuit the later holds. Throws
     * DE02408 for anything else, and what GravimetricSettings throws.
     */
    explicit GravSettingsBase(QList<QVariant> list);
    /**
     * A struct with an array of such structs, or an array that begins with it. Throws DE02405 (no struct), DE02406 (no array in
     * it), DE02407 (an element that is no struct or without a position), and what GravimetricSettings throws.
     */
    explicit GravSettingsBase(const XmlRpc::XmlRpcValue &value);
    explicit GravSettingsBase(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit GravSettingsBase(int) = delete;
    explicit GravSettingsBase(double) = delete;
    explicit GravSettingsBase(const char *) = delete;

    const QMap<int, GravimetricSettings> &circuitsGravSettings() const { return m_settings; } ///< by position

    /** An array of one struct; \a ok, when given, becomes true. */
    XmlRpc::XmlRpcValue xmlrpcvalue(bool *ok) const;
    QList<QVariant> variantParameters() const; ///< one list of maps

    bool operator==(const GravSettingsBase &other) const { return m_settings == other.m_settings; }
    bool operator!=(const GravSettingsBase &other) const { return !(*this == other); }

    static QList<quv::MemberFacts> memberFacts();

private:
    QMap<int, GravimetricSettings> m_settings;
};
