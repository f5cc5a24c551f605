// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configtransfer.h"

#include "base/protocommand.h"
#include "base/xmlrpcanswer.h"
#include "configuration/confdata.h"
#include "configuration/getconfigcmdscmd.h"
#include "configuration/readconfigurationparamcmd.h"
#include "configuration/writeconfigurationparamcmd.h"

#include <QuvFramework/fw_error.h>
#include <QuvFramework/fw_errorlist.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <set>

namespace quv {

namespace {

constexpr int machineStructure = 3;  // "@GMC"
constexpr int stirringStructure = 6; // "@AGI"

// Which circuits and references are asked for. Machines leave out positions, such as those of bases that they do not have.
constexpr int alwaysAsked = 32;
constexpr int absentInARow = 8;
constexpr int mostAsked = 64;

/// The answer of a command that was carried out. \a failed is told when it was not.
XmlRpc::XmlRpcValue valueOf(const Driver &driver, ProtoCommand &command, const QString &failed)
{
    const XmlRpcAnswer &envelope = driver.execute(command);
    if (envelope.retCode() != 0)
        throw RequestRefused(envelope, failed);
    return envelope.xmlrpcRetValue();
}

/// A machine without a name has a row that cannot be read; the library's refusal of it tells so.
bool tellsNoName(const FW_ErrorList &errors)
{
    for (int i = 0; i < errors.size(); ++i)
        if (const auto *error = dynamic_cast<const FW_DriverError *>(errors[i]))
            if (error->code() == QLatin1String("DE00183"))
                return true;
    return false;
}

/// The motor that stirs all circuits tells no canister and no position, and its row is that of each circuit without a motor.
constexpr int allCircuits = 245;

bool standsForAllCircuits(const ConfigRow &row)
{
    const QString notSet = QString::number(allCircuits);
    return row.code == stirringStructure && row.fields.value(1) == notSet && row.fields.value(2) == notSet;
}

int questionsAbout(int code)
{
    return ConfData::isMultipleInstance(code) ? alwaysAsked + absentInARow : 1;
}

/// Counts what is done of what there is to do.
class Steps
{
public:
    Steps(int count, const std::function<void(int)> &tell) : m_count(std::max(count, 1)), m_tell(tell) {}

    void step()
    {
        constexpr int hundred = 100;
        m_tell(std::min(m_done++ * hundred / m_count, hundred - 1));
    }
    void skipTo(int done) { m_done = done; }

private:
    int m_count = 1;
    int m_done = 0;
    const std::function<void(int)> &m_tell;
};

/// The circuits of a machine mostly lack the same, which is told once.
class Warnings
{
public:
    explicit Warnings(QStringList &list) : m_list(list) {}

    void add(const QString &warning)
    {
        if (m_told.insert(warning).second)
            m_list.append(warning);
    }

private:
    QStringList &m_list;
    std::set<QString> m_told{};
};

/// The file's row with what the firmware has of it.
ConfigRow merged(const ConfigRow &file, const ConfigRow &firmware, Warnings &warnings)
{
    ConfigRow row = firmware;
    const int common = std::min(file.fields.size(), firmware.fields.size());
    for (int position = 0; position < common; ++position)
        row.fields[position] = file.fields[position];
    if (file.fields.size() > common) {
        const QString more =
            file.fields.size() > common + 1 ? QStringLiteral(", nor what follows") : QString();
        warnings.add(QStringLiteral("the firmware has no \"%1\" of %2%3: left out")
                         .arg(fieldLabel(file.code, common), structureName(file.code), more));
    }
    return row;
}

std::vector<FieldChange> changesOf(const ConfigRow &from, const ConfigRow &to)
{
    std::vector<FieldChange> changes;
    for (int position = 0; position < to.fields.size(); ++position)
        if (from.fields.value(position) != to.fields[position])
            changes.push_back({fieldLabel(to.code, position),
                               fieldText(to.code, position, from.fields.value(position)),
                               fieldText(to.code, position, to.fields[position])});
    return changes;
}

} // namespace

OfferedStructures FirmwareConfiguration::structures() const
{
    GetConfigCmdsCmd command;
    const XmlRpc::XmlRpcValue value =
        valueOf(m_driver, command, QStringLiteral("the structures cannot be listed"));
    OfferedStructures offered;
    if (!DecodeXmlRpcValue(value, QStringLiteral("version"), offered.version) ||
        !DecodeXmlRpcValue(value, QStringLiteral("minor_version"), offered.minorVersion))
        throw std::runtime_error("the answer is no list of structures");
    const XmlRpc::XmlRpcValue *structures = FindXmlRpcMember(value, "command_codes");
    const int count = structures ? structures->size() : 0;
    if (count > MaxStructures)
        throw std::runtime_error("the firmware offers more than " + std::to_string(MaxStructures) +
                                 " structures");
    for (int i = 0; i < count; ++i) {
        int code = 0;
        const XmlRpc::XmlRpcValue *structure = FindXmlRpcElement(*structures, i);
        if (!structure || !DecodeXmlRpcValue(*structure, QStringLiteral("cmd_code"), code))
            throw std::runtime_error("the answer is no list of structures");
        if (code > 0 && !offered.codes.contains(code))
            offered.codes.append(code);
    }
    std::sort(offered.codes.begin(), offered.codes.end());
    return offered;
}

ConfigRow FirmwareConfiguration::row(int code, int id) const
{
    ReadConfigurationParamCmd command(code, id);
    ConfigRow row{code, id, {}};
    const XmlRpcAnswer &envelope = m_driver.execute(command);
    if (code == nameStructure && tellsNoName(envelope.errors())) {
        row.fields = QStringList{QStringLiteral("1"), QString()};
        return row;
    }
    if (envelope.retCode() != 0)
        throw RequestRefused(envelope, QStringLiteral("%1 cannot be read").arg(headingOf(row)));
    const XmlRpc::XmlRpcValue &value = envelope.xmlrpcRetValue();
    int answered = 0;
    QString text;
    if (!DecodeXmlRpcValue(value, QStringLiteral("cmd_value"), answered) || answered != code ||
        !DecodeXmlRpcValue(value, QStringLiteral("cmd_parameters"), text))
        throw std::runtime_error("the answer is no row of " + headingOf(row).toStdString());
    row.fields = fieldsOfText(code, text);
    return row;
}

void FirmwareConfiguration::write(const ConfigRow &row) const
{
    XmlRpc::XmlRpcValue members;
    EncodeXmlRpcValue(members, QStringLiteral("cmd_value"), row.code);
    EncodeXmlRpcValue(members, QStringLiteral("cmd_parameters"), textOf(row));
    WriteConfigurationParamCmd command(members);
    valueOf(m_driver, command, QStringLiteral("%1 cannot be written").arg(headingOf(row)));
}

void FirmwareConfiguration::finalise() const
{
    XmlRpc::XmlRpcValue none;
    none.setSize(0);
    const std::unique_ptr<ProtoCommand> command(ProtoCommandList::getProtoCommand(
        ProtoCommandList::cmdStr(ProtoCommandList::FINALIZE_CONFIG), none, nullptr));
    valueOf(m_driver, *command, QStringLiteral("the configuration cannot be finalised"));
}

std::vector<ConfigRow> FirmwareConfiguration::allRows(const OfferedStructures &offered,
                                                      const std::function<void(int)> &tell) const
{
    int questions = 0;
    for (const int code : offered.codes)
        questions += questionsAbout(code);
    Steps steps(questions, tell);
    std::vector<ConfigRow> rows;
    int fields = 0;
    int done = 0;
    for (const int code : offered.codes) {
        const bool multiple = ConfData::isMultipleInstance(code);
        const int last = multiple ? mostAsked : 1;
        int absent = 0;
        std::optional<ConfigRow> ofAllCircuits;
        for (int id = 1; id <= last && (id <= alwaysAsked || absent < absentInARow); ++id) {
            steps.step();
            const ConfigRow answered = row(code, id);
            fields += answered.fields.size();
            if (fields > MaxConfigFields)
                throw std::runtime_error("the firmware's configuration has more than " +
                                         std::to_string(MaxConfigFields) + " fields");
            const bool ofAll = standsForAllCircuits(answered);
            const bool present = answered.isPresent() && !ofAll;
            absent = present ? 0 : absent + 1;
            if (ofAll)
                ofAllCircuits = answered;
            else if (!multiple || present)
                rows.push_back(answered);
        }
        if (ofAllCircuits) {
            ofAllCircuits->id = allCircuits;
            rows.push_back(*ofAllCircuits);
        }
        done += questionsAbout(code);
        steps.skipTo(done);
    }
    return rows;
}

ConfigComparison compare(const ConfigFile &file, const FirmwareConfiguration &firmware,
                         const std::function<void(int)> &tell)
{
    std::vector<ConfigRow> rows = file.rows;
    // what it tells of the machine is part of what a circuit's row means
    std::stable_partition(rows.begin(), rows.end(),
                          [](const ConfigRow &row) { return row.code == machineStructure; });
    Steps steps(static_cast<int>(rows.size()) + 1, tell);
    steps.step();
    const QList<int> offered = firmware.structures().codes;
    const QString machine = machineKind(offered);
    if (!file.machine.isEmpty() && !machine.isEmpty() && file.machine != machine)
        throw std::runtime_error(QStringLiteral("the file is of a %1, the machine behind the driver is a %2")
                                     .arg(file.machine, machine)
                                     .toStdString());
    ConfigComparison comparison;
    Warnings warnings(comparison.warnings);
    for (const ConfigRow &row : rows) {
        steps.step();
        if (!offered.contains(row.code)) {
            warnings.add(QStringLiteral("the firmware has no %1: left out").arg(structureName(row.code)));
            continue;
        }
        const ConfigRow present = firmware.row(row.code, row.id);
        const ConfigRow wanted = merged(row, present, warnings);
        const std::vector<FieldChange> changes = changesOf(present, wanted);
        // a firmware keeps nothing of a circuit or reference that there is not
        const bool isNothing =
            ConfData::isMultipleInstance(row.code) && !present.isPresent() && !wanted.isPresent();
        if (!changes.empty() && !isNothing)
            comparison.changes.push_back({wanted, changes});
    }
    return comparison;
}

} // namespace quv
