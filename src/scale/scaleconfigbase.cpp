// SPDX-License-Identifier: LGPL-3.0-or-later
#include "scale/scaleconfigbase.h"

#include "base/argumentteller_p.h"
#include "base/decoding_p.h"
#include "scale/scaleconfigbase_p.h"

#include <QuvFramework/fw_scale.h>

namespace quv {

template <>
inline constexpr const char *markOf<FW_Scale> = FW_Scale::MODEL;

} // namespace quv

namespace {

using XmlRpc::XmlRpcValue;

bool isNone(const XmlRpcValue &scale)
{
    int number = -1;
    return DecodeXmlRpcValue(scale, number) && number == 0;
}

/** Null when the value says that there is none. */
std::unique_ptr<FW_Scale> scaleOf(const XmlRpcValue &value, const char *function)
{
    const XmlRpcValue *argument = FindXmlRpcElement(value, 0);
    const XmlRpcValue *member = argument ? FindXmlRpcMember(*argument, ScaleConfigBase::scale_TAG) : nullptr;
    const XmlRpcValue *scale = member ? member : argument;
    if (scale && isNone(*scale))
        return nullptr;
    return std::make_unique<FW_Scale>(quv::decodedValue<FW_Scale>(scale, quv::noScale, function));
}

std::unique_ptr<FW_Scale> copyOf(const std::unique_ptr<FW_Scale> &scale)
{
    return std::unique_ptr<FW_Scale>(scale ? new FW_Scale(*scale) : nullptr);
}

} // namespace

ScaleConfigBase::ScaleConfigBase() = default;

ScaleConfigBase::ScaleConfigBase(const FW_Scale &scale) : m_scale(std::make_unique<FW_Scale>(scale)) {}

ScaleConfigBase::ScaleConfigBase(QList<QVariant> list)
    : m_scale(std::make_unique<FW_Scale>(
          quv::decodedVariant<FW_Scale>(list.value(0), quv::noScaleInList, quv::noScaleInList, Q_FUNC_INFO)))
{}

ScaleConfigBase::ScaleConfigBase(const XmlRpcValue &value) : m_scale(scaleOf(value, Q_FUNC_INFO)) {}

ScaleConfigBase::ScaleConfigBase(const ScaleConfigBase &other) : m_scale(copyOf(other.m_scale)) {}

ScaleConfigBase &ScaleConfigBase::operator=(const ScaleConfigBase &other)
{
    m_scale = copyOf(other.m_scale);
    return *this;
}

ScaleConfigBase::~ScaleConfigBase() = default;

void ScaleConfigBase::setScale(const FW_Scale &scale)
{
    m_scale = std::make_unique<FW_Scale>(scale);
}

XmlRpcValue ScaleConfigBase::xmlrpcvalue(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpcValue array;
    array[0][scale_TAG] = m_scale ? m_scale->toXmlRpcValue() : XmlRpcValue(0);
    return array;
}

QList<QVariant> ScaleConfigBase::variantParameters() const
{
    return {m_scale ? QVariant::fromValue(*m_scale) : QVariant(0)};
}

bool ScaleConfigBase::operator==(const ScaleConfigBase &other) const
{
    return m_scale && other.m_scale ? *m_scale == *other.m_scale : m_scale == other.m_scale;
}

QList<quv::MemberFacts> ScaleConfigBase::memberFacts()
{
    quv::MemberFacts scale{scale_TAG, "struct", quv::tellsScale, true, {}};
    quv::appendRefusal(scale.refusals, "XML-RPC", "missing or another type", quv::noScale);
    quv::appendRefusal(scale.refusals, "list", "missing or another type", quv::noScaleInList);
    return {scale};
}
