// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/getshelfposcmd.h"

#include "base/describedcommand_p.h"
#include "processes/getshelfposanswer.h"

struct GetShelfPosCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::GET_SHELF_POS;

    static constexpr char answerFailed[] = "Failed to create GetShelfPosAnswer";
    static constexpr quv::AnsweredBy<GetShelfPosAnswer> answer = {{"DE01445", answerFailed},
                                                                  {"DE01442", answerFailed},
                                                                  {"DE01443", answerFailed},
                                                                  {"DE01446", answerFailed}};

    static constexpr auto commandText = "Shelf position read";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Reading shelf position");

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.optional({"position_type", "3 is the only one"}, self.m_positionType,
                         {"DE01439", "DE01440", "Shelf positioning: expected INT parameter"});
        archive.refuseUnless(checkPositionType(self.m_positionType),
                             {"DE01438", "DE01441", "Shelf positioning: invalid parameter"});
    }
};

template class quv::DescribedCommand<GetShelfPosCmd, SerialProtoCommand>;

GetShelfPosCmd::GetShelfPosCmd(int positionType) : m_positionType(positionType) {}

GetShelfPosCmd::GetShelfPosCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

GetShelfPosCmd::GetShelfPosCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

GetShelfPosCmd *GetShelfPosCmd::clone() const
{
    return new GetShelfPosCmd(*this);
}

QList<int> GetShelfPosCmd::serialParameters(int) const
{
    return {m_positionType};
}

bool GetShelfPosCmd::checkPositionType(int positionType)
{
    return positionType == onlyPositionType;
}
