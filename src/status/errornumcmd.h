// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

/**
 * ERRORS_NUM: asks the firmware how many errors wait in its buffer; the answer is an ErrorNumAnswer. The driver makes it: by
 * its name the factory gives a plain command.
 */
class QUVPROTOCOL_EXPORT ErrorNumCmd : public quv::DescribedCommand<ErrorNumCmd, SerialProtoCommand>
{
public:
    struct Description;

    ErrorNumCmd() = default;

    ErrorNumCmd *clone() const override;

    QList<int> serialParameters(int family) const override;
};
