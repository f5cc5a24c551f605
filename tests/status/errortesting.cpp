// SPDX-License-Identifier: LGPL-3.0-or-later
#include "status/errortesting.h"

#include <sstream>

namespace testing_status {

namespace {

template <class Error>
void showNumbers(std::ostream &out, const Error &error)
{
    out << error.code() << ' ' << error.module() << ' ' << error.value() << ' '
        << (error.flag() ? "true" : "false");
}

void show(std::ostream &out, const FW_Error &error)
{
    if (const auto *hardware = dynamic_cast<const FW_HwError *>(&error)) {
        showNumbers(out << "hw ", *hardware);
        out << ' ' << static_cast<int>(hardware->device());
    } else if (const auto *configuration = dynamic_cast<const FW_ConfError *>(&error)) {
        showNumbers(out << "conf ", *configuration);
    } else if (const auto *driver = dynamic_cast<const FW_DriverError *>(&error)) {
        out << "driver " << driver->code().toStdString();
    }
}

} // namespace

QStringList tokensOf(const char *line)
{
    return QString::fromLatin1(line).split(QLatin1Char(' '));
}

Value driverErrorStruct(const char *code)
{
    return structOf({{"error_type", 1}, {"timestamp", errorTime}, {"code", code}, {"text", "as told"}});
}

Value hardwareErrorStruct(int code)
{
    return structOf({{"error_type", 2},
                     {"timestamp", errorTime},
                     {"code", code},
                     {"module", 7},
                     {"value", 31},
                     {"flag", true},
                     {"device", 4}});
}

Value configurationErrorStruct(int code)
{
    return structOf({{"error_type", 3},
                     {"timestamp", errorTime},
                     {"code", code},
                     {"module", 2},
                     {"value", 5},
                     {"flag", false}});
}

std::string shown(const FW_ErrorList &errors)
{
    std::ostringstream out;
    for (int i = 0; i < errors.size(); ++i) {
        out << (i == 0 ? "" : ", ");
        show(out, *errors[i]);
    }
    return out.str();
}

} // namespace testing_status
