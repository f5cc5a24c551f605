// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_metatype.h>
#include <QuvFramework/fw_scale.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <stdexcept>

namespace {

using XmlRpc::XmlRpcValue;

const bool isRegistered = RegisterTravellingType<FW_Scale>("FW_Scale");

template <class T>
T required(const XmlRpcValue &value, const char *key)
{
    T field{};
    if (!DecodeXmlRpcValue(value, QLatin1String(key), field))
        throw std::invalid_argument("a member of the scale is missing or of another type");
    return field;
}

} // namespace

FW_Scale::FW_Scale(const QString &model, const FW_SerialPort &port, ScaleUtils::ScaleUnit unit,
                   double maxWeight, int precision)
    : m_model(model),
      m_port(port),
      m_unit(unit),
      m_maxWeight(maxWeight),
      m_precision(precision)
{}

FW_Scale::FW_Scale(const XmlRpcValue &value)
    : m_model(required<QString>(value, MODEL)),
      m_port(required<XmlRpcValue>(value, PORT)),
      m_unit(static_cast<ScaleUtils::ScaleUnit>(required<int>(value, UNIT))),
      m_maxWeight(required<double>(value, MAX_WEIGHT)),
      m_precision(required<int>(value, PRECISION))
{}

XmlRpcValue FW_Scale::toXmlRpcValue() const
{
    XmlRpcValue value;
    EncodeXmlRpcValue(value, MODEL, m_model);
    value[PORT] = m_port.toXmlRpcValue();
    value[UNIT] = static_cast<int>(m_unit);
    value[MAX_WEIGHT] = m_maxWeight;
    value[PRECISION] = m_precision;
    return value;
}

bool FW_Scale::operator==(const FW_Scale &other) const
{
    return m_model == other.m_model && m_port == other.m_port && m_unit == other.m_unit &&
           m_maxWeight == other.m_maxWeight && m_precision == other.m_precision;
}
