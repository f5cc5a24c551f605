// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/objectfield_p.h"
#include "base/objectlist_p.h"
#include "firmware/fwresourcefile.h"

namespace quv {

constexpr char badResourceFile[] = "FwResourceFile: bad parameter";

constexpr Refusal badFileData = {"DE02719", badResourceFile};
constexpr Refusal badFileName = {"DE02720", badResourceFile};
constexpr Refusal badFileType = {"DE02721", badResourceFile};
constexpr Refusal badFileIndex = {"DE02782", badResourceFile};

template <>
inline constexpr const char *markOf<FwResourceFile> = FwResourceFile::dataStream_TAG;

template <>
inline constexpr std::array<std::pair<const char *, Refusal>, 4> ownRefusals<FwResourceFile> = {
    {{"without bytes as res_data_stream", badFileData},
     {"without a string as res_name", badFileName},
     {"without an int as res_type", badFileType},
     {"without an int as res_index", badFileIndex}}};

template <>
inline const FieldType &fieldType<FwResourceFile>()
{
    static constexpr FieldType type = objectType<FwResourceFile>();
    return type;
}

template <>
inline const FieldType &fieldType<QList<FwResourceFile>>()
{
    static constexpr FieldType type = objectListType<FwResourceFile>();
    return type;
}

} // namespace quv
