// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/readconfigurationparamcmd.h"

#include "base/describedcommand_p.h"
#include "configuration/readconfigurationparamanswer.h"

struct ReadConfigurationParamCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::READ_CONFIG_ROW;

    static constexpr quv::AnsweredBy<ReadConfigurationParamAnswer> answer = {
        {"DE00095", "Failed to create ProtoAnswer"}, {"DE01295", quv::answerFailed}, {}, {}};

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        archive.required({"code", "the structure's code"}, self.m_code,
                         {"DE00314", "DE00314", "Command code value expected"},
                         {"DE00084", "DE00084", "Invalid command code found in answer"});
        archive.required({"id", "the circuit or reference of a structure that exists once for each, else 1"},
                         self.m_id, {"DE00316", "DE00316", "ID number value expected"},
                         {"DE00315", "DE00315", "Invalid ID number found in answer"});
    }
};

template class quv::DescribedCommand<ReadConfigurationParamCmd, SerialProtoCommand>;

ReadConfigurationParamCmd::ReadConfigurationParamCmd(int code, int id) : m_code(code), m_id(id) {}

ReadConfigurationParamCmd::ReadConfigurationParamCmd(const XmlRpc::XmlRpcValue &value)
    : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

ReadConfigurationParamCmd::ReadConfigurationParamCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

ReadConfigurationParamCmd *ReadConfigurationParamCmd::clone() const
{
    return new ReadConfigurationParamCmd(*this);
}

QList<int> ReadConfigurationParamCmd::serialParameters(int) const
{
    return {m_code, m_id};
}
