// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QuvFramework/fw_errorlist.h>

#include <xmlrpcpp/XmlRpcValue.h>

namespace quv {

/// The return codes of the envelope that this driver gives.
enum RetCode {
    Done = 0,
    InvalidRequest = 1,
    InvalidSerialAnswer = 2,
    UnknownToFirmware = 3,
    RefusedByFirmware = 4,
    NotConfigured = 5,
    NotCarriedOut = 6,
    Interrupted = 7,
    OtherFailure = 8
};

/// A request that the driver itself refuses. Caught where the envelope is made.
struct CallRefusal
{
    CallRefusal(RetCode code, const FW_DriverError &error) : retCode(code) { errors.append(error); }
    CallRefusal(RetCode code, FW_ErrorList reasons, const XmlRpc::XmlRpcValue &value = XmlRpc::XmlRpcValue(0))
        : retCode(code),
          errors(std::move(reasons)),
          answer(value)
    {}

    RetCode retCode = OtherFailure;
    FW_ErrorList errors{};
    XmlRpc::XmlRpcValue answer = XmlRpc::XmlRpcValue(0); ///< what would be good instead; 0 for nothing
};

[[noreturn]] inline void refuse(RetCode retCode, const char *code, const QString &text)
{
    throw CallRefusal(retCode, FW_DriverError(QLatin1String(code), text));
}

[[noreturn]] inline void refuseWithoutMachine()
{
    refuse(NotConfigured, "DE03104",
           QStringLiteral("This driver has no machine that carries out this command"));
}

} // namespace quv
