// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"
#include "dispinfocmd.h"

/** GET_DISP_INFO: reads a text about the machine from its firmware; the answer is a DispInfoAnswer. */
class QUVPROTOCOL_EXPORT GetDispInfoCmd : public quv::DescribedCommand<GetDispInfoCmd, DispInfoCmd>
{
public:
    struct Description;

    GetDispInfoCmd() = default;
    explicit GetDispInfoCmd(int infoType);
    /** The info type (int). Throws as DispInfoCmd; without it the base refuses (DE00312). */
    explicit GetDispInfoCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list; without the type the base refuses (DE00313). */
    explicit GetDispInfoCmd(QList<QVariant> list);
    explicit GetDispInfoCmd(bool) = delete; // would read as a type, as would the next two
    explicit GetDispInfoCmd(double) = delete;
    explicit GetDispInfoCmd(const char *) = delete;

    GetDispInfoCmd *clone() const override;
    using DescribedCommand::setDefaults;

    QList<int> serialParameters(int family) const override; ///< info type, 1

    using DescribedCommand::buildProtoAnswer;
    bool buildProtoAnswer(QStringList tokens, FW_DriverError *error) override;
};
