// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/refusal_p.h"

#include <QuvFramework/fw_gravimetricsettings.h>

#include <xmlrpcpp/XmlRpcValue.h>

namespace quv {

constexpr char gravSettingsNotRead[] = "SetGravSettingsCmd: error in xmlrpc decoding";
constexpr Refusal noGravSettingsStruct = {"DE02405", gravSettingsNotRead};
constexpr Refusal noGravSettingsArray = {"DE02406", gravSettingsNotRead};
constexpr Refusal badGravSettings = {"DE02407", gravSettingsNotRead};
constexpr Refusal badGravSettingsInList = {"DE02408",
                                           "GravSettingsBase decoding failed: invalid QVariant value"};

constexpr char tellsGravSettings[] =
    "of each circuit \"position_id\", \"tolerance\" (grams) and \"max_corrections\"";
constexpr char gravSettingsArgument[] =
    "\"circuits_grav_settings\", as the answer to GET_GRAV_SETTINGS tells it (in a list the array alone)";

/**
 * The settings of a struct. Nobody tells the pump: what is left out is that of the usual one. Throws \a refusal for what cannot be
 * read and has no refusal of its own.
 */
GravimetricSettings gravSettingsOf(const XmlRpc::XmlRpcValue &value, const Refusal &refusal,
                                   const char *function);

} // namespace quv
