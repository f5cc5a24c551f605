// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/serialprotocommand.h"
#include "catalogue/protocommandlist.h"
#include "ratios.h"
#include "suites.h"

#include <memory>
#include <vector>

namespace {

std::vector<QString> allNames()
{
    std::vector<QString> names;
    for (int id = 0; id < ProtoCommandList::rowCount; ++id)
        names.push_back(ProtoCommandList::row(id)->name);
    return names;
}

} // namespace

void quv::addCatalogueRatios()
{
    const QString last = QString::fromLatin1("PAUSE"); // not the table's own string
    addRatio("catalogue: query of the last row", 1.1,
             repeat([last] { return ProtoCommandList::erogationCommand(last); }),
             repeat([last, names = allNames()] {
                 for (std::size_t i = 0; i < names.size(); ++i) {
                     if (names[i] == last)
                         return static_cast<int>(i);
                 }
                 return -1;
             }));

    XmlRpc::XmlRpcValue arguments;
    arguments[0] = 3;
    const QString name = QString::fromLatin1("GET_STATUS");
    // bare: one heap object that holds the name and the position, and the reading of the position
    struct Bare
    {
        QString name;
        int position = 0;
    };
    addRatio("factory: GET_STATUS from a value", 0, repeat([name, arguments]() mutable {
                 return std::unique_ptr<ProtoCommand>(
                     ProtoCommandList::getProtoCommand(name, arguments, nullptr));
             }),
             repeat([name, arguments]() mutable {
                 return std::make_unique<Bare>(Bare{name, static_cast<const int &>(arguments[0])});
             }));
}
