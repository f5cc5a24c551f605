// SPDX-License-Identifier: LGPL-3.0-or-later
#include "statistics/addstatserrorscmd.h"

#include "base/describedcommand_p.h"
#include "base/frameworkrefusals_p.h"
#include "base/requeststruct_p.h"

namespace {

constexpr char noErrors[] = "Expected error list parameter";
constexpr quv::Refusal noneInValue = {"DE02896", noErrors};
constexpr quv::Refusal noneInList = {"DE02897", noErrors};

/** The array of errors. */
const XmlRpc::XmlRpcValue &errorsIn(const XmlRpc::XmlRpcValue &arguments, const char *function)
{
    const XmlRpc::XmlRpcValue &request = quv::structArgument(arguments, noneInValue, function);
    return quv::arrayMember(request, AddStatsErrorsCmd::errorList_TAG, noneInValue, noneInValue, function);
}

FW_ErrorList errorsIn(const QVariant &variant, const char *function)
{
    if (variant.userType() == qMetaTypeId<FW_ErrorList>())
        return variant.value<FW_ErrorList>();
    if (variant.userType() != QMetaType::QVariantList)
        quv::throwRefusal(noneInList, function);
    FW_ErrorList errors;
    for (const QVariant &element : variant.toList()) {
        if (element.userType() == QMetaType::QVariantMap)
            errors.append(EncodeXmlRpcObject(element));
        else if (!errors.appendHeld(element))
            quv::throwRefusal(noneInList, function);
    }
    return errors;
}

} // namespace

struct AddStatsErrorsCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::ADD_STATS_ERRORS;
    static constexpr auto commandText = "Add stats errors";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Adding stats errors");

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        teller.argument({"errors",
                         "member \"error_list\": an array of errors of all kinds, as in the answer to "
                         "GET_ERRORS; in a list the errors alone"},
                        "struct");
        teller.refuse("another type", {noneInValue, noneInList});
        teller.refuse("without an array as error_list", {noneInValue, {}});
        teller.refuse("an element of another type", {{}, noneInList});
        for (const auto &[when, refusal] : quv::errorRefusals)
            teller.refuse(when, {refusal, {}});
    }
};

template class quv::DescribedCommand<AddStatsErrorsCmd, ConfProtoCommand>;

AddStatsErrorsCmd::AddStatsErrorsCmd(const FW_ErrorList &errors) : m_errors(errors) {}

AddStatsErrorsCmd::AddStatsErrorsCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    const XmlRpc::XmlRpcValue &errors = errorsIn(value, Q_FUNC_INFO);
    m_errors = quv::madeOrRefused(noneInValue, Q_FUNC_INFO, [&] { return FW_ErrorList(errors); });
}

AddStatsErrorsCmd::AddStatsErrorsCmd(QList<QVariant> list) : DescribedCommand(list)
{
    const char *function = Q_FUNC_INFO;
    m_errors = quv::madeOrRefused(noneInList, function, [&] { return errorsIn(list.value(0), function); });
}

AddStatsErrorsCmd *AddStatsErrorsCmd::clone() const
{
    return new AddStatsErrorsCmd(*this);
}

QList<QVariant> AddStatsErrorsCmd::parameters() const
{
    return {QVariant::fromValue(m_errors)};
}

XmlRpc::XmlRpcValue AddStatsErrorsCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpc::XmlRpcValue array;
    array[0][errorList_TAG] = m_errors.toXmlRpcValue();
    return array;
}
