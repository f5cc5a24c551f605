// SPDX-License-Identifier: LGPL-3.0-or-later
#include "scale/gravsettingsbase.h"

#include "base/argumentteller_p.h"
#include "base/decoding_p.h"
#include "base/frameworkrefusals_p.h"
#include "base/requeststruct_p.h"
#include "scale/gravsettingsbase_p.h"

#include <QuvFramework/fw_dosingmotor.h>

namespace quv {

GravimetricSettings gravSettingsOf(const XmlRpc::XmlRpcValue &value, const Refusal &refusal,
                                   const char *function)
{
    return madeOrRefused(refusal, function, [&value] {
        const FW_DosingMotor usual;
        return GravimetricSettings(value, usual.pumpType(), usual.pumpValue());
    });
}

} // namespace quv

namespace {

using XmlRpc::XmlRpcValue;
using Settings = QMap<int, GravimetricSettings>;

/** The circuits of an array of structs. */
Settings settingsOf(const XmlRpcValue &array, const quv::Refusal &refusal, const char *function)
{
    Settings settings;
    for (int i = 0; i < array.size(); ++i) {
        int position = 0;
        if (!DecodeXmlRpcValue(array[i], GravSettingsBase::positionID_TAG, position))
            quv::throwRefusal(refusal, function);
        settings[position] = quv::gravSettingsOf(array[i], refusal, function);
    }
    return settings;
}

Settings settingsOf(const XmlRpcValue &value, const char *function)
{
    const bool isArray = value.getType() == XmlRpcValue::TypeArray;
    const XmlRpcValue *request = isArray ? FindXmlRpcElement(value, 0) : &value;
    if (!request || request->getType() != XmlRpcValue::TypeStruct)
        quv::throwRefusal(quv::noGravSettingsStruct, function);
    const XmlRpcValue &array = quv::arrayMember(*request, GravSettingsBase::circuitsGravSettings_TAG,
                                                quv::noGravSettingsArray, quv::noGravSettingsArray, function);
    return settingsOf(array, quv::badGravSettings, function);
}

Settings settingsOf(const QVariant &variant, const char *function)
{
    if (variant.userType() != QMetaType::QVariantList)
        quv::throwRefusal(quv::badGravSettingsInList, function);
    return settingsOf(EncodeXmlRpcObject(variant), quv::badGravSettingsInList, function);
}

XmlRpcValue arrayOf(const Settings &settings)
{
    XmlRpcValue array;
    array.setSize(settings.size());
    int index = 0;
    for (auto circuit = settings.begin(); circuit != settings.end(); ++circuit, ++index) {
        array[index] = circuit->toXmlRpcValue();
        array[index][GravSettingsBase::positionID_TAG] = circuit.key();
    }
    return array;
}

} // namespace

GravSettingsBase::GravSettingsBase(const QMap<int, GravimetricSettings> &settings) : m_settings(settings) {}

GravSettingsBase::GravSettingsBase(QList<QVariant> list) : m_settings(settingsOf(list.value(0), Q_FUNC_INFO))
{}

GravSettingsBase::GravSettingsBase(const XmlRpcValue &value) : m_settings(settingsOf(value, Q_FUNC_INFO)) {}

XmlRpcValue GravSettingsBase::xmlrpcvalue(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpcValue array;
    array[0][circuitsGravSettings_TAG] = arrayOf(m_settings);
    return array;
}

QList<QVariant> GravSettingsBase::variantParameters() const
{
    return QList<QVariant>() << DecodeXmlRpcVariant(arrayOf(m_settings)); // braces would copy it
}

QList<quv::MemberFacts> GravSettingsBase::memberFacts()
{
    quv::MemberFacts settings{circuitsGravSettings_TAG, "array of structs", quv::tellsGravSettings, true, {}};
    quv::appendRefusal(settings.refusals, "XML-RPC", "no struct", quv::noGravSettingsStruct);
    quv::appendRefusal(settings.refusals, "XML-RPC", "missing or another type", quv::noGravSettingsArray);
    quv::appendRefusal(settings.refusals, "XML-RPC", "an element of another type", quv::badGravSettings);
    quv::appendRefusal(settings.refusals, "XML-RPC", "an element with a wrong member",
                       quv::toldOfMachineData);
    quv::appendRefusal(settings.refusals, "list", "missing or another type", quv::badGravSettingsInList);
    return {settings};
}
