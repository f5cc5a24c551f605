// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/describedanswer_p.h"
#include "firmware/fwresourcedata_p.h"
#include "firmware/resourcefilemanagementbase.h"

namespace quv {

constexpr char invalidResourceData[] = "ResourceFileManagementBase: invalid parameter";

constexpr Refusal noResourceData = {"DE02735", invalidResourceData};
constexpr Refusal emptyResourceList = {"DE02733",
                                       "ResourceFileManagementBase decoding failed: invalid QVariant value"};
constexpr Refusal otherThanResourceData = {
    "DE02732", "ResourceFileManagementBase: invalid FwResourceDataList parameter"};

} // namespace quv

struct ResourceFileManagementBase::Description
{
    using Base = ResourceFileManagementBase;

    static std::vector<quv::Member<Base>> members()
    {
        return {quv::Member<Base>(resourceData_TAG, &Base::m_resourceData, quv::noResourceData,
                                  quv::otherThanResourceData)
                    .unmade({"DE02734", quv::invalidResourceData})
                    .meaning("read as a struct of subcmd, res_index, block_address and data; written as an "
                             "array of four ints, the last 0 unless the data is a decimal number")};
    }
};
