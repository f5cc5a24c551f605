// SPDX-License-Identifier: LGPL-3.0-or-later
#include "calibration/setcalibrationprofilescmd.h"

#include "base/describedcommand_p.h"
#include "base/frameworkrefusals_p.h"
#include "calibration/calibrationprofiles_p.h"

#include <utility>

namespace {

constexpr quv::Refusal noStruct = {"DE00640", "SetCalibrationProfilesCmd: invalid xml-rpc type (not struct)"};
constexpr quv::Refusal notMade = {
    "DE00642", "SetCalibrationProfilesCmd: Failed to create FW_CalibrationProfiles object"};

const XmlRpc::XmlRpcValue *structIn(const XmlRpc::XmlRpcValue &arguments, const char *function)
{
    const XmlRpc::XmlRpcValue *profiles = FindXmlRpcElement(arguments, 0);
    if (!profiles || !quv::isProfilesStruct(*profiles))
        quv::throwRefusal(noStruct, function);
    return profiles;
}

} // namespace

struct SetCalibrationProfilesCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::SET_CALIB_PROFILES;
    static constexpr auto commandText = "Calibration profiles write";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Updating calibration profiles");

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        teller.argument({"profiles", "member \"pumps\": the motors of pumps, each with its calibration"},
                        "struct");
        teller.refuse("another type", {noStruct, noStruct});
        teller.refuse("with a wrong member", {quv::toldOfMachineData, {}});
        teller.refuse("cannot be made", {notMade, notMade});
        options(SetCalibrationProfilesCmd(), teller);
    }

    /** The arguments behind the profiles. */
    template <class Self, class Archive>
    static void options(Self &&self, Archive &archive)
    {
        constexpr quv::ArgumentRefusal noOption = {
            "DE00643", "DE00643",
            "SetCalibrationProfilesCmd failed: expected Bool type for second parameter"};
        constexpr quv::ArgumentRefusal noSecondOption = {
            "DE03370", "DE03370", "SetCalibrationProfilesCmd failed: expected Bool type for third parameter"};
        archive.required({"option", "which the driver reads"}, self.m_option, noOption, noOption);
        archive.required({"second_option", "likewise"}, self.m_secondOption, noSecondOption, noSecondOption);
    }
};

template class quv::DescribedCommand<SetCalibrationProfilesCmd, ConfProtoCommand>;

SetCalibrationProfilesCmd::SetCalibrationProfilesCmd(FW_CalibrationProfiles profiles, bool option,
                                                     bool secondOption)
    : m_profiles(std::move(profiles)),
      m_option(option),
      m_secondOption(secondOption)
{}

SetCalibrationProfilesCmd::SetCalibrationProfilesCmd(const XmlRpc::XmlRpcValue &value)
    : DescribedCommand(value),
      m_profiles(
          quv::decodedValue<FW_CalibrationProfiles>(structIn(value, Q_FUNC_INFO), notMade, Q_FUNC_INFO))
{
    quv::ValueReader reader(value, Q_FUNC_INFO);
    reader.unread("profiles", m_profiles);
    Description::options(*this, reader);
}

SetCalibrationProfilesCmd::SetCalibrationProfilesCmd(QList<QVariant> list)
    : DescribedCommand(list),
      m_profiles(quv::decodedVariant<FW_CalibrationProfiles>(list.value(0), noStruct, notMade, Q_FUNC_INFO))
{
    quv::ListReader reader(list, Q_FUNC_INFO);
    reader.unread("profiles", m_profiles);
    Description::options(*this, reader);
}

SetCalibrationProfilesCmd *SetCalibrationProfilesCmd::clone() const
{
    return new SetCalibrationProfilesCmd(*this);
}

QList<QVariant> SetCalibrationProfilesCmd::parameters() const
{
    return {QVariant::fromValue(m_profiles), m_option, m_secondOption};
}

XmlRpc::XmlRpcValue SetCalibrationProfilesCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpc::XmlRpcValue array;
    array[0] = m_profiles.toXmlRpcValue();
    array[1] = m_option;
    array[2] = m_secondOption;
    return array;
}
