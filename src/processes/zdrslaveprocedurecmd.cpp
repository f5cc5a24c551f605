// SPDX-License-Identifier: LGPL-3.0-or-later
#include "processes/zdrslaveprocedurecmd.h"

#include "base/describedcommand_p.h"
#include "base/digits_p.h"
#include "processes/zandor_p.h"

namespace {

constexpr quv::FamilyGate hasLateProcedure[] = {{63, 42}};

constexpr char invalid[] = "ZDRSlaveProcedureCmd: invalid parameter";

constexpr char calibration[] = QT_TRANSLATE_NOOP("QuvProtocol", "Gearmotor calibration");

} // namespace

struct ZDRSlaveProcedureCmd::Description : quv::Description
{
    static constexpr auto command = ProtoCommandList::ZDR_SLAVE_PROCEDURE;

    template <class Self, class Archive>
    static void arguments(Self &self, Archive &archive)
    {
        constexpr quv::ArgumentRefusal noProcedure = {"DE02889", "DE02889", invalid};
        archive.required({"procedure", "100 calibration of the gearmotor"}, self.m_procedure, noProcedure,
                         noProcedure);
        archive.optional({"parameters", "of the procedure"}, self.m_procedureParameters,
                         {"DE02890", "DE02890", invalid});
    }
};

template class quv::DescribedCommand<ZDRSlaveProcedureCmd, SerialProtoCommand>;

ZDRSlaveProcedureCmd::ZDRSlaveProcedureCmd(ProcedureType procedure, const QList<int> &procedureParameters)
    : m_procedure(procedure),
      m_procedureParameters(procedureParameters)
{}

ZDRSlaveProcedureCmd::ZDRSlaveProcedureCmd(const XmlRpc::XmlRpcValue &value) : DescribedCommand(value)
{
    read(value, Q_FUNC_INFO);
}

ZDRSlaveProcedureCmd::ZDRSlaveProcedureCmd(QList<QVariant> list) : DescribedCommand(list)
{
    read(list, Q_FUNC_INFO);
}

ZDRSlaveProcedureCmd *ZDRSlaveProcedureCmd::clone() const
{
    return new ZDRSlaveProcedureCmd(*this);
}

QList<QVariant> ZDRSlaveProcedureCmd::parameters() const
{
    return {m_procedure, intListToVariant(m_procedureParameters)}; // variants of integer lists do not compare
}

QList<int> ZDRSlaveProcedureCmd::serialParameters(int) const
{
    QList<int> parameters = {m_procedure, m_procedureParameters.size()};
    for (const int parameter : m_procedureParameters)
        quv::appendCountedDigits(parameters, parameter);
    return parameters;
}

bool ZDRSlaveProcedureCmd::isSupportedCommand(const FW_Version &version) const
{
    return checkSupportedCommand(version);
}

bool ZDRSlaveProcedureCmd::checkSupportedCommand(const FW_Version &version)
{
    return quv::passesGate(quv::drivesCappingStation, version);
}

bool ZDRSlaveProcedureCmd::isSupportedProcedure(ProcedureType procedure, const FW_Version &version)
{
    return procedure == LateProcedure ? quv::passesGate(hasLateProcedure, version)
                                      : checkSupportedCommand(version);
}

QString ZDRSlaveProcedureCmd::commandString() const
{
    return m_procedure == GearmotorCalibration ? QString::fromLatin1(calibration)
                                               : DescribedCommand::commandString();
}

TString ZDRSlaveProcedureCmd::actionString(bool detailed) const
{
    return m_procedure == GearmotorCalibration ? TString(calibration, quv::translationContext)
                                               : DescribedCommand::actionString(detailed);
}
