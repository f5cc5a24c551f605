// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/firmwarescancmd.h"

#include "base/describedcommand_p.h"
#include "firmware/firmwarescananswer.h"

struct FirmwareScanCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::FW_SCAN;

    static constexpr char answerFailed[] = "Failed to create FirmwareScanAnswer";
    static constexpr quv::AnsweredBy<FirmwareScanAnswer> answer = {
        {"DE03242", answerFailed}, {"DE03243", answerFailed}, {"DE03244", answerFailed}, {}};

    static constexpr auto commandText = "Firmware versions scan";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Firmware versions scan");

    template <class Self, class Archive>
    static void arguments(Self &, Archive &)
    {}
};

template class quv::DescribedCommand<FirmwareScanCmd, SerialProtoCommand>;

FirmwareScanCmd::FirmwareScanCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value) {}

FirmwareScanCmd::FirmwareScanCmd(QList<QVariant> list) : DescribedCommand(list) {}

FirmwareScanCmd *FirmwareScanCmd::clone() const
{
    return new FirmwareScanCmd(*this);
}
