// SPDX-License-Identifier: LGPL-3.0-or-later
#include "settings/setdriversettingscmd.h"

#include "base/describedcommand_p.h"
#include "base/requeststruct_p.h"
#include "settings/driversettings_p.h"

namespace {

using XmlRpc::XmlRpcValue;

constexpr char notCreated[] = "SetDriverSettingsCmd: Failed to create DriverSettings object";
constexpr quv::Refusal noStruct = {"DE00978",
                                   "SetDriverSettingsCmd decoding failed: expected xml-rpc struct type"};
constexpr quv::Refusal badSettings = {"DE00980", notCreated};
constexpr quv::Refusal badHash = {"DE02427", notCreated};
constexpr quv::Refusal noSettings = {"DE00979", notCreated};
constexpr quv::Refusal emptyList = {"DE00982", "SetDriverSettingsCmd: empty parameters list received"};
constexpr quv::Refusal badVariant = {"DE00981",
                                     "SetDriverSettingsCmd: failed to create DriverSettings object"};

/** Reads the struct of the request into whichever of the two it tells. */
void readRequest(const XmlRpcValue &request, DriverSettings &settings, QHash<QString, QVariant> &hash,
                 const quv::Refusal &badWhole, const quv::Refusal &badSingle, const quv::Refusal &neither,
                 const char *function)
{
    using Cmd = SetDriverSettingsCmd;
    if (const XmlRpcValue *whole = FindXmlRpcMember(request, Cmd::driverSettings_TAG)) {
        if (quv::fieldType<DriverSettings>().read(*whole, &settings) != quv::Decoded::Good)
            quv::throwRefusal(badWhole, function);
    } else if (const XmlRpcValue *single = FindXmlRpcMember(request, Cmd::driverSettingsHash_TAG)) {
        if (!DecodeXmlRpcValue(*single, hash))
            quv::throwRefusal(badSingle, function);
    } else {
        quv::throwRefusal(neither, function);
    }
}

/** The settings that have a value: without one they would travel as 0. */
QHash<QString, QVariant> withValues(const QHash<QString, QVariant> &settings)
{
    QHash<QString, QVariant> given;
    for (auto setting = settings.cbegin(); setting != settings.cend(); ++setting) {
        if (setting->isValid())
            given.insert(setting.key(), *setting);
    }
    return given;
}

} // namespace

struct SetDriverSettingsCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::SET_DRIVER_SETTINGS;
    static constexpr auto commandText = "Application settings update";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Updating application settings");

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        teller.argument({"settings",
                         "a struct with driver_settings, the whole setup, or with "
                         "driver_settings_hash, single settings by their keys (in a list the setup or the "
                         "single settings themselves)"},
                        "struct");
        teller.refuse("another type", {noStruct, badVariant});
        teller.refuse("driver_settings that is no struct", {badSettings, {}});
        teller.refuse("driver_settings_hash that is no struct", {badHash, {}});
        teller.refuse("a struct without either", {noSettings, {}});
    }
};

template class quv::DescribedCommand<SetDriverSettingsCmd, ConfProtoCommand>;

SetDriverSettingsCmd::SetDriverSettingsCmd(const DriverSettings &settings) : m_settings(settings) {}

SetDriverSettingsCmd::SetDriverSettingsCmd(const QHash<QString, QVariant> &settings) : m_hash(settings) {}

SetDriverSettingsCmd::SetDriverSettingsCmd(const XmlRpcValue &value) : DescribedCommand(value)
{
    const XmlRpcValue &argument = quv::structArgument(value, noStruct, Q_FUNC_INFO);
    readRequest(argument, m_settings, m_hash, badSettings, badHash, noSettings, Q_FUNC_INFO);
}

SetDriverSettingsCmd::SetDriverSettingsCmd(QList<QVariant> list) : DescribedCommand(list)
{
    if (list.isEmpty())
        quv::throwRefusal(emptyList, Q_FUNC_INFO);
    const QVariant &settings = list.first();
    if (settings.userType() == QMetaType::QVariantHash)
        m_hash = settings.toHash();
    else if (quv::holds<DriverSettings>(settings))
        m_settings = quv::decodedVariant<DriverSettings>(settings, badVariant, badVariant, Q_FUNC_INFO);
    else
        readRequest(EncodeXmlRpcObject(settings), m_settings, m_hash, badVariant, badVariant, badVariant,
                    Q_FUNC_INFO);
}

SetDriverSettingsCmd *SetDriverSettingsCmd::clone() const
{
    return new SetDriverSettingsCmd(*this);
}

QList<QVariant> SetDriverSettingsCmd::parameters() const
{
    return {m_hash.isEmpty() ? QVariant::fromValue(m_settings) : QVariant(m_hash)};
}

XmlRpcValue SetDriverSettingsCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpcValue array;
    array.setSize(1);
    if (m_hash.isEmpty())
        array[0][driverSettings_TAG] = m_settings.toXmlRpcValue();
    else
        EncodeXmlRpcValue(array[0], driverSettingsHash_TAG, withValues(m_hash));
    return array;
}
