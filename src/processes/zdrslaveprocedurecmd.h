// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "../base/describedcommand.h"

struct FW_Version;

/** ZDR_SLAVE_PROCEDURE: runs a procedure of the capping station's slave boards, such as the calibration of the gearmotor. */
class QUVPROTOCOL_EXPORT ZDRSlaveProcedureCmd
    : public quv::DescribedCommand<ZDRSlaveProcedureCmd, SerialProtoCommand>
{
public:
    struct Description;

    /** Any number is taken. */
    enum ProcedureType : int {
        GearmotorCalibration = 100,
        LateProcedure = 200 ///< of a newer firmware than the others; what it does is the firmware's
    };

    ZDRSlaveProcedureCmd() = default;
    explicit ZDRSlaveProcedureCmd(ProcedureType procedure, const QList<int> &procedureParameters = {});
    /**
     * The procedure (int), and optionally its parameters (array of ints). Throws DE02889 for a procedure, DE02890 for
     * parameters of another type.
     */
    explicit ZDRSlaveProcedureCmd(const XmlRpc::XmlRpcValue &value);
    explicit ZDRSlaveProcedureCmd(QList<QVariant> list); ///< the same as a list
    explicit ZDRSlaveProcedureCmd(bool) = delete;        // would be an XML-RPC value, as would the next three
    explicit ZDRSlaveProcedureCmd(int) = delete;
    explicit ZDRSlaveProcedureCmd(double) = delete;
    explicit ZDRSlaveProcedureCmd(const char *) = delete;

    ZDRSlaveProcedureCmd *clone() const override;
    using DescribedCommand::setDefaults;

    /** The procedure and the list of its parameters. */
    QList<QVariant> parameters() const override;
    /** Procedure, number of parameters, and of each the number of digits and the digits; a negative one has none. */
    QList<int> serialParameters(int family) const override;
    bool isSupportedCommand(const FW_Version &version) const override;
    static bool checkSupportedCommand(const FW_Version &version); ///< family 63 above revision 38
    /** Procedure 200 needs family 63 above revision 42, all others what the command needs. */
    static bool isSupportedProcedure(ProcedureType procedure, const FW_Version &version);

    QString commandString() const override;
    TString actionString(bool detailed) const override;

    ProcedureType procedure() const { return static_cast<ProcedureType>(m_procedure); }
    const QList<int> &procedureParameters() const { return m_procedureParameters; }

private:
    int m_procedure = GearmotorCalibration;
    QList<int> m_procedureParameters;
};
