// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

#include <QuvFramework/fw_firmwarefile.h>

/**
 * UPDATE_FW: loads new firmware onto boards of the machine. The firmware has no such command: a driver sends the files by a procedure of
 * its own, which reports what has become of each board in a FirmwareUpdateAnswer.
 */
class QUVPROTOCOL_EXPORT FirmwareUpdateCmd
    : public quv::DescribedCommand<FirmwareUpdateCmd, SerialProtoCommand>
{
public:
    struct Description;

    FirmwareUpdateCmd() = default; ///< no files
    explicit FirmwareUpdateCmd(const FirmwareFiles &files);
    /**
     * One array of FirmwareFile structs. Throws DE00846 when it is no array, DE00849 for an empty one, DE00848 for a file that cannot be
     * read. Without any argument the base refuses (DE00312).
     */
    explicit FirmwareUpdateCmd(const XmlRpc::XmlRpcValue &value);
    /** The files as FirmwareFiles, or as a list of variants that each hold one. Throws DE00851 for anything else. */
    explicit FirmwareUpdateCmd(QList<QVariant> list);
    explicit FirmwareUpdateCmd(bool) = delete; // would be an XML-RPC value, as would the next three
    explicit FirmwareUpdateCmd(int) = delete;
    explicit FirmwareUpdateCmd(double) = delete;
    explicit FirmwareUpdateCmd(const char *) = delete;

    FirmwareUpdateCmd *clone() const override;
    void setDefaults() { m_files.clear(); }

    QList<QVariant> parameters() const override;
    XmlRpc::XmlRpcValue xmlrpc_parameters(bool *ok = nullptr) const override;

    /** With a dispenser as the machine, boards of its circuits that are not wired take no time: nothing is sent to them. */
    long long getCmdEstimatedExecutionTime(const FW_Machine *machine) const override;
    TString actionString(bool detailed) const override;

    const FirmwareFiles &files() const { return m_files; }

    static bool isMultipleFileSendSupported(const FW_Version &version);  ///< more than one file in a request
    static bool isBluetoothFileSendSupported(const FW_Version &version); ///< an update over Bluetooth

private:
    FirmwareFiles m_files;
};
