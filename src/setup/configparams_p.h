// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/record_p.h"
#include "setup/configparams.h"

namespace quv {

constexpr char badConfigParam[] = "Configuration param command: error in value decoding";
constexpr Refusal noConfigParams = {"DE02815", badConfigParam};

} // namespace quv

/** The member of the struct, for every class that derives from it. */
struct ConfigParams::Description
{
    template <class T>
    static std::vector<quv::Member<T>> members()
    {
        quv::Member<T> params(configParams_TAG, &ConfigParams::m_configParams, quv::noConfigParams,
                              quv::noConfigParams);
        return {params.meaning("the parameters by their names")};
    }
};
