// SPDX-License-Identifier: LGPL-3.0-or-later
#include "statistics/getstatserrorscmd.h"

#include "base/describedcommand_p.h"
#include "statistics/getstatserrorsanswer.h"

struct GetStatsErrorsCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::GET_STATS_ERRORS;
    static constexpr auto commandText = "Errors history read";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Reading errors history");

    static constexpr char answerFailed[] = "Failed to create GetStatsErrorsAnswer";
    static constexpr quv::AnsweredBy<GetStatsErrorsAnswer> answer = {
        {}, {"DE03330", answerFailed}, {"DE03331", answerFailed}, {}};

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.optional({"error_type", "1 driver, 2 hardware, 3 configuration; 0 all"}, self.m_errorType,
                         {"DE01385", "DE01388", "Error Type: expected INT parameter"});
        archive.optional({"position", "a circuit's position; 0 all"}, self.m_positionID,
                         {"DE01386", "DE01389", "Position ID: expected INT parameter"});
        archive.optional({"error_code", "as errors tell it; empty for all"}, self.m_errorCode,
                         {"DE01387", "DE01390", "Error Code: expected INT parameter"});
    }
};

template class quv::DescribedCommand<GetStatsErrorsCmd, ConfProtoCommand>;

GetStatsErrorsCmd::GetStatsErrorsCmd(int errorType, int positionID, const QString &errorCode)
    : m_errorType(errorType),
      m_positionID(positionID),
      m_errorCode(errorCode)
{}

GetStatsErrorsCmd::GetStatsErrorsCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

GetStatsErrorsCmd::GetStatsErrorsCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

GetStatsErrorsCmd *GetStatsErrorsCmd::clone() const
{
    return new GetStatsErrorsCmd(*this);
}
