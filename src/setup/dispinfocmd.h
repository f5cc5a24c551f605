// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/serialprotocommand.h"

struct FW_Version;

/**
 * What the commands share that read, write and clear a text about the machine that its firmware keeps. The texts are numbered by
 * their type.
 */
class QUVPROTOCOL_EXPORT DispInfoCmd : public SerialProtoCommand
{
public:
    struct Description;

    static constexpr int keyCodeType = 6; ///< the text that identifies the machine

    int infoType() const { return m_infoType; } ///< 0 for none yet; any number is taken

    static bool checkDispInfoType(int type); ///< 1 to 6
    /** Whether the firmware keeps this text. */
    static bool isSupportedDispInfoType(int type, const FW_Version &version);

protected:
    DispInfoCmd(QString command, const FW_Machine *machine);
    /** The info type (int) first. Throws DE00303 without it, DE00304 for another type of argument. */
    DispInfoCmd(QString command, const XmlRpc::XmlRpcValue &value, const FW_Machine *machine);
    /** The same as a list. Throws DE00305 and DE00306. */
    DispInfoCmd(QString command, QList<QVariant> list, const FW_Machine *machine);
    DispInfoCmd(const DispInfoCmd &) = default;

    int m_infoType = 0;
};
