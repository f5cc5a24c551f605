// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/answerdispatch_p.h"

#include "base/confprotoanswer.h"
#include "base/serialprotoanswer.h"
#include "catalogue/protocommandlist.h"
#include "masterdata/getdeviceparamsanswer.h"

#include <vector>

// One table a kind of command and form of answer; a command that has no row gets the plain answer of its kind.

namespace {

using Cmd = ProtoCommandList;

template <class Source>
struct Row
{
    Cmd::CommandListValue command;
    ProtoAnswer *(*make)(Source &source);
};

template <class Source>
using Rows = std::vector<Row<Source>>;

template <class Answer, class Source>
ProtoAnswer *makeAnswer(Source &source)
{
    return new Answer(source);
}

template <class Source>
const Rows<Source> &configurationRows()
{
    static const Rows<Source> rows = {
        {Cmd::GET_DEVICE_PARAMS, makeAnswer<GetDeviceParamsAnswer>},
    };
    return rows;
}

template <class Plain, class Source>
ProtoAnswer *make(const Rows<Source> &rows, const QString &command, Source &source)
{
    if (const CMD_STRUCT *found = Cmd::row(command)) {
        for (const Row<Source> &row : rows) {
            if (row.command == found->id)
                return row.make(source);
        }
    }
    return new Plain(source);
}

} // namespace

namespace quv {

// No serial answer has a class yet, see pendingAnswers.

ProtoAnswer *makeSerialAnswer(const QString &, const XmlRpc::XmlRpcValue &value)
{
    return new SerialProtoAnswer(value);
}

ProtoAnswer *makeSerialAnswer(const QString &, QList<QVariant> &list)
{
    return new SerialProtoAnswer(list);
}

ProtoAnswer *makeSerialAnswer(const QString &, const QStringList &tokens)
{
    return new SerialProtoAnswer(tokens);
}

ProtoAnswer *makeConfigurationAnswer(const QString &command, const XmlRpc::XmlRpcValue &value)
{
    return make<ConfProtoAnswer>(configurationRows<const XmlRpc::XmlRpcValue>(), command, value);
}

ProtoAnswer *makeConfigurationAnswer(const QString &command, QList<QVariant> &list)
{
    return make<ConfProtoAnswer>(configurationRows<QList<QVariant>>(), command, list);
}

} // namespace quv
