// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../quvprotocol_global.h"

#include <QtCore/QList>
#include <QtCore/QVariant>

#include <xmlrpcpp/XmlRpcValue.h>

#include <memory>

class FW_Scale;

namespace quv {
struct MemberFacts;
}

/** The setup of a scale, or that there is none: what SetScaleConfigCmd and GetScaleConfigAnswer share. */
class QUVPROTOCOL_EXPORT ScaleConfigBase
{
public:
    static constexpr char scale_TAG[] = "scale";

    ScaleConfigBase(); ///< no scale
    explicit ScaleConfigBase(const FW_Scale &scale);
    /** The scale, or the map that its struct is. Throws DE02345 for anything else and for nothing. */
    explicit ScaleConfigBase(QList<QVariant> list);
    /**
     * An array that begins with a struct with "scale", or with the scale's own struct; the integer 0 in place of the scale is none.
     * Throws DE03329 for anything else.
     */
    explicit ScaleConfigBase(const XmlRpc::XmlRpcValue &value);
    explicit ScaleConfigBase(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit ScaleConfigBase(int) = delete;
    explicit ScaleConfigBase(double) = delete;
    explicit ScaleConfigBase(const char *) = delete;
    ScaleConfigBase(const ScaleConfigBase &other);
    ScaleConfigBase &operator=(const ScaleConfigBase &other);
    ~ScaleConfigBase();

    void setScale(const FW_Scale &scale); ///< a copy of it takes the place of the one before
    const FW_Scale *scale() const { return m_scale.get(); } ///< null when there is none

    /** An array of one struct with "scale", which is 0 without one; \a ok, when given, becomes true. */
    XmlRpc::XmlRpcValue xmlrpcvalue(bool *ok) const;
    QList<QVariant> variantParameters() const; ///< the scale, or the integer 0

    bool operator==(const ScaleConfigBase &other) const;
    bool operator!=(const ScaleConfigBase &other) const { return !(*this == other); }

    static QList<quv::MemberFacts> memberFacts();

private:
    std::unique_ptr<FW_Scale> m_scale;
};
