// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/clearerrorscmd.h"

#include "base/describedcommand_p.h"

struct ClearErrorsCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::CLEAR_ERRORS;
    static constexpr auto commandText = "Clear errors";
    static constexpr auto actionText = QT_TRANSLATE_NOOP("QuvProtocol", "Cleaning hardware errors");

    static void tellArguments(quv::ArgumentTeller &) {} // there are none
};

template class quv::DescribedCommand<ClearErrorsCmd, SerialProtoCommand>;

ClearErrorsCmd *ClearErrorsCmd::clone() const
{
    return new ClearErrorsCmd(*this);
}

QList<int> ClearErrorsCmd::serialParameters(int) const
{
    constexpr int clear = 0; // where the same code has the index of a packet
    return {clear};
}
