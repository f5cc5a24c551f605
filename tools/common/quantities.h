// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/formula.h>

// The quantities of formulas, as driver and clients look at them before a pour.

namespace quv {

/// The formula with each ID once, its quantities added up, in the order in which they come first.
Formula addedUp(const Formula &formula);

/// All that the formula asks of one ID, in its own unit.
double quantityIn(const Formula &formula, const QString &id);

/// The nearest number of steps or strokes that a machine pours: a whole one, and never none.
double nearestCount(double asked);

/// Whether what is poured is within 1 % of what is asked.
bool isNear(double poured, double asked);

/// A quantity for people: six digits at most, but a whole number in full.
QString quantityInWords(double quantity);

} // namespace quv
