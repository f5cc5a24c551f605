// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_global.h>

#include <QtCore/QMetaType>

#include <xmlrpcpp/XmlRpcValue.h>

/** By how far and how often a scale corrects the pour of a circuit. */
struct QUVFRAMEWORK_EXPORT GravimetricSettings
{
    double tolerance = 0.05; ///< grams
    int maxCorrections = 3;

    GravimetricSettings() = default;
    GravimetricSettings(double theTolerance, int corrections)
        : tolerance(theTolerance),
          maxCorrections(corrections)
    {}
    /** From a struct of the members; one that is missing has its default. \throws FW_Exception DE03350 */
    explicit GravimetricSettings(const XmlRpc::XmlRpcValue &value);
    /** The same for a circuit with this pump (FW_DosingMotor::setPumpType); the defaults of all pumps are alike. */
    GravimetricSettings(const XmlRpc::XmlRpcValue &value, int pumpType, int pumpValue);

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    bool operator==(const GravimetricSettings &other) const;
    bool operator!=(const GravimetricSettings &other) const { return !(*this == other); }
};

Q_DECLARE_METATYPE(GravimetricSettings)
