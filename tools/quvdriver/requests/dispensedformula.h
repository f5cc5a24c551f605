// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

class ProtoCommand;

namespace quv {

class DrivenMachine;

/**
 * Makes the firmware's answer to GET_DISPENSED_FORMULA, which is by circuit positions and in steps, one by what the command asks
 * for: circuits, canisters or colorants, each added up, in strokes or in weight or volume.
 *
 * \throws CallRefusal DE03143 for a circuit that cannot be told so
 */
void answerAsAsked(ProtoCommand &command, const DrivenMachine &machine);

} // namespace quv
