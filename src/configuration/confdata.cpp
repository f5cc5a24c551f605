// SPDX-License-Identifier: LGPL-3.0-or-later
#include "configuration/confdata.h"

#include "base/tokens_p.h"
#include "base/wire_p.h"
#include "configuration/confclasses_p.h"
#include "configuration/confrow_p.h"

#include <QuvFramework/fw_exception.h>
#include <QuvFramework/fw_serial.h>
#include <QuvFramework/fw_utils.h>

#include <algorithm>
#include <limits>

namespace {

constexpr int nameCode = 2; // its second part is a text

struct Structure
{
    const char *name;
    bool onDispenser;
    bool onMixer;
    bool multiple;
};

/** By code, from 1 on. */
constexpr Structure structures[] = {
    {"@ICS", true, true, false},  {"@NOM", true, true, false},   {"@GMC", true, false, false},
    {"@ACP", true, false, false}, {"@CPT", true, false, true},   {"@AGI", true, false, true},
    {"@HUM", true, false, false}, {"@TEM", true, false, false},  {"@SGA", true, false, false},
    {"@RAM", true, false, true},  {"@FOT", true, false, false},  {"@AUT", false, false, false},
    {"@BHL", true, false, false}, {"@LIT", true, false, false},  {"@TTD", true, false, false},
    {"@PUL", true, false, false}, {"@HEA", true, false, false},  {"@NOZ", true, false, false},
    {"@MOT", true, false, true},  {"@LTD", true, false, false},  {"@USS", true, false, false},
    {"@PRO", true, false, true},  {"@ZDR", false, false, false}, {"@MIX", false, false, false},
    {"@LCK", true, false, false}, {"@PLC", true, false, false},
};
constexpr int structureCount = static_cast<int>(std::size(structures));

const Structure *structureOf(int code)
{
    return code >= 1 && code <= structureCount ? &structures[code - 1] : nullptr;
}

} // namespace

namespace quv {

int confFieldLength(const QStringList &tokens, int begin)
{
    unsigned count = 0;
    const bool good = begin < tokens.size() && parseHex(tokens.at(begin), count) &&
                      count < static_cast<unsigned>(tokens.size() - begin);
    return good ? static_cast<int>(count) : 0;
}

int confField(const QStringList &tokens, int begin, int &value)
{
    value = 0;
    const int digits = confFieldLength(tokens, begin);
    constexpr long long greatest = std::numeric_limits<int>::max();
    long long number = 0;
    for (int i = digits; i > 0; --i) {
        unsigned digit = 0;
        if (!parseHex(tokens.at(begin + i), digit) || digit > greatest)
            return 0;
        number = number * serialBase + digit;
        if (number > greatest)
            return 0;
    }
    value = static_cast<int>(number);
    return digits;
}

QString confFieldNotFound(const QString &label)
{
    return QStringLiteral("%1 %2").arg(label, QStringLiteral("field not found in answer"));
}

QString confDataStr(const ConfData *row)
{
    return row ? QStringLiteral("%1 %2").arg(ConfData::confCommandToString(row->commandCode()),
                                             row->configurationParamsStr())
               : QString();
}

} // namespace quv

ConfData::~ConfData() = default;

ConfData::ConfData(int code, const FW_Machine *) : m_commandCode(code) {}

ConfData::ConfData(int code, QString row) : m_commandCode(code)
{
    const auto parts = row.splitRef(QLatin1Char(','));
    if (parts.isEmpty()) // the contract: an empty text still splits into one part, which is no number
        throw FW_Exception("DE00834", "Command enabled not found in answer", Q_FUNC_INFO);
    bool isNumber = false;
    m_cmdEnabled = parts.constFirst().toInt(&isNumber);
    if (!isNumber)
        throw FW_Exception("DE00151", "Invalid Command enabled type field in answer", Q_FUNC_INFO);
    m_parameters.reserve(parts.size() - 1);
    for (int i = 1; i < parts.size(); ++i) {
        m_parameters.append(parts.at(i).toInt(&isNumber));
        if (!isNumber && code != nameCode)
            throw FW_Exception("DE00152", "Invalid configuration parameter field in answer", Q_FUNC_INFO);
    }
}

ConfData::ConfData(int code, QStringList tokens) : m_commandCode(code)
{
    if (tokens.size() < 2)
        throw FW_Exception("DE00085", "Command enabled field not found in answer", Q_FUNC_INFO);
    m_enabledFieldLength = quv::confField(tokens, 0, m_cmdEnabled);
    if (m_enabledFieldLength == 0)
        throw FW_Exception("DE00086", "Invalid Command enabled field in answer", Q_FUNC_INFO);
}

QList<int> ConfData::serialParams(bool *ok) const
{
    QList<int> out;
    out.reserve(2 + 3 * m_parameters.size());
    bool good = createSerialParam(m_cmdEnabled, &out);
    for (const int parameter : m_parameters)
        good = createSerialParam(parameter, &out) && good;
    if (ok)
        *ok = good;
    return out;
}

QString ConfData::configurationParamsStr() const
{
    const QString enabled = QString::number(m_cmdEnabled);
    return m_parameters.isEmpty()
               ? enabled
               : enabled + QLatin1Char(',') + createListStr(m_parameters, QLatin1Char(','));
}

int ConfData::numOfConfigurationParams() const
{
    return m_parameters.size();
}

void ConfData::setCommandEnable(bool enabled)
{
    m_cmdEnabled = enabled ? Enabled : Disabled;
}

bool ConfData::checkCommandCode(int code)
{
    return structureOf(code) != nullptr;
}

QString ConfData::confCommandToString(int code)
{
    const Structure *structure = structureOf(code);
    return structure ? QString::fromLatin1(structure->name) : QString();
}

bool ConfData::isMultipleInstance(int code)
{
    const Structure *structure = structureOf(code);
    return structure && structure->multiple;
}

bool ConfData::checkCommandEnable(int cmd_enabled)
{
    return static_cast<unsigned>(cmd_enabled) < 3;
}

bool ConfData::isCommandCodeSupported(int code, SerialDeviceType type)
{
    const Structure *structure = structureOf(code);
    return structure && ((type == SerialDeviceType::Dispenser && structure->onDispenser) ||
                         (type == SerialDeviceType::Mixer && structure->onMixer));
}

QStringList ConfData::fieldLabels(int code)
{
    return quv::confFieldLabels(code);
}

bool ConfData::createSerialParam(int value, QList<int> *out)
{
    if (!out)
        return false;
    if (value >= 0 && value < quv::serialBase) { // nearly all there are
        out->append(1);
        out->append(value);
        return true;
    }
    const QList<int> digits = splitValue(value, quv::serialBase);
    out->append(digits.size());
    out->append(digits);
    return !digits.isEmpty();
}

bool ConfData::createSerialParam(QString value, QList<int> *out)
{
    if (!out)
        return false;
    out->append(value.size());
    for (const QChar character : value) {
        const ushort code = character.unicode();
        out->append(code > 255 ? 0 : static_cast<signed char>(code));
    }
    return true;
}

int ConfData::parseConfigurationParam(int *value, QStringList tokens)
{
    return quv::confField(tokens, 0, *value);
}

int ConfData::parseConfigurationParam(QString *value, QStringList tokens)
{
    value->clear();
    const int length = quv::confFieldLength(tokens, 0);
    if (length == 0)
        return 0;
    for (int i = 1; i < tokens.size(); ++i) {
        bool isNumber = false;
        const int code = tokens.at(i).toInt(&isNumber, 16);
        if (!isNumber || !isValidAsciiValue(code))
            return 0;
        value->append(QLatin1Char(static_cast<char>(code)));
    }
    return length;
}

bool ConfData::parseNextConfigurationParam(QString label, int *value, QStringList tokens, int *position,
                                           QString *error)
{
    const int digits = quv::confField(tokens, 0, *value);
    if (digits == 0) {
        if (error)
            *error = quv::confFieldNotFound(label);
        return false;
    }
    *position += digits + 1;
    return true;
}

bool ConfData::parseNextConfigurationParam(QString label, int *value, QList<int> params, int *position,
                                           QString *error)
{
    if (*position < 0 || *position >= params.size()) {
        if (error)
            *error = quv::confFieldNotFound(label);
        return false;
    }
    *value = params.at((*position)++);
    return true;
}

XmlRpc::XmlRpcValue ConfData::confData_toXmlRpcValue() const
{
    XmlRpc::XmlRpcValue value;
    value["cmd_enabled"] = m_cmdEnabled;
    return value;
}

void ConfData::confData_clear()
{
    m_cmdEnabled = Cleared;
    m_enabledFieldLength = 0;
    m_commandCode = 0;
    m_parameters.clear();
}
