// SPDX-License-Identifier: LGPL-3.0-or-later
#include "replies.h"

#include "machines.h"

#include <cstdlib>
#include <cxxabi.h>

namespace quv {

OrderedJson success()
{
    return OrderedJson::object({{"ok", true}});
}

std::string typeName(const std::type_info &type)
{
    int status = 0;
    const std::unique_ptr<char, void (*)(void *)> name(
        abi::__cxa_demangle(type.name(), nullptr, nullptr, &status), std::free);
    return status == 0 ? name.get() : type.name();
}

OrderedJson numbers(const QList<int> &list)
{
    OrderedJson array = OrderedJson::array();
    for (const int number : list)
        array.push_back(number);
    return array;
}

std::unique_ptr<FW_Machine> machineOf(const Request &request)
{
    try {
        return machineByName(request.text("machine", QStringLiteral("none")));
    } catch (const BadRequest &) {
        throw;
    } catch (const std::runtime_error &error) {
        throw BadRequest(error.what());
    }
}

} // namespace quv
