// SPDX-License-Identifier: LGPL-3.0-or-later
#include "firmware/fwupdateresultlist.h"

#include "firmware/fwupdateresultlist_p.h"

#include <algorithm>
#include <utility>

namespace {

const bool isRegistered = qRegisterMetaType<FwUpdateResultList>("FwUpdateResultList") != 0 &&
                          QMetaType::registerEqualsComparator<FwUpdateResultList>();

template <class Test>
bool isTrueOfOne(const QList<FwUpdateResult> &results, Test test)
{
    return std::any_of(results.begin(), results.end(),
                       [&](const FwUpdateResult &entry) { return test(entry.updateResult); });
}

bool isAccepted(int result)
{
    return result == FwUpdateResult::Updated || result == FwUpdateResult::Accepted ||
           result == FwUpdateResult::AcceptedFailure;
}

} // namespace

FwUpdateResultList::FwUpdateResultList(QList<FwUpdateResult> results) : m_results(std::move(results)) {}

FwUpdateResultList::FwUpdateResultList(QList<int> addresses)
{
    for (const int address : qAsConst(addresses))
        m_results.append(FwUpdateResult(address));
}

FwUpdateResultList::FwUpdateResultList(const FirmwareFiles &files)
{
    for (const FirmwareFile &file : files)
        m_results += FwUpdateResultList(file.addresses()).m_results;
}

FwUpdateResultList::FwUpdateResultList(const XmlRpc::XmlRpcValue &value)
{
    if (value.getType() != XmlRpc::XmlRpcValue::TypeArray)
        throw FW_Exception("DE03240", "FwUpdateResultList: expected xml-rpc array type", Q_FUNC_INFO);
    if (value.size() == 0)
        quv::throwRefusal(quv::noUpdateResults, Q_FUNC_INFO);
    for (int i = 0; i < value.size(); ++i)
        quv::madeOrRefused(quv::updateResultNotMade, Q_FUNC_INFO,
                           [&] { m_results.append(FwUpdateResult(value[i])); });
}

int FwUpdateResultList::boardAddress(int index) const
{
    return m_results.value(index).boardAddress;
}

int FwUpdateResultList::updateResult(int index) const
{
    return m_results.value(index).updateResult;
}

FwUpdateResult *FwUpdateResultList::entryAt(int index)
{
    return index >= 0 && index < m_results.size() ? &m_results[index] : nullptr;
}

bool FwUpdateResultList::setBoardAddress(int index, int address)
{
    FwUpdateResult *entry = entryAt(index);
    if (entry)
        entry->boardAddress = address;
    return entry;
}

bool FwUpdateResultList::setUpdateResult(int index, int result)
{
    FwUpdateResult *entry = entryAt(index);
    if (entry)
        entry->updateResult = result;
    return entry;
}

void FwUpdateResultList::setAllBoardAddress(int address)
{
    for (FwUpdateResult &entry : m_results)
        entry.boardAddress = address;
}

void FwUpdateResultList::setAllUpdateResult(int result)
{
    for (FwUpdateResult &entry : m_results)
        entry.updateResult = result;
}

int FwUpdateResultList::indexOf(int address) const
{
    const auto found = std::find_if(m_results.begin(), m_results.end(), [=](const FwUpdateResult &entry) {
        return entry.boardAddress == address;
    });
    return found == m_results.end() ? -1 : static_cast<int>(found - m_results.begin());
}

int FwUpdateResultList::addressUpdateResult(int address) const
{
    return updateResult(indexOf(address));
}

bool FwUpdateResultList::setAddressUpdateResult(int address, int result)
{
    return setUpdateResult(indexOf(address), result);
}

bool FwUpdateResultList::setAddressesUpdateResults(QList<int> addresses, int result)
{
    bool allThere = true;
    for (const int address : qAsConst(addresses))
        allThere = setAddressUpdateResult(address, result) && allThere;
    return allThere;
}

bool FwUpdateResultList::successfullyUpdate(bool strict) const
{
    return !m_results.isEmpty() && !isTrueOfOne(m_results, [strict](int result) {
        return strict ? result != FwUpdateResult::Updated : !isAccepted(result);
    });
}

bool FwUpdateResultList::atLeastOneSuccessfullyUpdate() const
{
    return isTrueOfOne(m_results, [](int result) { return result == FwUpdateResult::Updated; });
}

bool FwUpdateResultList::needBoardReboot() const
{
    return isTrueOfOne(m_results, [](int result) {
        return result == FwUpdateResult::FailedNeedsReboot || result == FwUpdateResult::FailedNeedsRebootToo;
    });
}

bool FwUpdateResultList::hasBeenInterrupted() const
{
    return isTrueOfOne(m_results, [](int result) { return result == FwUpdateResult::Interrupted; });
}

bool FwUpdateResultList::failed() const
{
    return isTrueOfOne(m_results, [](int result) {
        return result >= FwUpdateResult::Failed && result != FwUpdateResult::Accepted;
    });
}

bool FwUpdateResultList::hasSoftErrors() const
{
    return !isTrueOfOne(m_results, FwUpdateResult::checkUpdateResult);
}

int FwUpdateResultList::getCommandStatusResult() const
{
    constexpr int updated = 0;
    constexpr int interrupted = -3;
    constexpr int hasFailed = -1;
    constexpr int unknown = 1;
    if (successfullyUpdate(false))
        return updated;
    if (hasBeenInterrupted())
        return interrupted;
    return failed() ? hasFailed : unknown;
}

XmlRpc::XmlRpcValue FwUpdateResultList::toXmlRpcValue() const
{
    XmlRpc::XmlRpcValue array;
    array.setSize(m_results.size());
    for (int i = 0; i < m_results.size(); ++i)
        array[i] = m_results.at(i).toXmlRpcValue();
    return array;
}
