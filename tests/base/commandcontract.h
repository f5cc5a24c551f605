// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/commandfacts.h"

// What is alike in all command classes, checked from literal facts:
//
//     CommandFacts facts() { CommandFacts facts(formsOf<FooBarCmd>()); facts.name = "FOO_BAR"; ... }
//
//     TEST(FooBarCmd, keepsTheCommandContract) { expectCommandContract(facts()); }

namespace testing_base {

/** Expects all that follows, and that no fact is left out. */
void expectCommandContract(const CommandFacts &facts);

/**
 * Expects of every request in every form, of its copies and of what is read back: name, parameters, request, integers, module,
 * time and words; and of the default constructor.
 */
void expectRequests(const CommandFacts &facts);

/** Expects that arguments which are absent, of another type or out of range are refused, each in both forms. */
void expectRefusals(const CommandFacts &facts);

} // namespace testing_base
