// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <string>

namespace quv {

/**
 * Registers a piece of work beside its bare cost: the same result by hand, without the library. Both run interleaved in
 * one process, and the report gives the ratio of their medians with the greatest ratio that is aimed at (0: none).
 */
void addRatio(const std::string &name, double aim, std::function<void(benchmark::State &)> library,
              std::function<void(benchmark::State &)> bare);

/** The usual loop around work whose result must not be optimised away. */
template <class Work>
std::function<void(benchmark::State &)> repeat(Work work)
{
    return [work](benchmark::State &state) mutable {
        for (auto _ : state) {
            auto result = work();
            benchmark::DoNotOptimize(result);
        }
    };
}

/** Runs all that was added, as the command line says, and prints the ratios. The program's exit status. */
int runRatios(int argc, char **argv);

} // namespace quv
