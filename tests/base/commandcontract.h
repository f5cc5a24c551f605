// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/commandfacts.h"

// What is alike in all command classes, checked from literal facts:
//
//     CommandFacts facts() { CommandFacts facts(formsOf<FooBarCmd>()); facts.name = "FOO_BAR"; ... }
//
//     TEST(FooBarCmd, keepsTheCommandContract) { expectCommandContract(facts()); }

namespace testing_base {

/**
 * Expects that no fact is left out, and then: the row of the catalogue; every request in every form, its copies and what is
 * read back of it; the default constructor and setDefaults; which firmware has the command; the refusals of arguments; and
 * the contract of answers.
 */
void expectCommandContract(const CommandFacts &facts);

} // namespace testing_base
