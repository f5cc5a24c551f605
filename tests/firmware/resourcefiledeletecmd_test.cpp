// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/resourcefiledeletecmd.h"

#include "base/commandcontract.h"

#include <type_traits>

namespace {

using namespace testing_base;

using Cmd = ResourceFileDeleteCmd;

TEST(ResourceFileDeleteCmd, keepsTheCommandContract)
{
    CommandFacts facts(formsOf<Cmd>());
    facts.catalogue = {"RES_FILE_DELETE", 152, "", 1};
    facts.protoType = 1;
    facts.valueFunction = "ResourceFileDeleteCmd::ResourceFileDeleteCmd(const XmlRpc::XmlRpcValue&)";
    facts.listFunction = "ResourceFileDeleteCmd::ResourceFileDeleteCmd(QList<QVariant>)";
    facts.arguments = {required(Integer, {"DE02774", "DE02776", "ResourceFileDeleteCmd: invalid parameter",
                                          "ResourceFileDeleteCmd: bad parameter"})
                           .takes({-1, 0, 2147483647})};
    facts.getters = {getter(&Cmd::resource)};
    facts.words = Words("Resource file delete", "Deleting resource file");
    facts.defaults = Request().parameters({0}).written("[0]");
    facts.requests = {Request({243}).typed<Cmd>(243).written("[243]")};
    facts.answers = serialAnswers();
    expectCommandContract(facts);
    static_assert(!std::is_constructible_v<Cmd, bool>);
    static_assert(!std::is_constructible_v<Cmd, double>);
    static_assert(!std::is_constructible_v<Cmd, const char *>);
}

} // namespace
