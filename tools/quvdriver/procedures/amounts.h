// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/formula.h>

#include <QtCore/QString>

#include <optional>
#include <vector>

class FW_Circuit;
class FW_Dispenser;
class ProtoCommand;

namespace quv {

/// How much of one thing a pour is asked for, and how much of it the machine can pour.
struct Amount
{
    FormulaItem asked{}; ///< in the formula's words and unit
    int position = 0;    ///< of the circuit that it comes from
    qint64 steps = 0;    ///< the nearest that the motor can turn, 1 at least
    std::optional<double>
        nearest{}; ///< what they are in the formula's unit; nothing when the circuit cannot tell
};

/// The amounts of a formula, each ID once, in the formula's order; none when it does not fit the dispenser.
std::vector<Amount> amountsOf(const Formula &formula, const FW_Dispenser &dispenser);

/// The formula among the command's arguments, if any.
std::optional<Formula> formulaOf(const ProtoCommand &command);

/// The formula that the command pours on its dispenser; nothing for a command that pours none.
std::optional<Formula> pouredFormula(const ProtoCommand &command);

/// So many steps of the circuit in \a unit, a Formula::QuantityUnit; nothing when the circuit cannot tell.
std::optional<double> quantityOf(qint64 steps, const FW_Circuit &circuit, int unit);

/// "B", or circuit 3: what a text calls it.
QString nameInWords(const QString &id, int formulaType);

/**
 * Checks that the machine can pour what the command asks for: nothing of which 0 is asked, and nothing that rounds to steps or
 * strokes that are more than 1 % away. \throws CallRefusal DE03140, DE03141; its answer is the formula as it can be poured, or 0
 * when nothing would be left of it
 */
void requirePourableAmounts(const ProtoCommand &command);

} // namespace quv
