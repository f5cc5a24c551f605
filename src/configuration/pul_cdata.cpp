// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/pul_cdata.h"

#include "configuration/confrow_p.h"

#include <QuvFramework/fw_cleaningmotor.h>
#include <QuvFramework/fw_dispenser.h>

namespace {

constexpr int structureCode = 16;
constexpr quv::ConfCodes codes = {
    "DE01618", "Invalid Dispenser data", "DE02798", "DE01619", "DE01629", "DE01630", "DE01631"};

/** What the row says of the quick cleaning. Anything but Unavailable reads as enabled. */
enum QuickCleaning { Unavailable = 0, QuickEnabled = 1, QuickDisabled = 2 };
constexpr int quickCleaningIndex = 2; // among the parameters

template <auto get, auto set>
constexpr quv::ConfAccess<CleaningConf> brushValue = {
    [](const CleaningConf &conf) { return (conf.brush.*get)(); },
    [](CleaningConf &conf, int value) { (conf.brush.*set)(value); }};

constexpr quv::ConfAccess<CleaningConf> quickEnable = {
    [](const CleaningConf &conf) -> int {
        return conf.brush.isCleaningEnabled() ? QuickEnabled : QuickDisabled;
    },
    [](CleaningConf &conf, int value) { conf.brush.setCleaningEnabled(value != Unavailable); }};

constexpr quv::ConfAccess<CleaningConf> quickTimeout = {
    [](const CleaningConf &conf) { return conf.brush.timeout(FW_TimeSpan::Minutes); },
    [](CleaningConf &conf, int value) { conf.brush.setTimeout(value, FW_TimeSpan::Minutes); }};

constexpr quv::ConfAccess<CleaningConf> secondPosition = {
    [](const CleaningConf &conf) { return conf.secondBrush.position(); },
    [](CleaningConf &conf, int value) { conf.secondBrush.setPosition(value); }};

using quv::byMember;
using Conf = CleaningConf;

constexpr quv::ConfField<CleaningConf> fields[] = {
    {"Brush Position", "DE01620", brushValue<&FW_Brush::position, &FW_Brush::setPosition>},
    {"Self Cleaning Time", "DE01621",
     brushValue<&FW_Brush::selfCleaningTime, &FW_Brush::setSelfCleaningTime>},
    {"Quick Cleaning Enable", "DE01622", quickEnable},
    {"Quick Cleaning Timeout", "DE01623", quickTimeout},
    {"Quick Cleaning Turntable Speed", "DE01624",
     brushValue<&FW_Brush::turntableSpeed, &FW_Brush::setTurntableSpeed>},
    {"Quick Cleaning Policy", "DE01625", brushValue<&FW_Brush::scheduleMask, &FW_Brush::setScheduleMask>},
    {"Accurate Cleaning Policy", "DE01626", byMember<Conf, &Conf::accuratePolicy>},
    {"Accurate Cleaning Duration", "DE01627", byMember<Conf, &Conf::accurateDuration>},
    {"Accurate Cleaning Turntable Speed", "DE01628", byMember<Conf, &Conf::accurateTurntableSpeed>},
    {"Brush 2 Position", "DE02842", secondPosition, 10},
};

void takeAccurateCleaning(CleaningConf &conf, const FW_CleaningMotor *motor)
{
    constexpr int speedWithoutMotor = 50;
    conf.accuratePolicy =
        motor ? FW_CleaningMotor::cleanPolicyFwMask(motor->scheduleMask(), motor->target(), motor->process())
              : 0;
    conf.accurateDuration = motor ? motor->duration() : 0;
    conf.accurateTurntableSpeed = motor ? motor->turntableSpeed() : speedWithoutMotor;
}

void giveBrush(FW_Dispenser &dispenser, FW_BrushBase &&brush, bool enabled)
{
    brush.setEnabled(enabled);
    dispenser.setDevice(brush);
}

} // namespace

PUL_cdata::PUL_cdata() : ConfData(structureCode)
{
    clear();
}

PUL_cdata::PUL_cdata(const FW_Machine *machine) : PUL_cdata()
{
    const FW_Dispenser &dispenser = quv::confDispenser(machine, codes, Q_FUNC_INFO);
    m_cmdEnabled = Absent;
    if (const auto *brush = dynamic_cast<const FW_Brush *>(dispenser.getDevice(FW_Device::Brush))) {
        m_cleaning.brush = *brush;
        setCommandEnable(brush->isEnabled());
    }
    if (const auto *brush = dynamic_cast<const FW_Brush2 *>(dispenser.getDevice(FW_Device::Brush2)))
        m_cleaning.secondBrush = *brush;
    takeAccurateCleaning(m_cleaning, dispenser.firstCleaningMotor());
    m_parameters = quv::writtenConfParameters(fields, m_cleaning);
    constexpr int firstBrush = 0;
    if (!FW_CleanJob::canConfigureCleaningType(FW_CleanJob::Quick, firstBrush, dispenser.model()))
        m_parameters[quickCleaningIndex] = Unavailable;
}

PUL_cdata::PUL_cdata(QStringList tokens, int fieldCount) : ConfData(structureCode, tokens)
{
    clear();
    quv::readConfTokens(fields, codes, tokens, m_enabledFieldLength, fieldCount, m_parameters, Q_FUNC_INFO);
    quv::updateLocalDataOrThrow(*this, codes.tokensData, Q_FUNC_INFO);
}

PUL_cdata::PUL_cdata(QString row) : ConfData(structureCode, row)
{
    clear();
    quv::updateLocalDataOrThrow(*this, codes.textData, Q_FUNC_INFO);
}

PUL_cdata *PUL_cdata::clone() const
{
    return new PUL_cdata(*this);
}

QStringList PUL_cdata::labels()
{
    return quv::confLabels(fields);
}

void PUL_cdata::clear()
{
    m_cleaning.brush.setDefaults(true);
    m_cleaning.secondBrush.setDefaults(true);
    constexpr int allCircuits = 0;
    m_cleaning.accuratePolicy =
        FW_CleaningMotor::cleanPolicyFwMask(FW_CleanJob::defaultScheduleMaskValue(FW_CleanJob::Accurate, -1),
                                            allCircuits, FW_CleanJob::defaultProcessTypeValue(-1));
    m_cleaning.accurateDuration = FW_CleaningMotor::defaultDurationValue(-1);
    m_cleaning.accurateTurntableSpeed = CleaningConf().accurateTurntableSpeed;
}

bool PUL_cdata::updateLocalData(QString *error)
{
    return quv::readConfParameters(fields, m_parameters, m_cleaning, error);
}

bool PUL_cdata::updateConfiguration(FW_Machine *machine, FW_CalibrationProfiles *, QList<int> *) const
{
    if (m_cmdEnabled == Absent)
        return true;
    auto *dispenser = dynamic_cast<FW_Dispenser *>(machine);
    if (!dispenser)
        return false;
    const bool enabled = m_cmdEnabled == Enabled;
    giveBrush(*dispenser, FW_Brush(m_cleaning.brush), enabled);
    if (m_cleaning.secondBrush.position() > 0)
        giveBrush(*dispenser, FW_Brush2(m_cleaning.secondBrush), enabled);
    return giveAccurateCleaning(*dispenser);
}

bool PUL_cdata::giveAccurateCleaning(FW_Dispenser &dispenser) const
{
    if (m_cleaning.accurateDuration == 0) {
        dispenser.removeAllCleaningMotors();
        return true;
    }
    int schedule = 0;
    int target = 0;
    int process = 0;
    if (!FW_CleaningMotor::decodeCleanPolicyFwMask(m_cleaning.accuratePolicy, schedule, target, process))
        return false;
    const auto setUp = [&](FW_CleaningMotor &motor) {
        motor.setScheduleMask(schedule);
        motor.setTarget(target);
        motor.setProcess(process);
        motor.setDuration(m_cleaning.accurateDuration);
        motor.setTurntableSpeed(m_cleaning.accurateTurntableSpeed);
    };
    if (!dispenser.firstCleaningMotor()) {
        FW_CleaningMotor motor(dispenser.model());
        setUp(motor);
        dispenser.setCleaningMotor(motor);
        return true;
    }
    for (FW_CleaningMotor *motor : dispenser.changeableCleaningMotors())
        setUp(*motor);
    return true;
}

XmlRpc::XmlRpcValue PUL_cdata::toXmlRpcValue() const
{
    return confData_toXmlRpcValue();
}
