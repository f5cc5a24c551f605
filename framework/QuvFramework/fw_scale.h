// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_global.h>
#include <QuvFramework/fw_serialport.h>
#include <QuvFramework/scaleutils.h>

#include <QtCore/QMetaType>
#include <QtCore/QString>

#include <xmlrpcpp/XmlRpcValue.h>

/**
 * The setup of the scale on which a dispenser weighs what it doses. Travels in a QVariant under its name, also as the map that its
 * struct is; over XML-RPC a struct of the members below, all of them there.
 */
class QUVFRAMEWORK_EXPORT FW_Scale
{
public:
    static constexpr char MODEL[] = "scale_model";     ///< text
    static constexpr char PORT[] = "scale_port";       ///< the struct of an FW_SerialPort
    static constexpr char UNIT[] = "scale_unit";       ///< int
    static constexpr char MAX_WEIGHT[] = "max_weight"; ///< double
    static constexpr char PRECISION[] = "precision";   ///< int

    FW_Scale() = default;
    /** Kind and place of the link; \a unit is the one that the scale is set to. Numbers are not checked. */
    FW_Scale(const QString &model, const FW_SerialPort &port, ScaleUtils::ScaleUnit unit, double maxWeight,
             int precision);
    /** \throws std::invalid_argument for a member that is missing or of another type */
    explicit FW_Scale(const XmlRpc::XmlRpcValue &value);
    explicit FW_Scale(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit FW_Scale(int) = delete;
    explicit FW_Scale(double) = delete;
    explicit FW_Scale(const char *) = delete;

    const QString &model() const { return m_model; } ///< as its maker calls it
    const FW_SerialPort &port() const { return m_port; }
    ScaleUtils::ScaleUnit unit() const { return m_unit; }
    double maxWeight() const { return m_maxWeight; } ///< in the unit; 0 when it is not known
    int precision() const { return m_precision; }    ///< decimals that the scale tells

    XmlRpc::XmlRpcValue toXmlRpcValue() const;

    bool operator==(const FW_Scale &other) const;
    bool operator!=(const FW_Scale &other) const { return !(*this == other); }

private:
    QString m_model;
    FW_SerialPort m_port;
    ScaleUtils::ScaleUnit m_unit = ScaleUtils::Gram;
    double m_maxWeight = 0;
    int m_precision = 0;
};

Q_DECLARE_METATYPE(FW_Scale)
