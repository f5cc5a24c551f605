// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/confprotoanswer.h"
#include "gravsettingsbase.h"

/** The answer to GET_GRAV_SETTINGS: how the circuits are dosed by a scale. */
class QUVPROTOCOL_EXPORT GravSettingsAnswer : public ConfProtoAnswer, public GravSettingsBase
{
public:
    GravSettingsAnswer() = default;
    explicit GravSettingsAnswer(const QMap<int, GravimetricSettings> &settings);
    // As GravSettingsBase, with its refusals.
    explicit GravSettingsAnswer(const XmlRpc::XmlRpcValue &value);
    explicit GravSettingsAnswer(QList<QVariant> &list);
    explicit GravSettingsAnswer(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit GravSettingsAnswer(int) = delete;
    explicit GravSettingsAnswer(double) = delete;
    explicit GravSettingsAnswer(const char *) = delete;

    GravSettingsAnswer *clone() const override;
    bool equalTo(const ProtoAnswer *other) const override; ///< the same class and the same settings
    XmlRpc::XmlRpcValue toXmlRpcValue() const override;    ///< xmlrpcvalue
};
