// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/commandrefusederror.h"

#include "base/tokens_p.h"
#include "base/translation_p.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace {

/** A reason: its name in the struct, its bit of a mask, its code, and its text, marked with QT_TRANSLATE_NOOP. */
struct Reason
{
    const char *key;
    bool CommandRefusedError::*flag;
    std::size_t mask;
    unsigned bit;
    int code;
    const char *text;
};

using Error = CommandRefusedError;

// there is no code 7: clients know the others by their numbers
constexpr Reason reasons[] = {
    {"field_out_of_range", &Error::field_out_of_range, 1, 0, 1,
     QT_TRANSLATE_NOOP("QuvProtocol", "One or more fields contain values out of range")},
    {"no_etx", &Error::no_etx, 1, 1, 2, QT_TRANSLATE_NOOP("QuvProtocol", "ETX not present")},
    {"bad_checksum", &Error::bad_checksum, 1, 2, 3, QT_TRANSLATE_NOOP("QuvProtocol", "Bad checksum")},
    {"bad_cmd_code", &Error::bad_cmd_code, 1, 3, 4, QT_TRANSLATE_NOOP("QuvProtocol", "Unknown command code")},
    {"bad_position_id", &Error::bad_position_id, 1, 4, 5,
     QT_TRANSLATE_NOOP("QuvProtocol", "Wrong position ID")},
    {"bad_cmd_parameters", &Error::bad_cmd_parameters, 1, 5, 6,
     QT_TRANSLATE_NOOP("QuvProtocol", "Bad command parameters")},
    {"cmd_refused_error_state", &Error::cmd_refused_error_state, 2, 0, 8,
     QT_TRANSLATE_NOOP("QuvProtocol", "Command refused because of errors")},
    {"conf_write_error", &Error::conf_write_error, 2, 1, 9,
     QT_TRANSLATE_NOOP("QuvProtocol", "Configuration writing error")},
    {"conf_row_write_error", &Error::conf_row_write_error, 2, 2, 10,
     QT_TRANSLATE_NOOP("QuvProtocol", "Configuration row writing error")},
    {"dispenser_not_available", &Error::dispenser_not_available, 2, 3, 11,
     QT_TRANSLATE_NOOP("QuvProtocol", "Machine not available")},
    {"bad_working_mode", &Error::bad_working_mode, 2, 4, 12,
     QT_TRANSLATE_NOOP("QuvProtocol", "Bad working mode")},
};

} // namespace

CommandRefusedError::CommandRefusedError(const XmlRpc::XmlRpcValue &) {}

CommandRefusedError::CommandRefusedError(QStringList tokens)
{
    quv::TokenReader reader(tokens, 0, Q_FUNC_INFO);
    reader.require(2, {"DE00868", "Error during command refused error decoding: bad length"});
    std::array<unsigned, 3> masks{}; // by their numbers
    masks[1] = reader.nextUnsigned({"DE00869", "Error during command refused error decoding: mask 1"});
    masks[2] = reader.nextUnsigned({"DE00870", "Error during command refused error decoding: mask 2"});
    for (const Reason &reason : reasons)
        this->*reason.flag = (masks[reason.mask] >> reason.bit & 1U) != 0;
}

CommandRefusedError *CommandRefusedError::clone() const
{
    return new CommandRefusedError(*this);
}

void CommandRefusedError::clear()
{
    *this = CommandRefusedError();
}

bool CommandRefusedError::operator==(const CommandRefusedError &other) const
{
    return std::all_of(std::begin(reasons), std::end(reasons),
                       [&](const Reason &reason) { return this->*reason.flag == other.*reason.flag; });
}

bool CommandRefusedError::hasErrors() const
{
    return *this != CommandRefusedError();
}

QStringList CommandRefusedError::getCommandRefusedErrorDescriptions() const
{
    QStringList texts;
    for (const Reason &reason : reasons)
        if (this->*reason.flag)
            texts.append(quv::translated(reason.text));
    return texts;
}

QList<int> CommandRefusedError::getCommandRefusedErrorCodes() const
{
    QList<int> codes;
    for (const Reason &reason : reasons)
        if (this->*reason.flag)
            codes.append(reason.code);
    return codes;
}

XmlRpc::XmlRpcValue CommandRefusedError::toXmlRpcValue() const
{
    XmlRpc::XmlRpcValue value;
    for (const Reason &reason : reasons)
        value[reason.key] = this->*reason.flag;
    return value;
}
