// SPDX-License-Identifier: LGPL-3.0-or-later
#include "scale/getestcmd.h"

#include "base/describedcommand_p.h"
#include "base/frameworkrefusals_p.h"
#include "base/requeststruct_p.h"
#include "scale/getestanswer.h"
#include "scale/gravsettingsbase_p.h"

namespace {

using XmlRpc::XmlRpcValue;

constexpr quv::Refusal noStruct = {"DE02230", "Parameters must be in struct form"};
constexpr quv::Refusal noWeight = {"DE02231", "Expected current weight"};
constexpr quv::Refusal badSettings = {"DE02232", "GETestCmd failed: internal error"};

} // namespace

struct GETestCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::GE_TEST;

    static constexpr char answerFailed[] = "Failed to create GETestAnswer";
    static constexpr quv::AnsweredBy<GETestAnswer> answer = {
        {}, {"DE03327", answerFailed}, {"DE03328", answerFailed}, {}};

    static void read(GETestCmd &self, const XmlRpcValue *argument, const char *function)
    {
        if (!argument || argument->getType() != XmlRpcValue::TypeStruct)
            quv::throwRefusal(noStruct, function);
        if (!DecodeXmlRpcValue(*argument, currentScaleWeight_TAG, self.m_currentScaleWeight))
            quv::throwRefusal(noWeight, function);
        const XmlRpcValue &settings =
            quv::memberOf(*argument, gravimetricSettings_TAG, badSettings, function);
        self.m_gravimetricSettings = quv::gravSettingsOf(settings, badSettings, function);
    }

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        teller.argument({"test", "\"current_scale_weight\" (grams) and \"driver_GE_settings\", a struct of "
                                 "\"tolerance\" (grams) and "
                                 "\"max_corrections\""},
                        "struct");
        teller.refuse("another type", {noStruct, noStruct});
        teller.refuse("current_scale_weight is missing or of another type", {noWeight, noWeight});
        teller.refuse("driver_GE_settings is missing", {badSettings, badSettings});
        teller.refuse("driver_GE_settings is wrong", {quv::toldOfMachineData, {}});
    }
};

template class quv::DescribedCommand<GETestCmd, ConfProtoCommand>;

GETestCmd::GETestCmd(double currentScaleWeight, const GravimetricSettings &settings)
    : m_currentScaleWeight(currentScaleWeight),
      m_gravimetricSettings(settings)
{}

GETestCmd::GETestCmd(const XmlRpcValue &value) : DescribedCommand(value)
{
    Description::read(*this, FindXmlRpcElement(value, 0), Q_FUNC_INFO);
}

GETestCmd::GETestCmd(QList<QVariant> list) : DescribedCommand(list)
{
    const QVariant test = list.value(0);
    if (test.userType() != QMetaType::QVariantMap)
        quv::throwRefusal(noStruct, Q_FUNC_INFO);
    const QVariantMap members = test.toMap();
    if (!quv::decodeVariant(members.value(currentScaleWeight_TAG), m_currentScaleWeight))
        quv::throwRefusal(noWeight, Q_FUNC_INFO);
    if (!members.contains(gravimetricSettings_TAG))
        quv::throwRefusal(badSettings, Q_FUNC_INFO);
    const XmlRpcValue settings = EncodeXmlRpcObject(members.value(gravimetricSettings_TAG));
    m_gravimetricSettings = quv::gravSettingsOf(settings, badSettings, Q_FUNC_INFO);
}

GETestCmd *GETestCmd::clone() const
{
    return new GETestCmd(*this);
}

QList<QVariant> GETestCmd::parameters() const
{
    return {QVariantMap{{currentScaleWeight_TAG, m_currentScaleWeight},
                        {gravimetricSettings_TAG, QVariant::fromValue(m_gravimetricSettings)}}};
}

XmlRpcValue GETestCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpcValue array;
    array[0][currentScaleWeight_TAG] = m_currentScaleWeight;
    array[0][gravimetricSettings_TAG] = m_gravimetricSettings.toXmlRpcValue();
    return array;
}
