// SPDX-License-Identifier: LGPL-3.0-or-later
#include <QuvFramework/fw_metatype.h>
#include <QuvFramework/fw_program.h>
#include <QuvFramework/fw_serial.h>
#include <QuvFramework/fw_xmlrpc.h>

#include <stdexcept>

namespace {

using XmlRpc::XmlRpcValue;

constexpr int wholeVersion = 6;
constexpr int shortVersion = 2;

const bool isRegistered = RegisterTravellingType<FW_Program>("FW_Program");

[[noreturn]] void refuse(const char *text)
{
    throw std::invalid_argument(text);
}

QList<int> numbersOf(const QStringList &tokens)
{
    QList<int> numbers;
    bool ok = true;
    for (unsigned int next = 0; next < static_cast<unsigned int>(tokens.size());) {
        numbers.append(parseSerialAnswer(tokens, next, &ok));
        if (!ok)
            refuse("a token of the program is no number");
    }
    return numbers;
}

FW_Version versionOf(const QList<int> &numbers)
{
    if (numbers.size() == shortVersion)
        return {numbers.at(0), numbers.at(1)};
    if (numbers.size() != wholeVersion)
        refuse("a version has another number of integers");
    return {numbers.at(0), numbers.at(1), numbers.at(2), numbers.at(3), numbers.at(4), numbers.at(5)};
}

/** How many of the numbers are the application's: all, or half of them when the boot loader is told as well. */
int sizeOfApplication(int numbers)
{
    return numbers == 2 * shortVersion || numbers == 2 * wholeVersion ? numbers / 2 : numbers;
}

FW_Version requiredVersion(const XmlRpcValue &value, const char *key)
{
    QList<int> numbers;
    if (!DecodeXmlRpcValue(value, QLatin1String(key), numbers))
        refuse("a version of the program is missing or no array of integers");
    if (numbers.isEmpty())
        return {};
    const FW_Version version = numbers.size() == wholeVersion ? versionOf(numbers) : FW_Version();
    if (!version.isValid())
        refuse("a version of the program is not six integers from 0 up");
    return version;
}

QList<int> numbersOf(const FW_Version &version)
{
    if (!version.isValid())
        return {};
    return {version.m_family, version.m_hardware, version.m_major,
            version.m_minor,  version.m_patch,    version.m_revision};
}

} // namespace

FW_Program::FW_Program(int boardAddress, const FW_Version &application, const FW_Version &bootLoader)
    : m_boardAddress(boardAddress),
      m_application(application),
      m_bootLoader(bootLoader)
{}

FW_Program::FW_Program(const QStringList &tokens, bool isSlave)
{
    QList<int> numbers = numbersOf(tokens);
    if (isSlave && !numbers.isEmpty())
        m_boardAddress = numbers.takeFirst();
    const int ofApplication = sizeOfApplication(numbers.size());
    m_application = versionOf(numbers.mid(0, ofApplication));
    if (ofApplication < numbers.size())
        m_bootLoader = versionOf(numbers.mid(ofApplication));
}

FW_Program::FW_Program(const XmlRpcValue &value)
    : m_application(requiredVersion(value, APP_VERSION)),
      m_bootLoader(requiredVersion(value, BOOT_VERSION))
{
    if (!DecodeXmlRpcValue(value, QLatin1String(BOARD_ADDRESS), m_boardAddress))
        refuse("the program's board address is missing or no integer");
}

XmlRpcValue FW_Program::toXmlRpcValue() const
{
    XmlRpcValue value;
    value[BOARD_ADDRESS] = m_boardAddress;
    EncodeXmlRpcValue(value, QLatin1String(APP_VERSION), numbersOf(m_application));
    EncodeXmlRpcValue(value, QLatin1String(BOOT_VERSION), numbersOf(m_bootLoader));
    return value;
}

bool FW_Program::operator==(const FW_Program &other) const
{
    return m_boardAddress == other.m_boardAddress && m_application == other.m_application &&
           m_bootLoader == other.m_bootLoader;
}
