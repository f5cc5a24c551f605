// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "commandline.h"
#include "executed.h"

#include <QuvFramework/formula.h>

#include <optional>

namespace quv {

/// What a pour was asked for and what left the nozzles, in the words of the formula.
struct PourReport
{
    struct Item
    {
        QString id{};
        // in the formula's own unit; nothing when that is steps, or the driver cannot tell it so
        std::optional<double> asked{};
        std::optional<double> poured{};
        std::optional<double> left{};
        double askedSteps = 0; ///< as they are asked for in a formula of steps
        double pouredSteps = 0;
        bool isAll = true; ///< all of the steps that the machine makes of it
    };

    int formulaType = 0;
    int quantityUnit = 0;
    QVector<Item> items{};

    QStringList lacking() const; ///< of which less was poured than asked
};

/// What the user asked for, and what is sent: the nearest of it that the machine can pour.
struct PourOrder
{
    Formula asked{};
    Formula sent{};
};

/// What the machine poured last; nothing when that was not the pour of the order.
std::optional<PourReport> pourReport(const Driver &driver, const PourOrder &order);
void printReport(const PourReport &report);
OrderedJson reportJson(const PourReport &report);

/// What the driver's machine would do for a formula that it would not refuse.
struct PourPlan
{
    struct Item
    {
        QString id{}; ///< as the formula calls it; empty, as is the amount, when that cannot be told
        std::optional<double> asked{};
        QString position{};
        double steps = 0;
    };

    int formulaType = 0;
    QVector<Item> items{};
    long long time = 0;    ///< milliseconds; 0 when nobody knows
    bool isEnough = false; ///< no canister would fall below its critical level
};

PourPlan pourPlan(const Driver &driver, const PourOrder &order);
void printPlan(const PourPlan &plan);
OrderedJson planJson(const PourPlan &plan);

} // namespace quv
