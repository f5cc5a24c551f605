// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/decoding_p.h"
#include "base/refusal_p.h"

#include <QuvFramework/formula.h>
#include <QuvFramework/fw_dispenser.h>
#include <QuvFramework/fw_exception.h>
#include <QuvFramework/fw_serial.h>
#include <QuvFramework/purgeformula.h>

#include <QtCore/QList>
#include <QtCore/QLoggingCategory>
#include <QtCore/QMap>
#include <QtCore/QVariant>

#include <xmlrpcpp/XmlRpcValue.h>

#include <memory>
#include <stdexcept>

class ProtoCommand;

// What the commands that carry a formula share.

namespace quv {

/** What the driver is about to pour, at debug level: "quvprotocol.dispensing". */
Q_DECLARE_LOGGING_CATEGORY(dispensingLog)

template <>
inline constexpr const char *markOf<Formula> = Formula::FORMULA_TYPE;
template <>
inline constexpr const char *markOf<PurgeFormula> = PurgeFormula::PURGE_QUANTITY;
template <>
inline constexpr const char *nameOf<Formula> = "formula";
template <>
inline constexpr const char *nameOf<PurgeFormula> = "purge formula";

/** Runs a check of the form bool (FW_DriverError &) and throws the error that it filled when it is false. */
template <class Check>
void require(const char *function, Check check)
{
    FW_DriverError error;
    if (!check(error))
        throw FW_Exception(error, function);
}

/** Throws what the command's checkFormula says, when there is a dispenser to check the formula by. */
template <class Command>
void requireGoodFormula(const Command &command, const FW_Dispenser *dispenser, const char *function)
{
    if (dispenser)
        require(function, [&](FW_DriverError &error) { return command.checkFormula(error); });
}

/** The command's machine, when it is a dispenser. */
const FW_Dispenser *dispenserOf(const ProtoCommand &command);

/** What the three commands that check levels call the outcomes; the texts are the same for all. */
struct LevelsCodes
{
    const char *failed = ""; ///< no check was possible; where levels are taken off before, that fails first
    const char *belowReserve = ""; ///< result 200
    const char *belowZero = "";    ///< result 300
    const char *worse = "";        ///< above 300
};

/** True when \a pour, the formula of what the canisters lose, leaves enough in them. */
bool levelsSuffice(const Formula &pour, const FW_Dispenser *dispenser, const LevelsCodes &codes,
                   FW_DriverError &error);

/** What a pour by weight or steps is refused with; the texts are the same for a tint and a purge. */
struct PourCodes
{
    const char *dispenser = "";
    const char *negative = "";
    LevelsCodes levels;
    const char *empty = "";
    const char *steps = "";
    const char *speed = "";
    const char *noNozzleValve = nullptr; ///< without it nozzle valves are not looked at
    const char *nozzleValve = "";
};

/** Checks before a pour that the command's machine can do what the formula asks; stops at the first failure. */
bool canPour(const ProtoCommand &command, const Formula &formula, const PourCodes &codes,
             FW_DriverError &error);

/** What the check of a pour has worked out. The command's machine never changes, so it is good for this formula for ever. */
struct CheckedPour
{
    Formula formula;
    CircuitFormulaItemList items;
};

/** Throws what canPour fails with, when there is a dispenser to check the formula by; without one null. */
std::shared_ptr<const CheckedPour> checkedPour(const ProtoCommand &command, const Formula &formula,
                                               const FW_Dispenser *dispenser, const PourCodes &codes,
                                               const char *function);

/**
 * The circuits of a command's formula on its own machine, worked out only when it is not the formula of the check. False when
 * the command has no dispenser, or none that has all that the formula names.
 */
bool pouredItems(const ProtoCommand &command, const Formula &formula,
                 const std::shared_ptr<const CheckedPour> &checked, CircuitFormulaItemList &items);

/** True for a command that has been renamed to TINT2, which tells the firmware more of each circuit. */
bool isTint2(const ProtoCommand &command);

/** The integers of a tint or a purge that pours \a items. */
QList<int> pourParameters(const ProtoCommand &command, const Formula &formula,
                          const CircuitFormulaItemList &items, bool purge);

/** What a default movement of the automatic cap adds to the time of a pour. */
long long autocapTime(const FW_Dispenser *dispenser);

} // namespace quv
