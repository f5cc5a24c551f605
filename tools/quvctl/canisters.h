// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "driver.h"

#include "masterdata/canisterdata.h"

#include <optional>

namespace quv {

/// Those of the driver's dispenser; nothing when the driver does not tell them. \throws TransportError
std::optional<QList<CanisterData>> canistersOf(const Driver &driver);

/// How a canister's level stands to what somebody should look at.
enum class Level { Good, BelowWarning, BelowReserve };

Level levelOf(const CanisterData &canister);
/// As in "canister 2 (B) is below its warning level: 90 of 1000".
QString levelInWords(const CanisterData &canister);

/// To append to an error about a code that no canister has: '; did you mean "B"?' for one that is told apart by capitals alone;
/// otherwise nothing.
QString didYouMeanColorant(const QString &code, const QList<CanisterData> &canisters);

/// A line a canister: what it holds, with a bar, its warning and its reserve.
void printCanisters(const QList<CanisterData> &canisters);
OrderedJson canistersJson(const QList<CanisterData> &canisters);

} // namespace quv
