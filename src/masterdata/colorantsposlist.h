// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QuvFramework/fw_colorant.h>

#include <QtCore/QMetaType>

#include <xmlrpcpp/XmlRpcValue.h>

/**
 * A colorant as a point of sale lists it: with the ways in which its circuits can pour. Travels in a QVariant under its name, also as
 * the map that its struct is.
 */
struct QUVPROTOCOL_EXPORT ColorantsPOSList
{
    static constexpr char dispAlgorithmMask_TAG[] = "disp_algorithm_mask";

    static constexpr int maskNotTold = -1;

    ColorantsPOSList() = default;
    explicit ColorantsPOSList(const FW_Colorant &whichColorant, int mask = maskNotTold);
    /** Throws as FW_Colorant does. A mask that is missing or no int is one that is not told. */
    explicit ColorantsPOSList(const XmlRpc::XmlRpcValue &value);
    explicit ColorantsPOSList(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit ColorantsPOSList(int) = delete;
    explicit ColorantsPOSList(double) = delete;
    explicit ColorantsPOSList(const char *) = delete;

    XmlRpc::XmlRpcValue toXmlRpcValue() const; ///< the colorant's struct, and the mask as one more member

    bool operator==(const ColorantsPOSList &other) const
    {
        return colorant == other.colorant && dispAlgorithmMask == other.dispAlgorithmMask;
    }
    bool operator!=(const ColorantsPOSList &other) const { return !(*this == other); }

    FW_Colorant colorant;
    int dispAlgorithmMask = maskNotTold; ///< 1 volumetric, 2 gravimetric, 4 continuous, added up
};

Q_DECLARE_METATYPE(ColorantsPOSList)
