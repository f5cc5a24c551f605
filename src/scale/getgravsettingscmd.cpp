// SPDX-License-Identifier: LGPL-3.0-or-later
#include "scale/getgravsettingscmd.h"

#include "base/describedcommand_p.h"
#include "base/requeststruct_p.h"
#include "scale/gravsettingsanswer.h"

namespace {

using XmlRpc::XmlRpcValue;

constexpr char notRead[] = "GetGravSettingsCmd: error in xmlrpc decoding";
constexpr quv::Refusal badPosition = {"DE02409", "GetGravSettingsCmd: expected INT parameter"};
constexpr quv::Refusal noStruct = {"DE02410", notRead};
constexpr quv::Refusal noPositions = {"DE02411", notRead};
constexpr quv::Refusal noArray = {"DE02412", notRead};

QList<int> positionsOf(const XmlRpcValue &argument, const char *function)
{
    if (argument.getType() != XmlRpcValue::TypeStruct)
        quv::throwRefusal(noStruct, function);
    const XmlRpcValue &array =
        quv::arrayMember(argument, GetGravSettingsCmd::positionsID_TAG, noPositions, noArray, function);
    QList<int> positions;
    if (!DecodeXmlRpcValue(array, positions))
        quv::throwRefusal(badPosition, function);
    return positions;
}

QList<int> positionsOf(const QVariant &argument, const char *function)
{
    QList<int> positions;
    if (!quv::decodeVariant(argument, positions))
        quv::throwRefusal(argument.userType() == QMetaType::QVariantList ? badPosition : noArray, function);
    return positions;
}

} // namespace

struct GetGravSettingsCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::GET_GRAV_SETTINGS;
    static constexpr auto commandText = "Gravimetric settings read";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Reading gravimetric settings");

    static constexpr char answerFailed[] = "Failed to create GravSettingsAnswer";
    static constexpr quv::AnsweredBy<GravSettingsAnswer> answer = {
        {}, {"DE03325", answerFailed}, {"DE03326", answerFailed}, {}};

    static void tellArguments(quv::ArgumentTeller &teller)
    {
        XmlRpcValue all;
        all[positionsID_TAG].setSize(0);
        teller.argument({"positions",
                         "\"positions_id\": an array of circuits' positions; none stands for all (in a list "
                         "the array alone)"},
                        "struct", all);
        teller.refuse("another type", {noStruct, noArray});
        teller.refuse("a struct without the array", {noPositions, {}});
        teller.refuse("positions_id is of another type", {noArray, {}});
        teller.refuse("an element of another type", {badPosition, badPosition});
    }
};

template class quv::DescribedCommand<GetGravSettingsCmd, ConfProtoCommand>;

GetGravSettingsCmd::GetGravSettingsCmd(const QList<int> &positions) : m_positions(positions) {}

GetGravSettingsCmd::GetGravSettingsCmd(const XmlRpcValue &value) : DescribedCommand(value)
{
    if (const XmlRpcValue *argument = FindXmlRpcElement(value, 0))
        m_positions = positionsOf(*argument, Q_FUNC_INFO);
}

GetGravSettingsCmd::GetGravSettingsCmd(QList<QVariant> list) : DescribedCommand(list)
{
    if (!list.isEmpty())
        m_positions = positionsOf(list.constFirst(), Q_FUNC_INFO);
}

GetGravSettingsCmd *GetGravSettingsCmd::clone() const
{
    return new GetGravSettingsCmd(*this);
}

QList<QVariant> GetGravSettingsCmd::parameters() const
{
    // variants of integer lists do not compare, and in braces some compilers would copy the list
    return m_positions.isEmpty() ? QList<QVariant>()
                                 : QList<QVariant>() << QVariant(intListToVariant(m_positions));
}

XmlRpcValue GetGravSettingsCmd::xmlrpc_parameters(bool *ok) const
{
    if (ok)
        *ok = true;
    XmlRpcValue array;
    array.setSize(0);
    if (!m_positions.isEmpty())
        EncodeXmlRpcValue(array[0], positionsID_TAG, m_positions);
    return array;
}
