// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

/** CLEAR_ERRORS: empties the firmware's buffer of errors. */
class QUVPROTOCOL_EXPORT ClearErrorsCmd : public quv::DescribedCommand<ClearErrorsCmd, SerialProtoCommand>
{
public:
    struct Description;

    ClearErrorsCmd() = default;

    ClearErrorsCmd *clone() const override;
    using DescribedCommand::setDefaults; ///< changes nothing: there are no arguments

    QList<int> serialParameters(int family) const override;
};
