// SPDX-License-Identifier: LGPL-3.0-or-later
#include "base/basetesting.h"
#include "base/confprotoanswer.h"
#include "base/confprotocommand.h"
#include "base/scaleprotoanswer.h"
#include "base/scaleprotocommand.h"
#include "base/serialprotoanswer.h"
#include "base/serialprotocommand.h"
#include "base/tstring.h"
#include "base/xmlrpcanswer.h"
#include "status/machinestatusanswer.h"

#include <QuvFramework/fw_version.h>

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <vector>

// Programs that were built against an earlier library call through its tables and reach into its objects: the order of
// virtual operations and of data members must never change. Read as the compilers for Linux lay classes out: a destructor
// takes two places, and a pointer to a virtual operation holds the place in bytes, plus one.

namespace {

using namespace testing_base;

template <class Pointer>
int slotOf(Pointer operation)
{
    std::ptrdiff_t parts[2] = {};
    static_assert(sizeof(operation) == sizeof(parts));
    std::memcpy(parts, &operation, sizeof(parts));
    EXPECT_EQ(parts[0] & 1, 1) << "not virtual";
    return static_cast<int>((parts[0] - 1) / static_cast<std::ptrdiff_t>(sizeof(void *)));
}

template <class Pointer>
std::ptrdiff_t offsetOf(Pointer member)
{
    std::ptrdiff_t offset = 0;
    static_assert(sizeof(member) == sizeof(offset));
    std::memcpy(&offset, &member, sizeof(offset));
    return offset;
}

/** The table of the object's virtual operations. */
const void *const *tableOf(const void *object)
{
    const void *const *table = nullptr;
    std::memcpy(&table, object, sizeof(table));
    return table;
}

/** The places up to \a count, after the destructor, at which a class has an operation of its own. */
std::vector<int> overriddenSlots(const void *base, const void *derived, int count)
{
    std::vector<int> slots;
    for (int slot = 2; slot < count; ++slot) {
        if (tableOf(base)[slot] != tableOf(derived)[slot])
            slots.push_back(slot);
    }
    return slots;
}

bool isAscending(const std::vector<std::ptrdiff_t> &offsets)
{
    return std::adjacent_find(offsets.begin(), offsets.end(), std::greater_equal<>()) == offsets.end();
}

/** A class derived from Base; its own operation takes the first place after those of Base. */
template <class Base>
class Extended : public Base
{
public:
    virtual void next() {}
};

using ValueSetter = bool (ProtoCommand::*)(const Value &, bool, FW_DriverError *);
using ListSetter = bool (ProtoCommand::*)(List &, FW_DriverError *);
using AnswerSetter = bool (ProtoCommand::*)(ProtoAnswer *, ProtoCommand *, FW_DriverError *);
using ValueBuilder = bool (ProtoCommand::*)(const Value &, FW_DriverError *);
using ListBuilder = bool (ProtoCommand::*)(List &, FW_DriverError *);

class OpenCommand : public ProtoCommand
{
public:
    static std::vector<std::ptrdiff_t> members()
    {
        return {offsetOf(&OpenCommand::m_command),      offsetOf(&OpenCommand::m_protoAnswer),
                offsetOf(&OpenCommand::m_xmlRpcAnswer), offsetOf(&OpenCommand::m_machine),
                offsetOf(&OpenCommand::m_parameters),   offsetOf(&OpenCommand::m_protoType)};
    }
};

class OpenSerialCommand : public SerialProtoCommand
{
public:
    static std::vector<std::ptrdiff_t> members()
    {
        return {offsetOf(&OpenSerialCommand::m_protoType), offsetOf(&OpenSerialCommand::m_moduleID)};
    }
};

class OpenAnswer : public ProtoAnswer
{
public:
    static std::ptrdiff_t type() { return offsetOf(&OpenAnswer::m_protoType); }
};

template <class Base>
class OpenChildAnswer : public Base
{
public:
    static std::ptrdiff_t stored() { return offsetOf(&OpenChildAnswer::m_parameters); }
};

// The envelope's members are private; an explicit instantiation may name them.
struct RetValue
{};
struct RetCode
{};
struct InfoMsg
{};
struct Errors
{};
struct ExecutionTime
{};
std::ptrdiff_t envelopeOffset(RetValue);
std::ptrdiff_t envelopeOffset(RetCode);
std::ptrdiff_t envelopeOffset(InfoMsg);
std::ptrdiff_t envelopeOffset(Errors);
std::ptrdiff_t envelopeOffset(ExecutionTime);

template <class Name, auto member>
struct Expose
{
    friend std::ptrdiff_t envelopeOffset(Name) { return offsetOf(member); }
};
template struct Expose<RetValue, &XmlRpcAnswer::m_retValue>;
template struct Expose<RetCode, &XmlRpcAnswer::m_retCode>;
template struct Expose<InfoMsg, &XmlRpcAnswer::m_infoMsg>;
template struct Expose<Errors, &XmlRpcAnswer::m_errors>;
template struct Expose<ExecutionTime, &XmlRpcAnswer::m_executionTime>;

} // namespace

TEST(Layout, keepsTheOperationsOfProtoCommand)
{
    EXPECT_EQ(slotOf(&ProtoCommand::clone), 2);
    EXPECT_EQ(slotOf(&ProtoCommand::parameters), 3);
    EXPECT_EQ(slotOf(&ProtoCommand::xmlrpc_parameters), 4);
    EXPECT_EQ(slotOf(&ProtoCommand::setProtoAnswer), 5);
    EXPECT_EQ(slotOf(&ProtoCommand::getProtoAnswer), 6);
    EXPECT_EQ(slotOf(&ProtoCommand::getXmlRpcAnswer), 7);
    EXPECT_EQ(slotOf(&ProtoCommand::toXmlRpcValue), 8);
    EXPECT_EQ(slotOf(static_cast<ValueBuilder>(&ProtoCommand::buildProtoAnswer)), 9);
    EXPECT_EQ(slotOf(static_cast<ListBuilder>(&ProtoCommand::buildProtoAnswer)), 10);
    EXPECT_EQ(slotOf(static_cast<ValueSetter>(&ProtoCommand::setAnswer)), 11);
    EXPECT_EQ(slotOf(static_cast<ListSetter>(&ProtoCommand::setAnswer)), 12);
    EXPECT_EQ(slotOf(static_cast<AnswerSetter>(&ProtoCommand::setAnswer)), 13);
    EXPECT_EQ(slotOf(&ProtoCommand::isSupportedCommand), 14);
    EXPECT_EQ(slotOf(&ProtoCommand::getCmdEstimatedExecutionTime), 15);
    EXPECT_EQ(slotOf(&ProtoCommand::commandString), 16);
    EXPECT_EQ(slotOf(&ProtoCommand::actionString), 17);
    EXPECT_EQ(slotOf(&Extended<ProtoCommand>::next), 18);
}

TEST(Layout, keepsTheOperationsOfSerialProtoCommand)
{
    using TokenBuilder = bool (SerialProtoCommand::*)(QStringList, FW_DriverError *);
    EXPECT_EQ(slotOf(&SerialProtoCommand::moduleID), 18);
    EXPECT_EQ(slotOf(&SerialProtoCommand::setModuleID), 19);
    EXPECT_EQ(slotOf(&SerialProtoCommand::serialParameters), 20);
    EXPECT_EQ(slotOf(static_cast<TokenBuilder>(&SerialProtoCommand::buildProtoAnswer)), 21);
    EXPECT_EQ(slotOf(&SerialProtoCommand::setSerialAnswer), 22);
    EXPECT_EQ(slotOf(&Extended<SerialProtoCommand>::next), 23);

    const ProtoCommand base;
    const SerialProtoCommand serial;
    EXPECT_EQ(overriddenSlots(&base, &serial, 18), (std::vector<int>{2, 9, 10, 11, 12, 13}));
}

TEST(Layout, keepsTheOperationsOfConfProtoCommand)
{
    EXPECT_EQ(slotOf(&Extended<ConfProtoCommand>::next), 18);
    const ProtoCommand base;
    const ConfProtoCommand configuration;
    EXPECT_EQ(overriddenSlots(&base, &configuration, 18), (std::vector<int>{2, 9, 10, 11, 12, 13, 15}));
}

TEST(Layout, keepsTheOperationsOfScaleProtoCommand)
{
    EXPECT_EQ(slotOf(&ScaleProtoCommand::setScaleAnswer), 18);
    EXPECT_EQ(slotOf(&Extended<ScaleProtoCommand>::next), 19);
    const ProtoCommand base;
    const ScaleProtoCommand scale;
    EXPECT_EQ(overriddenSlots(&base, &scale, 18), (std::vector<int>{2, 9, 10, 11, 12}));
}

TEST(Layout, keepsTheOperationsOfAnswers)
{
    EXPECT_EQ(slotOf(&ProtoAnswer::clone), 2);
    EXPECT_EQ(slotOf(&ProtoAnswer::equalTo), 3);
    EXPECT_EQ(slotOf(&ProtoAnswer::toXmlRpcValue), 4);
    EXPECT_EQ(slotOf(&Extended<ProtoAnswer>::next), 5);
    EXPECT_EQ(slotOf(&Extended<SerialProtoAnswer>::next), 5);
    EXPECT_EQ(slotOf(&Extended<ConfProtoAnswer>::next), 5);
    EXPECT_EQ(slotOf(&ScaleProtoAnswer::parameters), 5);
    EXPECT_EQ(slotOf(&Extended<ScaleProtoAnswer>::next), 6);

    const ProtoAnswer base;
    const SerialProtoAnswer serial;
    const ConfProtoAnswer configuration;
    const ScaleProtoAnswer scale;
    EXPECT_EQ(overriddenSlots(&base, &serial, 5), std::vector<int>({2}));
    EXPECT_EQ(overriddenSlots(&base, &configuration, 5), std::vector<int>({2}));
    EXPECT_EQ(overriddenSlots(&base, &scale, 5), std::vector<int>({2}));
}

TEST(Layout, keepsTheOperationsOfMachineStatusAnswer)
{
    EXPECT_EQ(slotOf(&MachineStatusAnswer::clone), 2);
    EXPECT_EQ(slotOf(&MachineStatusAnswer::decodeSerialStatus), 3);
    EXPECT_EQ(slotOf(&MachineStatusAnswer::acceptCommands), 4);
    EXPECT_EQ(slotOf(&MachineStatusAnswer::getStatusDescriptions), 5);
    EXPECT_EQ(slotOf(&MachineStatusAnswer::hasBadWorkingState), 6);
    EXPECT_EQ(slotOf(&MachineStatusAnswer::getFirstBadWorkingState), 7);
    EXPECT_EQ(slotOf(&Extended<MachineStatusAnswer>::next), 8);
}

TEST(Layout, putsSubclassesInThePlaceOfTheirBase)
{
    using Counted = CountedAnswer<ScaleProtoAnswer>;
    EXPECT_EQ(slotOf(&Counted::clone), 2);
    EXPECT_EQ(slotOf(&Counted::toXmlRpcValue), 4);
    EXPECT_EQ(slotOf(&SerialProtoCommand::clone), 2);
    EXPECT_EQ(slotOf(&ConfProtoCommand::clone), 2);
    EXPECT_EQ(slotOf(&ScaleProtoCommand::clone), 2);
    EXPECT_EQ(slotOf(&ConfProtoCommand::getCmdEstimatedExecutionTime), 15);
}

TEST(Layout, keepsTheMembersOfCommands)
{
    const std::vector<std::ptrdiff_t> members = OpenCommand::members();
    EXPECT_TRUE(isAscending(members));
    EXPECT_EQ(members.front(), static_cast<std::ptrdiff_t>(sizeof(void *)));
    // each is one pointer wide: nothing stands between them
    EXPECT_EQ(members.back(), static_cast<std::ptrdiff_t>(6 * sizeof(void *)));
    EXPECT_TRUE(isAscending(OpenSerialCommand::members()));
    EXPECT_EQ(sizeof(ConfProtoCommand), sizeof(ProtoCommand));
    EXPECT_EQ(sizeof(ScaleProtoCommand), sizeof(ProtoCommand));
}

TEST(Layout, keepsTheMembersOfAnswers)
{
    EXPECT_EQ(OpenAnswer::type(), static_cast<std::ptrdiff_t>(sizeof(void *)));
    EXPECT_LT(OpenAnswer::type(), OpenChildAnswer<SerialProtoAnswer>::stored());
    EXPECT_LT(OpenAnswer::type(), OpenChildAnswer<ConfProtoAnswer>::stored());
    EXPECT_LT(OpenAnswer::type(), OpenChildAnswer<ScaleProtoAnswer>::stored());
}

TEST(Layout, keepsTheMembersOfEnvelopes)
{
    EXPECT_TRUE(isAscending({envelopeOffset(RetValue()), envelopeOffset(RetCode()), envelopeOffset(InfoMsg()),
                             envelopeOffset(Errors()), envelopeOffset(ExecutionTime())}));
    EXPECT_EQ(envelopeOffset(RetValue()), 0);
}

TEST(Layout, keepsTheMembersOfTexts)
{
    EXPECT_EQ(offsetOf(&TString::m_text), 0);
    EXPECT_TRUE(isAscending(
        {offsetOf(&TString::m_text), offsetOf(&TString::m_translated), offsetOf(&TString::m_context)}));
}

TEST(Layout, keepsTheMembersOfMachineStatusAnswer)
{
    using Status = MachineStatusAnswer;
    const std::vector<bool Status::*> flags = {&Status::offline_pressed,
                                               &Status::board_not_initialized,
                                               &Status::startup,
                                               &Status::resetting,
                                               &Status::BL_active,
                                               &Status::BL_memory_resetting,
                                               &Status::BL_fw_update,
                                               &Status::conf_writing,
                                               &Status::hw_error,
                                               &Status::conf_error,
                                               &Status::process_error,
                                               &Status::stop_process,
                                               &Status::new_buffered_error,
                                               &Status::dispenser_not_ready,
                                               &Status::emergency_pressed,
                                               &Status::normal_wm,
                                               &Status::can_present,
                                               &Status::shelf_up,
                                               &Status::shelf_down,
                                               &Status::door_open,
                                               &Status::machine_turned_off,
                                               &Status::machine_unlocked};
    EXPECT_EQ(flags.size(), 22U);
    EXPECT_EQ(offsetOf(&Status::disp_status), static_cast<std::ptrdiff_t>(sizeof(void *)));
    std::ptrdiff_t expected = offsetOf(&Status::disp_status) + static_cast<std::ptrdiff_t>(sizeof(int));
    for (const auto flag : flags) {
        SCOPED_TRACE(expected);
        EXPECT_EQ(offsetOf(flag), expected++);
    }
}
