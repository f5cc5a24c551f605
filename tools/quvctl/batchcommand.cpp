// SPDX-License-Identifier: LGPL-3.0-or-later
#include "batch.h"
#include "subcommands.h"
#include "terminal.h"

#include <iostream>

namespace quv {

namespace {

ExitStatus runBatchOfInput(const CommandLine &)
{
    std::ios::sync_with_stdio(false);
    runBatch(std::cin, std::cout);
    if (!std::cout)
        noteOutputFailure();
    return Done;
}

} // namespace

const Subcommand batchSubcommand = {
    "batch",
    "",
    "JSON requests in, JSON replies out",
    "Reads one JSON object a line on standard input and writes one reply a line on standard output, in "
    "order.\n"
    "A bad request gets a reply too. Operations: catalogue, query, encode, decode, answer, setanswer,\n"
    "envelope, supports, status, row, apply, refusal.",
    0,
    0,
    {},
    runBatchOfInput};

} // namespace quv
