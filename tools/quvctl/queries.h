// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "request.h"

struct CMD_STRUCT;

namespace quv {

/// A row of the catalogue, each field under its own name.
OrderedJson catalogueRow(const CMD_STRUCT &row);
OrderedJson allRows();

/// The catalogue's query that "what" names. \throws BadRequest
OrderedJson askCatalogue(const Request &request);

} // namespace quv
