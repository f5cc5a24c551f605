// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

/** READ_FW_VERSION: asks one module of the machine which firmware runs on it; the answer is a FirmwareVersionAnswer. */
class QUVPROTOCOL_EXPORT FirmwareVersionCmd
    : public quv::DescribedCommand<FirmwareVersionCmd, SerialProtoCommand>
{
public:
    struct Description;

    FirmwareVersionCmd() = default; ///< module 0, the machine itself
    explicit FirmwareVersionCmd(int moduleID);
    /** The module ID (int). Throws DE00591 for another type; without it the base refuses (DE00312). */
    explicit FirmwareVersionCmd(const XmlRpc::XmlRpcValue &value);
    /** The same as a list. Throws DE00608 for another type; without it the base refuses (DE00313). */
    explicit FirmwareVersionCmd(QList<QVariant> list);
    explicit FirmwareVersionCmd(bool) = delete; // would read as a module, as would the next two
    explicit FirmwareVersionCmd(double) = delete;
    explicit FirmwareVersionCmd(const char *) = delete;

    FirmwareVersionCmd *clone() const override;
    using DescribedCommand::setDefaults;

    TString actionString(bool detailed) const override;
};
