// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/basetesting.h"

// A weight as it travels, for the tests of all that it answers.

namespace testing_scale {

using namespace testing_base;

constexpr char weightDump[] =
    R"({"precision": 2, "stable_weight": false, "unit": 1, "weight_value": 12.2500})";
constexpr char weightOfValue[] = "WeightAnswer::WeightAnswer(const XmlRpc::XmlRpcValue&)";
constexpr char weightOfList[] = "WeightAnswer::WeightAnswer(QList<QVariant>&)";

inline Value weightStruct()
{
    return structOf({{"weight_value", 12.25}, {"unit", 1}, {"stable_weight", false}, {"precision", 2}});
}

inline List weightList()
{
    return {12.25, 1, false, 2};
}

} // namespace testing_scale
